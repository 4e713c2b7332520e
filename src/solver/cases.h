#pragma once

#include <cstdint>

#include "engine/contenus.h"

namespace sudoku {

// A board of side 9 that a search writes on. Cells are 0 to 80, symbols 0 to 8.
struct Cases9 : Contenus<3> {
  std::uint8_t valeur[81];  // 0 for an open cell, else the symbol + 1
  std::uint8_t remplies;    // cells that aren't open

  // All cells are open.
  void Vide();
  // The cell, an open one, holds the symbol.
  void Pose(int cellule, int symbole);
};

}  // namespace sudoku
