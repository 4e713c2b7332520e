#pragma once

#include <memory>

#include "engine/evaluation.h"
#include "solver/travail.h"

namespace sudoku {

// The kernel of noyau.h can do this grid: its side is 9 to 64, its symbols differ, every cell holds one of
// them or nothing, Etat 0 or 1.
bool NoyauConvient(const Grille& grille);

// For runs on such grids of side N. The player's grid is brought up to date when a run ends or somebody
// looks.
std::unique_ptr<Travail> FabriqueTravailNoyau(int N, Evaluateur& evaluateur);

}  // namespace sudoku
