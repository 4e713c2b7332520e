#pragma once

#include "grid/game_state.h"
#include "platform/conforts.h"
#include "platform/plateau.h"
#include "play/commands.h"

namespace sudoku {

// What the main window answers to a view that makes typing easier. A pasted grid is taken while the givens
// are typed, and at no other time.
Conforts ConfortsDuJeu(const GameState& jeu, const Plateau& plateau, Commands& commandes);

}  // namespace sudoku
