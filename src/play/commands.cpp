#include "play/commands.h"

#include "play/frm_sudoku.h"

namespace sudoku {
namespace {

constexpr TexteVue kAbandonner = U"Etes-vous certain de vouloir abandonner la grille en cours ?";

}  // namespace

bool Commands::Abandonne(TexteVue question) {
  return frm_.Jeu().VgEtat == kSansGrille || frm_.LeSysteme().Question(question);
}

void Commands::MnuInit_Click() {
  if (Abandonne(kAbandonner)) frm_.Deroulement().NouvelleGrille();
}

void Commands::MnuStart_Click() {
  frm_.Deroulement().JeuStart();
}

void Commands::MnuRestart_Click() {
  if (frm_.LeSysteme().Question(U"Etes-vous certain de vouloir recommencer ?"))
    frm_.Deroulement().JeuReinit(false);
}

void Commands::MnuReinit_Click() {
  if (frm_.LeSysteme().Question(U"Etes-vous certain de vouloir revenir aux seules cases certaines ?")) {
    frm_.Deroulement().JeuReinit(true);
  }
}

void Commands::MnuQuit_Click() {
  if (Abandonne(U"Etes-vous certain de vouloir quitter le jeu ?")) frm_.LeSysteme().Fin();
}

void Commands::MnuAssist_Click() {
  AlwaysOnTop(frm_.LAssistant().LaFenetre(), true);
  frm_.Affiche();
  frm_.SetMenus();
}

void Commands::MnuSolver_Click() {
  Resout(false);
}

void Commands::MnuSolveur2_Click() {
  Resout(true);
}

void Commands::Resout(bool VpGuess) {
  if (frm_.LeSysteme().Question(
          U"La résolution entrainera la fin de la partie. Souhaitez-vous poursuivre ?")) {
    frm_.Deroulement().Resout(VpGuess);
  }
}

void Commands::OuvreFichier(TexteVue chemin) {
  if (Abandonne(kAbandonner)) frm_.LeStockage().JeuLoad(U"\"" + Texte(chemin) + U"\"");
}

void Commands::Form_KeyDown(int KeyCode) {
  frm_.Deplacement(KeyCode);
}

bool Commands::Form_QueryUnload(int) {
  MnuQuit_Click();
  return true;
}

}  // namespace sudoku
