#pragma once

#include "grid/game_state.h"
#include "platform/conforts.h"
#include "platform/plateau.h"
#include "play/commands.h"
#include "play/saisies.h"

namespace sudoku {

// What the main window answers to a view that makes typing easier.
Conforts ConfortsDuJeu(const GameState& jeu, const Plateau& plateau, Saisies& saisies, Commands& commandes);

}  // namespace sudoku
