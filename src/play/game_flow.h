#pragma once

namespace sudoku {

class FRMSudoku;

// From the entry of the givens to play, back to the start of a game, and the clock. The clock's running state
// is Tmr.Enabled and nothing else; whether it is seen is another matter.
class GameFlow {
 public:
  explicit GameFlow(FRMSudoku& frm) : frm_(frm) {}

  // Begins play on the grid as it stands, whatever it holds: a silent solve, mode 2, board, menus, clock.
  void JeuStart();
  // Erases the player's entries, with VpValide True only those that no proof confirmed, and starts anew.
  void JeuReinit(bool VpValide);
  // Starts the clock over on a fresh grid in play without the assistant. Otherwise it only goes out of sight:
  // a running one runs on.
  void StartChrono();
  // A second has gone by: shows the time, or voids the clock because the assistant is open.
  void Tmr_Timer();

 private:
  FRMSudoku& frm_;
};

}  // namespace sudoku
