#include "storage/game_file.h"

#include <utility>

#include "platform/rapport.h"
#include "play/frm_sudoku.h"
#include "storage/safe_save.h"
#include "storage/state_string.h"
#include "storage/sud_text.h"

namespace sudoku {
namespace {

constexpr TexteVue kExtension = U".sud";

Texte AvecExtension(Texte nom) {
  const bool presente = nom.size() >= kExtension.size() &&
                        Egal(TexteVue(nom).substr(nom.size() - kExtension.size()), kExtension);
  if (!presente) nom += kExtension;
  return nom;
}

// The path inside the quotes of a command line, whatever stands in their place.
Texte SansGuillemets(TexteVue ligne) {
  return ligne.size() <= 2 ? Texte() : Texte(ligne.substr(1, ligne.size() - 2));
}

}  // namespace

Texte GameFile::Demande(TexteVue VpTitre) {
  return dialogue_.GetOpenFile(frm_.LeSysteme().LesFichiers().DossierCourant(), VpTitre, U"sud");
}

void GameFile::JeuSave(const Grille& VpGrille) {
  GameState& jeu = frm_.Jeu();
  Rapport(frm_.LeSysteme(), U"FRMSudoku.JeuSave", [&] {
    const Texte initiale = ChaineInitiale(VpGrille);
    const Texte etats = ChaineEtats(VpGrille);
    if (jeu.VmNom.empty()) jeu.VmNom = Demande(U"Sauvegarde du jeu");
    if (jeu.VmNom.empty()) return;
    jeu.VmNom = AvecExtension(std::move(jeu.VmNom));
    SafeSave fichier(frm_.LeSysteme().LesFichiers(), jeu.VmNom);
    if (Jouee(VpGrille) && jeu.VgEtat != kTermine) RangePartie(etats);
    fichier.Termine(EcritSud(VpGrille.Symboles(), initiale, jeu.VgParties, jeu.VgScores));
    frm_.SetInfos();
  });
}

void GameFile::RangePartie(const Texte& etats) {
  GameState& jeu = frm_.Jeu();
  if (jeu.VmPartie < 1) bibliotheque_.ShowParties(kSauvePartie);
  if (jeu.VmPartie > 0) jeu.VgParties[static_cast<std::size_t>(jeu.VmPartie)].Grille = etats;
}

void GameFile::JeuLoad(TexteVue VpFichier) {
  Rapport(frm_.LeSysteme(), U"FRMSudoku.JeuLoad", [&] {
    Texte chemin = VpFichier.empty() ? Demande(U"Chargement du jeu") : SansGuillemets(VpFichier);
    if (chemin.empty() && VpFichier.empty()) return;
    frm_.Jeu().VmNom = std::move(chemin);
    bibliotheque_.JeuLoadPartie(LitFichier());
  });
}

Texte GameFile::LitFichier() {
  GameState& jeu = frm_.Jeu();
  Fichiers& fichiers = frm_.LeSysteme().LesFichiers();
  LectureSud lu = LitSud(fichiers.Lit(jeu.VmNom));
  if (lu.VmValeurs) jeu.VmValeurs = *std::move(lu.VmValeurs);
  if (!lu.grille) {
    const Texte copie = NomDeCopie(jeu.VmNom);
    const bool gardee = fichiers.EstFichier(copie);
    throw Erreur(kFinDeFichier, gardee ? U" (la version précédente est conservée dans " + copie + U")" : U"");
  }
  jeu.VgParties = std::move(lu.VgParties);
  jeu.VmPartie = 0;  // the entry it stood for is gone
  if (lu.VgScores) jeu.VgScores = *std::move(lu.VgScores);
  if (lu.erreur) throw Erreur(*lu.erreur);
  return *std::move(lu.grille);
}

void GameFile::MnuLoad_Click() {
  const bool poursuivre =
      frm_.Jeu().VgEtat == kSansGrille ||
      frm_.LeSysteme().Question(U"Etes-vous certain de vouloir abandonner la grille en cours ?");
  if (poursuivre) JeuLoad({});
}

void GameFile::MnuSave_Click() {
  JeuSave(frm_.Jeu().VmGrille);
}

}  // namespace sudoku
