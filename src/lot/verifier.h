#pragma once

#include "lot/appel.h"
#include "lot/equipe.h"

namespace sudoku::lot {

// Checks the engine on a grid. Counts the grid's solutions in a way of its own; where there is one alone,
// deduces from the grid as far as it goes, solves it and replays the road there, and holds everything found
// on the way against the solution. A line a grid, five fields with a TAB between them: the grid as read, its
// solutions (2 for more), evaluations made, candidates removed by deductions, contradictions found. What
// contradicts is an alert of the answer.
std::unique_ptr<Ouvrier> FabriqueVerifier(const Appel& appel);

}  // namespace sudoku::lot
