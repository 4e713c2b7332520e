#pragma once

#include <cstdint>

#include "engine/contenus.h"

namespace sudoku {

// A board of blocks of side S that a search writes on. Cells and symbols count from 0.
template <int S>
struct Cases : Contenus<S> {
  using typename Contenus<S>::Mot;
  using Contenus<S>::N;

  std::uint8_t valeur[Taille(N * N)];  // 0 for an open cell, else the symbol + 1
  std::uint16_t remplies;              // cells that aren't open

  // All cells are open.
  void Efface();
  // The cell, an open one, holds the symbol.
  void Pose(int cellule, int symbole);
};

// Made in cases.cpp, so that no version of the hot code makes one that others would share.
extern template struct Cases<3>;
extern template struct Cases<4>;
extern template struct Cases<5>;
extern template struct Cases<6>;
extern template struct Cases<7>;
extern template struct Cases<8>;

}  // namespace sudoku
