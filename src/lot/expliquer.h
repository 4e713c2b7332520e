#pragma once

#include "lot/appel.h"
#include "lot/equipe.h"

namespace sudoku::lot {

// Evaluates grids once and writes all that is known of every cell, one JSON object a line:
//   {"verdict":51,"mode":2,"cases":[{"index":1,"valeur":"","etat":0,"possible":"257","sure":"","poss":"",
//   "explications":["Le 7 du carré 1 se trouve dans les cases 1, 2"]}, … ]}
// keys in this order, no blank outside strings; or the same as text for a person.
std::unique_ptr<Ouvrier> FabriqueExpliquer(const Appel& appel);

}  // namespace sudoku::lot
