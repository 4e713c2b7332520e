#pragma once

#include <cstdint>

namespace sudoku {

// What counts in the cells of a board of side 9, as masks of 16 bits. Cells are 0 to 80 here, symbols, units
// and places in a unit 0 to 8. A cell is open when nothing in it counts.
struct Cases9 {
  // Symbols in each row, column and block; lanes 9 to 15 stay 0.
  alignas(32) std::uint16_t lignes[16];
  alignas(32) std::uint16_t colonnes[16];
  alignas(32) std::uint16_t carres[16];
  // The same turned round: rows, columns and blocks that have a symbol, by symbol; lanes 9 to 15 are all
  // ones.
  alignas(32) std::uint16_t lignesDe[16];
  alignas(32) std::uint16_t colonnesDe[16];
  alignas(32) std::uint16_t carresDe[16];
  std::uint16_t ouvertes[3][9];  // places of open cells in each block, row, column
  std::uint8_t valeur[81];       // 0 for an open cell, else the symbol + 1
  std::uint8_t remplies;         // cells that aren't open

  // All cells are open.
  void Vide();
  // The cell, an open one, holds the symbol.
  void Pose(int cellule, int symbole);
};

// Which solutions deductions write: proved ones, where each unit leaves aside what is proved in it already,
// or those that rest on unproved entries.
enum class Mode9 { kSur, kPossible };

}  // namespace sudoku
