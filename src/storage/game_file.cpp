#include "storage/game_file.h"

#include <utility>

#include "platform/rapport.h"
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
  return dialogue_.GetOpenFile(systeme_.LesFichiers().DossierCourant(), VpTitre, U"sud");
}

void GameFile::JeuSave(const Grille& VpGrille) {
  Rapport(systeme_, U"FRMSudoku.JeuSave", [&] {
    const Texte initiale = ChaineInitiale(VpGrille);
    const Texte etats = ChaineEtats(VpGrille);
    if (jeu_.VmNom.empty()) jeu_.VmNom = Demande(U"Sauvegarde du jeu");
    if (jeu_.VmNom.empty()) return;
    jeu_.VmNom = AvecExtension(std::move(jeu_.VmNom));
    SafeSave fichier(systeme_.LesFichiers(), jeu_.VmNom);
    if (Jouee(VpGrille) && jeu_.VgEtat != kTermine) RangePartie(etats);
    fichier.Termine(EcritSud(VpGrille.Symboles(), initiale, jeu_.VgParties, jeu_.VgScores));
    affichage_.SetInfos();
  });
}

void GameFile::RangePartie(const Texte& etats) {
  if (jeu_.VmPartie < 1) bibliotheque_.ShowParties(kSauvePartie);
  if (jeu_.VmPartie > 0) jeu_.VgParties[static_cast<std::size_t>(jeu_.VmPartie)].Grille = etats;
}

void GameFile::JeuLoad(TexteVue VpFichier) {
  Rapport(systeme_, U"FRMSudoku.JeuLoad", [&] {
    Texte chemin = VpFichier.empty() ? Demande(U"Chargement du jeu") : SansGuillemets(VpFichier);
    if (chemin.empty() && VpFichier.empty()) return;
    jeu_.VmNom = std::move(chemin);
    bibliotheque_.JeuLoadPartie(LitFichier());
  });
}

Texte GameFile::LitFichier() {
  Fichiers& fichiers = systeme_.LesFichiers();
  LectureSud lu = LitSud(fichiers.Lit(jeu_.VmNom));
  if (lu.VmValeurs) jeu_.VmValeurs = *std::move(lu.VmValeurs);
  if (!lu.grille) {
    const Texte copie = NomDeCopie(jeu_.VmNom);
    const bool gardee = fichiers.EstFichier(copie);
    throw Erreur(kFinDeFichier, gardee ? U" (la version précédente est conservée dans " + copie + U")" : U"");
  }
  jeu_.VgParties = std::move(lu.VgParties);
  jeu_.VmPartie = 0;  // the entry it stood for is gone
  if (lu.VgScores) jeu_.VgScores = *std::move(lu.VgScores);
  if (lu.erreur) throw Erreur(*lu.erreur);
  return *std::move(lu.grille);
}

void GameFile::MnuLoad_Click() {
  const bool poursuivre = jeu_.VgEtat == kSansGrille ||
                          systeme_.Question(U"Etes-vous certain de vouloir abandonner la grille en cours ?");
  if (poursuivre) JeuLoad({});
}

void GameFile::MnuSave_Click() {
  JeuSave(jeu_.VmGrille);
}

}  // namespace sudoku
