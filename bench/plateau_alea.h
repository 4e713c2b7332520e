#pragma once

#include <cstdint>

#include "grid/game_state.h"

namespace sudoku::bench {

// A board to measure on: a full grid, made of one row shifted from row to row, its rows, columns and symbols
// shuffled within what keeps it right, and then emptied in part. The same seed gives the same board
// everywhere.
struct Alea {
  int N = 9;
  int rempli = 50;        // per cent of the cells that hold a symbol
  bool dixieme = false;   // every tenth of them was typed by the player, is right and unproved
  bool symboles = false;  // empties all places of a symbol before those of the next, instead of any cells
  std::uint32_t graine = 1;
};

// N symbols, all different ignoring case.
Texte SymbolesPour(int N);

// Loads the board into a grid of its side.
void Charge(const Alea& alea, const Grille& grille);

// The board Evaluation/N/50dixieme: half the cells filled, a tenth of these by the player, such that both
// passes of an evaluation run to their end, series and figures in each. An evaluation ends where a cell can
// be filled. So the first of 50 seeds is taken after whose evaluation no empty cell has a solution, proved or
// supposed, and the player's entries are still unproved. Cells emptied at random leave some single on all but
// the largest grids (from N = 121 on they don't): there whole symbols are emptied, which can then change
// places in many ways.
Alea PlateauDeuxPasses(int N);

}  // namespace sudoku::bench
