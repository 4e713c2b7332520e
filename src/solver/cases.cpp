#include "solver/cases.h"

#include <algorithm>

namespace sudoku {

void Cases9::Vide() {
  *this = Cases9{};
  for (int g = 0; g < 3; ++g) {
    std::fill_n(&unites[g][9], kVoies - 9, std::uint16_t{0xFFFF});
    std::fill_n(&ouvertes[g][0], 9, std::uint16_t{0x1FF});
  }
}

void Cases9::Pose(int cellule, int symbole) {
  const auto bit = [](int n) { return static_cast<std::uint16_t>(1 << n); };
  const int l = cellule / 9;
  const int c = cellule % 9;
  const int numero[3] = {l / 3 * 3 + c / 3, l, c};
  const int place[3] = {l % 3 * 3 + c % 3, c, l};
  for (int g = 0; g < 3; ++g) {
    symboles[g][numero[g]] |= bit(symbole);
    unites[g][symbole] |= bit(numero[g]);
    ouvertes[g][numero[g]] &= static_cast<std::uint16_t>(~bit(place[g]));
  }
  valeur[cellule] = static_cast<std::uint8_t>(symbole + 1);
  ++remplies;
}

}  // namespace sudoku
