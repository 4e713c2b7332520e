#include "play/game_flow.h"

namespace sudoku {

Texte GameFlow::DemandeSymboles() {
  return systeme_.Saisie(U"Valeurs possibles ?", U"Nouvelle grille", U"123456789");
}

void GameFlow::MetEnPlace() {
  affichage_.MetEnPlace();
  saisies_.Oublie();
}

void GameFlow::NouvelleGrille() {
  Texte VlValeurs;
  JeuVierge(VlValeurs);
  affichage_.SetMenus();
  chrono_.StartChrono();
}

void GameFlow::JeuStart() {
  saisies_.Oublie();
  jeu_.VgSilence = true;
  solveur_.JeuAuto(true, false);
  jeu_.VgSilence = false;
  jeu_.VgEtat = kJeu;
  evaluateur_.Evaluation(jeu_.VmGrille, 2);
  affichage_.Affiche();
  affichage_.SetMenus();
  chrono_.StartChrono();
}

void GameFlow::JeuReinit(bool VpValide) {
  for (int i = 1; i <= jeu_.VmGrille.Borne(); ++i) {
    ClsPos cellule = jeu_.VmGrille(i);
    if (cellule.Etat() == kDonnee || (VpValide && cellule.Etat() == kProuvee)) continue;
    cellule.Valeur(U"");
  }
  jeu_.VmPartie = 0;
  JeuStart();
  affichage_.SetInfos();
}

void GameFlow::Resout(bool VpGuess) {
  saisies_.Oublie();
  chrono_.Annule();
  solveur_.JeuAuto(false, VpGuess);
  affichage_.SetMenus();
}

}  // namespace sudoku
