#pragma once

#include <memory>

#include "grid/game_state.h"

namespace sudoku {

// The deductions of one evaluation, without GrilleCheck, for grids of one side N. It
// keeps its working memory, and the tables of the last grid's alphabet and size, between calls.
class Moteur {
 public:
  virtual ~Moteur() = default;
  // Up to VpPasses passes over the grid; with `seconde` the second one alone, of two.
  virtual void Passes(GameState& jeu, Grille& grille, int VpPasses, bool seconde) = 0;
};

// A Moteur for grids of side N: the fastest that this machine runs; all give the same.
std::unique_ptr<Moteur> ChoisitMoteur(int N);

}  // namespace sudoku
