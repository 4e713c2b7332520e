#pragma once

#include <cstdint>

namespace sudoku {

// A set of cells of a board of side 9, twice over: three words of three rows each, bit 9 * (row % 3) +
// column, and three of three columns each, bit 9 * (column % 3) + row. Two words fill it up and stay 0.
struct Planche {
  static constexpr int kMots = 8;
  alignas(32) std::uint32_t mots[kMots] = {};

  constexpr void Ajoute(int ligne, int colonne) {
    mots[ligne / 3] |= std::uint32_t{1} << (9 * (ligne % 3) + colonne);
    mots[3 + colonne / 3] |= std::uint32_t{1} << (9 * (colonne % 3) + ligne);
  }
};

// What a symbol in a cell leaves: of the cells where the symbol may stand, and of the open cells.
struct TableDesPlanches {
  struct Apres {
    Planche reste;
    Planche libres;
  };
  Apres apres[81];
  Planche toutes;

  constexpr TableDesPlanches() : apres() {
    for (int i = 0; i < 81; ++i) toutes.Ajoute(i / 9, i % 9);
    for (int i = 0; i < 81; ++i) {
      for (int j = 0; j < 81; ++j) {
        const bool carre = i / 27 == j / 27 && i % 9 / 3 == j % 9 / 3;
        if (i / 9 != j / 9 && i % 9 != j % 9 && !carre) apres[i].reste.Ajoute(j / 9, j % 9);
        if (i != j) apres[i].libres.Ajoute(j / 9, j % 9);
      }
    }
  }
};
inline constexpr TableDesPlanches kPlanches;

}  // namespace sudoku
