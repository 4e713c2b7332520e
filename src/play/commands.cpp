#include "play/commands.h"

namespace sudoku {
namespace {

constexpr TexteVue kAbandonner = U"Etes-vous certain de vouloir abandonner la grille en cours ?";

}  // namespace

bool Commands::Abandonne(TexteVue question) {
  return jeu_.VgEtat == kSansGrille || systeme_.Question(question);
}

void Commands::Form_Load(TexteVue ligneDeCommande) {
  jeu_.VgEtat = kSansGrille;
  jeu_.VgParties.resize(1);
  jeu_.VgScores.resize(1);
  affichage_.SetMenus();
  AlwaysOnTop(principale_, true);
  systeme_.DoEvents();
  if (!ligneDeCommande.empty()) stockage_.JeuLoad(Texte(ligneDeCommande));
}

void Commands::MnuInit_Click() {
  if (Abandonne(kAbandonner)) deroulement_.NouvelleGrille();
}

void Commands::MnuStart_Click() {
  deroulement_.JeuStart();
}

void Commands::MnuRestart_Click() {
  if (systeme_.Question(U"Etes-vous certain de vouloir recommencer ?")) deroulement_.JeuReinit(false);
}

void Commands::MnuReinit_Click() {
  if (systeme_.Question(U"Etes-vous certain de vouloir revenir aux seules cases certaines ?")) {
    deroulement_.JeuReinit(true);
  }
}

void Commands::MnuQuit_Click() {
  if (Abandonne(U"Etes-vous certain de vouloir quitter le jeu ?")) systeme_.Fin();
}

void Commands::MnuAssist_Click() {
  AlwaysOnTop(assistant_.LaFenetre(), true);
  affichage_.Affiche();
  affichage_.SetMenus();
}

void Commands::MnuSolver_Click() {
  Resout(false);
}

void Commands::MnuSolveur2_Click() {
  Resout(true);
}

void Commands::Resout(bool VpGuess) {
  if (systeme_.Question(U"La résolution entrainera la fin de la partie. Souhaitez-vous poursuivre ?")) {
    deroulement_.Resout(VpGuess);
  }
}

void Commands::OuvreFichier(TexteVue chemin) {
  if (Abandonne(kAbandonner)) stockage_.JeuLoad(U"\"" + Texte(chemin) + U"\"");
}

bool Commands::Form_QueryUnload(int) {
  MnuQuit_Click();
  return true;
}

}  // namespace sudoku
