#pragma once

#include <array>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace sudoku {

// A number as an index.
constexpr std::size_t Rang(std::integral auto i) {
  return static_cast<std::size_t>(i);
}

// Kinds of units.
enum TypeUnite : std::uint8_t { kColonne = 0, kLigne = 1, kCarre = 2 };

inline constexpr int kTailleMax = 169;  // the next square, 196, has more cells than a 16-bit number counts

// N symbols make a grid: N is a perfect square, from 1 to 169.
bool TailleAcceptable(std::size_t longueur);

// The places of a grid of side N (block side S = root of N): which column, row and block a cell lies in, and
// which cells a unit has. Cells are numbered 1 to N*N row by row, units 1 to N (blocks row by row), places in
// a unit 0 to N-1 by ascending cell number.
class Geometrie {
 public:
  explicit Geometrie(int N);

  int N() const { return n_; }
  int S() const { return s_; }
  int Cases() const { return n_ * n_; }

  // Number of the unit of this kind that holds the cell.
  std::int16_t Unite(int type, int cellule) const { return unites_[Rang(type)][Rang(cellule)]; }
  // Place of the cell in that unit.
  std::int16_t Place(int type, int cellule) const { return places_[Rang(type)][Rang(cellule)]; }
  // The N cells of a unit.
  std::span<const std::int16_t> Serie(int type, int numero) const {
    return std::span(series_[Rang(type)]).subspan(Rang(numero - 1) * Rang(n_), Rang(n_));
  }

 private:
  int n_;
  int s_;
  std::array<std::vector<std::int16_t>, 3> unites_;
  std::array<std::vector<std::int16_t>, 3> places_;
  std::array<std::vector<std::int16_t>, 3> series_;
};

}  // namespace sudoku
