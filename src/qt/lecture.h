#pragma once

namespace sudoku {

// What screen readers are told of windows, labels and the board.
void InstalleLecture();

}  // namespace sudoku
