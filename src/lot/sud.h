#pragma once

#include "lot/appel.h"

namespace sudoku::lot {

// Between text and game files. Result: the exit status, 1 where something could not be read.

// Reads a grid in any common form (see grid/grille_texte.h), or the lines that Exporte writes, and writes the
// game file for it to standard output.
int Importe(const Appel& appel);

// Writes what a game file holds as lines that the other commands read: the given grid, then each game of the
// library as a state string with its name behind a TAB.
int Exporte(const Appel& appel);

}  // namespace sudoku::lot
