#pragma once

#include <string>

#include "platform/fenetre.h"
#include "qt/fenetre_qt.h"

namespace sudoku {

// Where the window on the screen differs from the record that it shows: captions, texts, states, items,
// menus, and of the board the colours at pixels and the field over the focused box. Empty: nowhere.
std::string Difference(FenetreQt& ecran, const Fenetre& fenetre);

}  // namespace sudoku
