#pragma once

#include "lot/appel.h"

namespace sudoku::lot {

// Tells the whole road from each grid to its solution: the turns of the solve pass that fill cells, with the
// sentences that led there, and every supposition and refutation of the search. What comes out at the end is
// what resoudre gives. Result: the exit status, as Deroule's.
int Demontre(const Appel& appel);

}  // namespace sudoku::lot
