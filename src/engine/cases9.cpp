#include "engine/cases9.h"

#include <cstring>

namespace sudoku {

void Cases9::Vide() {
  std::memset(this, 0, sizeof *this);
  for (int i = 9; i < 16; ++i) lignesDe[i] = colonnesDe[i] = carresDe[i] = 0xFFFF;
  for (int n = 0; n < 9; ++n) ouvertes[0][n] = ouvertes[1][n] = ouvertes[2][n] = 0x1FF;
}

void Cases9::Pose(int cellule, int symbole) {
  const auto bit = [](int n) { return static_cast<std::uint16_t>(1 << n); };
  const auto sauf = [](int n) { return static_cast<std::uint16_t>(~(1 << n)); };
  const int l = cellule / 9;
  const int c = cellule % 9;
  const int b = l / 3 * 3 + c / 3;
  lignes[l] |= bit(symbole);
  colonnes[c] |= bit(symbole);
  carres[b] |= bit(symbole);
  lignesDe[symbole] |= bit(l);
  colonnesDe[symbole] |= bit(c);
  carresDe[symbole] |= bit(b);
  ouvertes[0][b] &= sauf(l % 3 * 3 + c % 3);
  ouvertes[1][l] &= sauf(c);
  ouvertes[2][c] &= sauf(l);
  valeur[cellule] = static_cast<std::uint8_t>(symbole + 1);
  ++remplies;
}

}  // namespace sudoku
