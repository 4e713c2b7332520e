#pragma once

namespace sudoku {

class FRMSudoku;

// What the user does on the board.
class CellInput {
 public:
  explicit CellInput(FRMSudoku& frm) : frm_(frm) {}

  // The text of box Index has changed. One full cycle: the entry is judged, the grid evaluated, the board
  // redrawn, the commands enabled. The entry that completes the grid in play ends the game: mode 4, and the
  // scores if the clock was running, otherwise a message. Does nothing while the board is being redrawn.
  void ChangeCase(int Index);
  // An arrow key (37 to 40: left, up, right, down) moves the focus, within the grid; others do nothing.
  void Deplacement(int KeyCode);
  // Box Index has got the focus.
  void TxtCase_GotFocus(int Index);

 private:
  void FinDuJeu();

  FRMSudoku& frm_;
};

}  // namespace sudoku
