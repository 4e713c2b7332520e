#pragma once

#include <cstdint>
#include <memory>

#include "engine/moteur.h"
#include "engine/reprise.h"
#include "grid/game_state.h"

namespace sudoku {

// The deduction engine: works out all that is known of a grid from its cells, the simplest deductions first,
// and stops as soon as a cell can be filled. It keeps its working memory from one call to the next, so that
// calls on grids of one size allocate nothing; no result depends on what it did before.
class Evaluateur {
 public:
  explicit Evaluateur(GameState& jeu);

  // Recomputes candidates, solutions and explanations of every cell of VpGrille and judges the player's
  // entries anew. VpPasses 2: the first pass sees givens and proved cells, the second one, run only if the
  // first found no cell to fill and there are unproved entries, counts those as true and writes what it finds
  // to SolutionPoss; VgEtat is 2 afterwards. VpPasses 1: one pass in the present mode (1 or 2).
  // premiereConnue: the first of two passes would give what the grid's fields show already, and no cell to
  // fill; it is left out where there are unproved entries to run the second one for. Result: -1 a cell has no
  // candidate, 0 the grid is complete, otherwise the number of cells still to fill.
  std::int16_t Evaluation(Grille& VpGrille, int VpPasses, bool premiereConnue = false);

  // What was done since this was made: times that the passes ran, and turns of deduction in them. Both have
  // bounds, see the .cpp and deductions.h.
  std::uint64_t Reprises() const { return reprises_; }
  std::uint64_t Tours() const { return tours_; }

 private:
  GameState& jeu_;
  std::unique_ptr<Moteur> moteur_;  // for grids of side cote_
  int cote_ = 0;
  Reprise reprise_;
  Revisions revisions_;
  std::uint64_t reprises_ = 0;
  std::uint64_t tours_ = 0;
};

}  // namespace sudoku
