#include "play/chrono.h"

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

Chrono::Chrono(GameState& jeu, Systeme& systeme, Fenetre& principale, Assistant& assistant)
    : jeu_(jeu),
      systeme_(systeme),
      assistant_(assistant),
      Tmr_(*principale.TrouveMinuterie("Tmr")),
      LblChrono_(*principale.Trouve("LblChrono")) {}

void Chrono::StartChrono() {
  LblChrono_.Visible = false;
  if (jeu_.VgEtat != kJeu || !GrilleFraiche(jeu_.VmGrille)) return;
  if (assistant_.LaFenetre().Visible) return;
  jeu_.VmDebut = systeme_.Maintenant();
  LblChrono_.Visible = true;
  Tmr_.Demarre();
}

void Chrono::Tmr_Timer() {
  if (assistant_.LaFenetre().Visible) {
    Tmr_.Enabled = false;
    LblChrono_.Caption = U"Chrono non applicable (aide utilisée)";
  } else {
    LblChrono_.Caption = HeureDuJour(systeme_.Maintenant() - jeu_.VmDebut);
  }
}

bool Chrono::Arrete() {
  if (!Tmr_.Enabled) return false;
  jeu_.VmFin = systeme_.Maintenant();
  Tmr_.Enabled = false;
  return true;
}

void Chrono::Annule() {
  Tmr_.Enabled = false;
  LblChrono_.Caption = U"Chrono non applicable (solver utilisé)";
}

}  // namespace sudoku
