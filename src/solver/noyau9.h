#pragma once

#include <cstdint>
#include <vector>

namespace sudoku {

// The solve pass for grids of side 9 whose cells hold single symbols, none wrong (Etat 3), and none typed and
// unproved (Etat 2) but for those that the solver supposed: what a search does by the thousand, on masks of 16
// bits and without facts. It gives what AutoDriver::JeuSolve and the engine give on such a board, deduction
// for deduction (engine/series.h and engine/figures.h say which).
//
// Cells are 0 to 80 here, symbols 0 to 8.
struct Cases9 {
  // Symbols used in each row, column and block; lanes 9 to 15 stay 0.
  alignas(32) std::uint16_t lignes[16];
  alignas(32) std::uint16_t colonnes[16];
  alignas(32) std::uint16_t carres[16];
  // All ones where a cell is empty, by row and by column; lanes 9 to 15 stay 0.
  alignas(32) std::uint16_t videsLigne[9][16];
  alignas(32) std::uint16_t videsColonne[9][16];
  std::uint8_t valeur[81];  // 0 for an empty cell, else the symbol + 1
  std::uint8_t remplies;    // cells that aren't empty

  void Vide();
  // The cell is empty.
  void Pose(int cellule, int symbole);
};

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

// Which solutions the deductions write: proved ones, before any supposition, where each unit leaves aside what
// is proved in it already; or those that rest on suppositions.
enum class Mode9 { kSur, kPossible };

using JeuSolve9 = void (*)(Cases9& cases, Mode9 mode, Passe9& passe);

// The versions that this machine runs, the fastest first; all give the same.
std::vector<JeuSolve9> VersionsJeuSolve9();

}  // namespace sudoku
