#pragma once

#include "platform/fenetre.h"
#include "play/cell_input.h"
#include "play/chrono.h"
#include "play/commands.h"
#include "play/voisins.h"

namespace sudoku {

// The front door: what the user does to the main window goes to the part that does it.
void BrancheFRMSudoku(Fenetre& fenetre, Commands& commandes, CellInput& saisie, Chrono& chrono,
                      Stockage& stockage, APropos& aPropos);

}  // namespace sudoku
