#include "play/cell_input.h"

#include "play/frm_sudoku.h"

namespace sudoku {
namespace {

enum Touche : int { kGauche = 37, kHaut = 38, kDroite = 39, kBas = 40 };

}  // namespace

void CellInput::ChangeCase(int Index) {
  GameState& jeu = frm_.Jeu();
  if (jeu.VgEtat == kAffichage) return;
  jeu.VmGrille(Index).Valeur(frm_.LaFenetre().plateau.TxtCase(Index).Text);
  if (jeu.VgEtat == kSaisieGrille) {
    frm_.Moteur().Evaluation(jeu.VmGrille, 1);
  } else if (jeu.VgEtat == kJeu) {
    if (frm_.Moteur().Evaluation(jeu.VmGrille, 2) == 0) FinDuJeu();
  }
  frm_.Affiche();
  frm_.SetMenus();
}

void CellInput::FinDuJeu() {
  GameState& jeu = frm_.Jeu();
  jeu.VgEtat = kTermine;
  if (frm_.LeChrono().Arrete()) {
    frm_.LeStockage().SetScores();
  } else {
    frm_.LeSysteme().Message(U"Jeu terminé !");
  }
}

void CellInput::Deplacement(int KeyCode) {
  const int VmCase = frm_.Jeu().VmCase;
  const int N = frm_.Jeu().VmTaille;
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
  if (cible >= 1 && cible <= N * N) frm_.LaFenetre().plateau.SetFocus(cible);
}

void CellInput::TxtCase_GotFocus(int Index) {
  GameState& jeu = frm_.Jeu();
  Plateau& plateau = frm_.LaFenetre().plateau;
  plateau.Appearance(jeu.VmCase, 0);
  jeu.VmCase = static_cast<std::int16_t>(Index);
  plateau.Appearance(Index, 1);
  plateau.Selection(Index, 0, 1);
  if (frm_.LAssistant().LaFenetre().Visible) frm_.LAssistant().Infos(jeu.VmGrille, Index, false);
}

}  // namespace sudoku
