#pragma once

#include "lot/appel.h"
#include "lot/equipe.h"

namespace sudoku::lot {

// Solves grids as the solve commands of the window do, every message box answered by itself. A line a grid,
// six fields with a TAB between them: the grid as read, the result, suppositions made, suppositions refuted,
// how often a level of suppositions was exhausted, the final message.
std::unique_ptr<Ouvrier> FabriqueResoudre(const Appel& appel);

}  // namespace sudoku::lot
