#pragma once

namespace sudoku {

class FRMSudoku;

// From the entry of the givens to play, and back to the start of a game.
class GameFlow {
 public:
  explicit GameFlow(FRMSudoku& frm) : frm_(frm) {}

  // Begins play on the grid as it stands, whatever it holds: a silent solve, mode 2, board, menus, clock.
  void JeuStart();
  // Erases the player's entries, with VpValide True only those that no proof confirmed, and starts anew.
  void JeuReinit(bool VpValide);

 private:
  FRMSudoku& frm_;
};

}  // namespace sudoku
