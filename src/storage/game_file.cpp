#include "storage/game_file.h"

#include <utility>

#include "platform/rapport.h"
#include "storage/state_string.h"

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

// A file ends in CR LF 00, or in the 00 of a score.
bool FinitEntier(std::string_view octets) {
  using namespace std::string_view_literals;
  const std::size_t ligne = octets.rfind('\n') + 1;  // 0 where there is one line
  return octets.ends_with("\r\n\0"sv) ||
         (octets.substr(ligne).starts_with('\0') && octets.size() > ligne + 1 && octets.ends_with('\0'));
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
    std::string octets = EcritSud(VpGrille.Symboles(), initiale, jeu_.VgParties, jeu_.VgScores);
    fichier.Termine(octets, connu_);
    connu_ = {jeu_.VmNom, std::move(octets)};
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
    connu_ = {};
    std::string octets = systeme_.LesFichiers().Lit(jeu_.VmNom);
    const bool complet = FinitEntier(octets);
    const Chargement issue = bibliotheque_.JeuLoadPartie(Prend(LitSud(octets)));
    if (issue == Chargement::kEntier) connu_ = {jeu_.VmNom, std::move(octets)};
    if (issue == Chargement::kRompu || complet) return;
    const Texte copie = DerniereCopie();
    if (copie.empty()) return;
    systeme_.Message(U"Ce fichier semble incomplet : la version précédente est conservée dans " + copie);
  });
}

Texte GameFile::Prend(LectureSud lu) {
  if (lu.erreur == kAccesFichier) throw Erreur(kAccesFichier);
  if (lu.VmValeurs) {
    valeursSeules_ = !lu.grille;
    jeu_.VmValeurs = *std::move(lu.VmValeurs);
  }
  if (!lu.grille) {
    const Texte copie = DerniereCopie();
    throw Erreur(kFinDeFichier,
                 copie.empty() ? U"" : U" (la version précédente est conservée dans " + copie + U")");
  }
  jeu_.VgParties = std::move(lu.VgParties);
  jeu_.VmPartie = 0;  // the entry it stood for is gone
  if (lu.VgScores) jeu_.VgScores = *std::move(lu.VgScores);
  if (lu.erreur) throw Erreur(*lu.erreur);
  return *std::move(lu.grille);
}

void GameFile::MnuPartie_Click() {
  if (!systeme_.Question(U"Etes-vous certain de vouloir quitter le jeu ?")) return;
  // The library is that of the board, and its games need the board's symbols.
  if (std::exchange(valeursSeules_, false) && jeu_.VmTaille > 0) jeu_.VmValeurs = jeu_.VmGrille.Symboles();
  if (bibliotheque_.JeuLoadPartie({}) == Chargement::kRompu) connu_ = {};
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
