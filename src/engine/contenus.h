#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "grid/geometrie.h"

namespace sudoku {

// Units of all kinds as one number, in the order in which the engine goes through them: block, row, column of
// each number. Both count from 0.
constexpr int Unite(int type, int numero) {
  return 3 * numero + kCarre - type;
}
constexpr int NumeroDe(int u) {
  return u / 3;
}
constexpr TypeUnite TypeDe(int u) {
  return static_cast<TypeUnite>(kCarre - u % 3);
}

// A number of elements, for the bounds of an array.
constexpr std::size_t Taille(int n) {
  return static_cast<std::size_t>(n);
}

// Words for a grid with blocks of side S, up to 13. Cells, symbols, units and places count from 0 here.
template <int S>
struct Largeur {
  static constexpr int N = S * S;
  // Words that a set of symbols, of places in a unit, or of units of one kind takes.
  static constexpr int kMots = (N + 63) / 64;
  // Such a set, where it is one word.
  using Bits = std::conditional_t<N <= 32, std::uint32_t, std::uint64_t>;
  // The same, as it lies in memory side by side with others of its kind: kVoies words, N and some to fill up.
  // Sets of several words are so many rows of them, one behind the other.
  using Mot = std::conditional_t<N <= 16, std::uint16_t, Bits>;
  static constexpr int kVoies = N <= 16 ? 16 : N <= 32 ? 32 : (N + 7) / 8 * 8;
  static constexpr std::size_t kAlignement = kVoies * sizeof(Mot) > 32 ? 64 : 32;
};

// What counts in the cells of a board. A cell is open when nothing in it counts.
template <int S>
struct Contenus {
  using Mot = typename Largeur<S>::Mot;
  static constexpr int N = Largeur<S>::N;
  static constexpr int kVoies = Largeur<S>::kVoies;
  static constexpr int kMots = Largeur<S>::kMots;

  // By kind: the symbols in each unit; words from N on stay 0.
  alignas(Largeur<S>::kAlignement) Mot symboles[3][Taille(kMots * kVoies)];
  // The same turned round, the units that have a symbol, by symbol; words from N on are all ones.
  alignas(Largeur<S>::kAlignement) Mot unites[3][Taille(kMots * kVoies)];
  // Places of open cells in each unit.
  Mot ouvertes[3][Taille(kMots == 1 ? N : kMots * kVoies)];
};

// Which solutions deductions write: proved ones, where each unit leaves aside what is proved in it already,
// or those that rest on unproved entries.
enum class Appui { kSur, kPossible };

}  // namespace sudoku
