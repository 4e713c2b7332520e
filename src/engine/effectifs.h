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

// Up to 64 masks: the counts for n below 8 are bytes of one word, those above are counted together, so that
// for them the answer may be "yes" too often.
template <>
class Effectifs<1> {
 public:
  void Vide() { comptes_ = 0, grands_ = 0; }
  void Note(int n) {
    if (n < 8) {
      comptes_ += std::uint64_t{1} << (8 * n);
    } else {
      ++grands_;
    }
  }
  bool Assez() const { return Suffisants() != 0 || grands_ >= 8; }
  bool Assez(int n) const { return n < 8 ? ((Suffisants() >> (8 * n)) & 0x80U) != 0 : grands_ >= n; }

 private:
  // The top bit of byte n: n masks or more.
  std::uint64_t Suffisants() const { return (comptes_ + 0x797A7B7C7D7E0000U) & 0x8080808080800000U; }

  std::uint64_t comptes_ = 0;
  int grands_ = 0;
};

}  // namespace sudoku::SUDOKU_MOTEUR
