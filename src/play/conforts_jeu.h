#pragma once

#include "platform/conforts.h"

namespace sudoku {

class FRMSudoku;

// What the main window answers to a view that makes typing easier. A pasted grid is taken while the givens
// are typed, and at no other time.
Conforts ConfortsDuJeu(FRMSudoku& frm);

}  // namespace sudoku
