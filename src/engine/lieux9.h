#pragma once

#include <cstdint>

#include "engine/deductions9.h"

namespace sudoku::SUDOKU_MOTEUR {
namespace {

// Where a cell lies: its units and its place in each, by kind.
struct Lieu9 {
  std::uint8_t unite[3];
  std::uint8_t place[3];
  std::uint32_t unites = 0;  // a bit each
};

// The parts that a unit shares with units of other kinds: 6 for a block, 3 for a line.
struct Croisements9 {
  struct Un {
    std::uint8_t unite = 0;       // the other one
    std::uint16_t horsDeIci = 0;  // places of this unit outside the part
    std::uint16_t horsDeLa = 0;   // of the other one
  };
  Un un[6];
};

struct TousLesLieux9 {
  Lieu9 lieux[81];
  std::uint8_t cellules[27][9] = {};
  Croisements9 croisements[27];

  constexpr TousLesLieux9() : lieux(), croisements() {
    for (int i = 0; i < 81; ++i) {
      const int ligne = i / 9;
      const int colonne = i % 9;
      const int numero[3] = {ligne / 3 * 3 + colonne / 3, ligne, colonne};
      const int place[3] = {ligne % 3 * 3 + colonne % 3, colonne, ligne};
      for (int g = 0; g < 3; ++g) {
        const int u = Unite(g, numero[g]);
        lieux[i].unite[g] = static_cast<std::uint8_t>(u);
        lieux[i].place[g] = static_cast<std::uint8_t>(place[g]);
        lieux[i].unites |= 1U << u;
        cellules[u][place[g]] = static_cast<std::uint8_t>(i);
      }
    }
    for (int n = 0; n < 9; ++n) {
      for (int k = 0; k < 3; ++k) {
        const int premiers = n / 3;
        const int derniers = n % 3;
        Croise(kCarre9, n, k, Unite(kLigne9, 3 * premiers + k), kGroupe[k], kGroupe[derniers]);
        Croise(kCarre9, n, 3 + k, Unite(kColonne9, 3 * derniers + k), kResidu[k], kGroupe[premiers]);
        Croise(kLigne9, n, k, Unite(kCarre9, 3 * premiers + k), kGroupe[k], kGroupe[derniers]);
        Croise(kColonne9, n, k, Unite(kCarre9, 3 * k + premiers), kGroupe[k], kResidu[derniers]);
      }
    }
  }

 private:
  constexpr void Croise(int genre, int numero, int k, int unite, int ici, int la) {
    croisements[Unite(genre, numero)].un[k] = {static_cast<std::uint8_t>(unite),
                                               static_cast<std::uint16_t>(kTous & ~ici),
                                               static_cast<std::uint16_t>(kTous & ~la)};
  }
};
constexpr TousLesLieux9 kLieux9;

}  // namespace
}  // namespace sudoku::SUDOKU_MOTEUR
