#pragma once

#include "grid/game_state.h"
#include "platform/systeme.h"
#include "play/voisins.h"

namespace sudoku {

// The clock of a game. Its running state is Tmr.Enabled and nothing else; whether it is seen is another
// matter.
class Chrono {
 public:
  Chrono(GameState& jeu, Systeme& systeme, Fenetre& principale, Assistant& assistant);

  // Starts the clock over on a fresh grid in play without the assistant. Otherwise it only goes out of sight:
  // a running one runs on.
  void StartChrono();
  // A second has gone by: shows the time, or voids the clock because the assistant is open.
  void Tmr_Timer();
  // The game has come to its end. True: the clock ran and has stopped at VmFin. False: nothing is timed.
  bool Arrete();
  // The solver plays: the clock is void.
  void Annule();

 private:
  GameState& jeu_;
  Systeme& systeme_;
  Assistant& assistant_;
  Minuterie& Tmr_;
  Element& LblChrono_;
};

}  // namespace sudoku
