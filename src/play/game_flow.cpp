#include "play/game_flow.h"

#include "play/frm_sudoku.h"

namespace sudoku {

void GameFlow::JeuStart() {
  GameState& jeu = frm_.Jeu();
  frm_.LaFenetre().plateau.OublieSaisies();
  jeu.VgSilence = true;
  frm_.JeuAuto(true, false);
  jeu.VgSilence = false;
  jeu.VgEtat = kJeu;
  frm_.Moteur().Evaluation(jeu.VmGrille, 2);
  frm_.Affiche();
  frm_.SetMenus();
  frm_.LeChrono().StartChrono();
}

void GameFlow::JeuReinit(bool VpValide) {
  GameState& jeu = frm_.Jeu();
  for (int i = 1; i <= jeu.VmGrille.Borne(); ++i) {
    ClsPos cellule = jeu.VmGrille(i);
    if (cellule.Etat() == kDonnee || (VpValide && cellule.Etat() == kProuvee)) continue;
    cellule.Valeur(U"");
  }
  jeu.VmPartie = 0;
  JeuStart();
  frm_.SetInfos();
}
}  // namespace sudoku
