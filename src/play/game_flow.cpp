#include "play/game_flow.h"

#include "play/frm_sudoku.h"

namespace sudoku {
namespace {

// A span of milliseconds as a time of day: whole seconds, from 00:00:00 again after a day.
Texte HeureDuJour(std::int64_t duree) {
  return HeuresMinutesSecondes(duree < 0 ? 0 : duree / 1000 % 86400);
}

bool GrilleFraiche(const Grille& grille) {
  for (int i = 1; i <= grille.Borne(); ++i) {
    if (!grille(i).ValeurSaisie().empty() && grille(i).Etat() != kDonnee) return false;
  }
  return true;
}

}  // namespace

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
  StartChrono();
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

void GameFlow::StartChrono() {
  GameState& jeu = frm_.Jeu();
  frm_.LblChrono().Visible = false;
  if (jeu.VgEtat != kJeu || !GrilleFraiche(jeu.VmGrille)) return;
  if (frm_.LAssistant().LaFenetre().Visible) return;
  jeu.VmDebut = frm_.LeSysteme().Maintenant();
  frm_.LblChrono().Visible = true;
  frm_.Tmr().Demarre();
}

void GameFlow::Tmr_Timer() {
  if (frm_.LAssistant().LaFenetre().Visible) {
    frm_.Tmr().Enabled = false;
    frm_.LblChrono().Caption = U"Chrono non applicable (aide utilisée)";
  } else {
    frm_.LblChrono().Caption = HeureDuJour(frm_.LeSysteme().Maintenant() - frm_.Jeu().VmDebut);
  }
}

}  // namespace sudoku
