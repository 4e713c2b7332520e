#pragma once

#include <vector>

#include "grid/grille.h"

namespace sudoku {

// The sentences on a cell, without line ends, in the order of the deductions: none after "Seule solution…",
// none that what stands there already holds.
std::vector<Texte> Phrases(const Grille& VpGrille, int cellule);

// The same as one text, each sentence ended by CR LF: the field Explications of a cell.
Texte Explications(const Grille& VpGrille, int cellule);

}  // namespace sudoku
