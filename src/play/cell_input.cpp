#include "play/cell_input.h"

namespace sudoku {
namespace {

enum Touche : int { kGauche = 37, kHaut = 38, kDroite = 39, kBas = 40 };

}  // namespace

void CellInput::ChangeCase(int Index) {
  if (jeu_.VgEtat == kAffichage) return;
  ClsPos cellule = jeu_.VmGrille(Index);
  const Texte avant = cellule.ValeurSaisie();
  cellule.Valeur(plateau_.TxtCase(Index).Text);
  saisies_.Note(Index, avant, cellule.ValeurSaisie());
  if (jeu_.VgEtat == kSaisieGrille) {
    evaluateur_.Evaluation(jeu_.VmGrille, 1);
  } else if (jeu_.VgEtat == kJeu) {
    if (evaluateur_.Evaluation(jeu_.VmGrille, 2) == 0) FinDuJeu();
  }
  affichage_.Affiche();
  affichage_.SetMenus();
}

void CellInput::FinDuJeu() {
  jeu_.VgEtat = kTermine;
  if (chrono_.Arrete()) {
    stockage_.SetScores();
  } else {
    jeu_.Message(U"Jeu terminé !");
  }
}

void CellInput::Deplacement(int KeyCode) {
  const int VmCase = jeu_.VmCase;
  const int N = jeu_.VmTaille;
  if (VmCase == 0) return;
  int cible = 0;
  switch (KeyCode) {
    case kGauche:
      cible = VmCase - 1;
      break;
    case kHaut:
      cible = VmCase - N;
      break;
    case kDroite:
      cible = VmCase + 1;
      break;
    case kBas:
      cible = VmCase + N;
      break;
    default:
      return;
  }
  if (cible >= 1 && cible <= N * N) plateau_.SetFocus(cible);
}

void CellInput::TxtCase_GotFocus(int Index) {
  plateau_.Appearance(jeu_.VmCase, 0);
  jeu_.VmCase = static_cast<std::int16_t>(Index);
  plateau_.Appearance(Index, 1);
  plateau_.Selection(Index, 0, 1);
  if (assistant_.LaFenetre().Visible) assistant_.Infos(jeu_.VmGrille, Index, false);
}

}  // namespace sudoku
