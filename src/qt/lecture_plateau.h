#pragma once

namespace sudoku {

// Boards for screen readers: a board has a child for each box, which says in words where it is, what it holds
// and what is known of it. Children are made only when a reader asks for them.
void InstalleLecture();

}  // namespace sudoku
