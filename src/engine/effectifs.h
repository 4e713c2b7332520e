#pragma once

#include <algorithm>
#include <array>
#include <cstdint>

#include "engine/masque.h"
#include "grid/geometrie.h"

namespace sudoku::SUDOKU_MOTEUR {

// How many masks of a list have n numbers, for each n. A set is n equal masks of n numbers, so that most
// lists are seen to hold none by these counts alone, before any mask is compared.
template <int W>
class Effectifs {
 public:
  void Vide() { comptes_.fill(0), assez_ = false; }
  // One more mask of n numbers.
  void Note(int n) { assez_ |= ++comptes_[At(n)] == n && n > 1; }
  // For some n above 1 there are n masks or more.
  bool Assez() const { return assez_; }
  // There are n masks of n numbers, or more; n above 1.
  bool Assez(int n) const { return comptes_[At(n)] >= n; }

 private:
  std::array<std::uint8_t, kTailleMax + 1> comptes_{};
  bool assez_ = false;
};

// Up to 64 masks: the counts are bytes of one word. Those for n above 6 are one, so that for them the answer
// may be "yes" too often.
template <>
class Effectifs<1> {
 public:
  void Vide() { comptes_ = 0; }
  void Note(int n) { comptes_ += std::uint64_t{1} << Octet(n); }
  // The top bit of byte n: n masks or more.
  bool Assez() const { return ((comptes_ + 0x797A7B7C7D7E0000U) & 0x8080808080800000U) != 0; }
  bool Assez(int n) const { return static_cast<int>((comptes_ >> Octet(n)) & 0xFFU) >= n; }

 private:
  static int Octet(int n) { return 8 * std::min(n, 7); }

  std::uint64_t comptes_ = 0;
};

}  // namespace sudoku::SUDOKU_MOTEUR
