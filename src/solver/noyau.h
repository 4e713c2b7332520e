#pragma once

#include <cstdint>
#include <vector>

#include "solver/cases.h"

namespace sudoku {

// The solve pass for grids of side 9 whose cells hold single symbols, none wrong (Etat 3), and none typed and
// unproved (Etat 2) but for those that the solver supposed: what a search does by the thousand, without
// facts. It gives what AutoDriver::JeuSolve and the engine give on such a board, deduction for deduction.

// What a solve pass made of a board.
struct Passe9 {
  // As of GrilleCheck: -1, 0, or the number of empty cells.
  std::int16_t verdict = 0;
  // Cells that got a symbol which their candidates had lost (a contradictory board): they hold it in `cases`,
  // with Etat 3. Where there is one, the pass stopped before the evaluation that follows, without a verdict,
  // and the general engine has to go on from there.
  bool erronee = false;
  bool erronees[81] = {};
  // Candidates of the empty cells after the last evaluation; for a verdict above 0 only.
  std::uint16_t candidats[81];
};

// kSur before any supposition; with one, solutions rest on suppositions.
using JeuSolve9 = void (*)(Cases9& cases, Appui appui, Passe9& passe);

// The versions that this machine runs, the fastest first; all give the same.
std::vector<JeuSolve9> VersionsJeuSolve9();

}  // namespace sudoku
