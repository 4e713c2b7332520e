#pragma once

#include "grid/grille.h"
#include "text/texte.h"

namespace sudoku {

// State strings, the form in which a grid is stored: two characters a cell, in the order of the cells,
//
//   content   the first character typed, a blank for an empty cell
//   state     Etat as one digit
//
// so that "10 042" is a given 1, an empty cell and a 4 that may be right.

// All cells, as they are.
Texte ChaineEtats(const Grille& VpGrille);
// The givens alone: every state is 0, and what was entered on them is a blank.
Texte ChaineInitiale(const Grille& VpGrille);
// Some cell that is no given holds a symbol.
bool Jouee(const Grille& VpGrille);

// Puts the cells of such a string into the grid, unjudged; what goes beyond its last cell is ignored. Throws
// Erreur 13 at the first state that is missing or no digit; the cells before it are loaded.
void ChargeCases(const Grille& VpGrille, TexteVue chaine);

}  // namespace sudoku
