#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "grid/game_state.h"

namespace sudoku {

// The deductions of one evaluation, without GrilleCheck, for grids of one side N. It
// keeps its working memory, and the tables of the last grid's alphabet and size, between calls.
class Moteur {
 public:
  virtual ~Moteur() = default;
  // Up to VpPasses passes over the grid; with `seconde` the second one alone, of two. Result: the turns of
  // deduction that they took.
  virtual std::uint64_t Passes(GameState& jeu, Grille& grille, int VpPasses, bool seconde) = 0;
};

// The versions of a Moteur for grids of side N that this machine runs, the fastest first; all give the same.
using FabriqueMoteur = std::unique_ptr<Moteur> (*)(int N);
std::vector<FabriqueMoteur> VersionsMoteur();

// The plain and slow one, for grids of any kind: it alone does those with contents that are no single symbol
// of the grid, or with equal symbols. The others hand these to it.
std::unique_ptr<Moteur> FabriqueTextes(int N);

}  // namespace sudoku
