#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace sudoku::SUDOKU_MOTEUR {

inline std::size_t At(int i) {
  return static_cast<std::size_t>(i);
}

// A set of small numbers (symbols of the grid, places in a unit, units of a kind), W words of 64.
template <int W>
struct Masque {
  std::array<std::uint64_t, static_cast<std::size_t>(W)> mots{};

  // The numbers 0 to n-1.
  static Masque Premiers(int n) {
    Masque m;
    for (int i = 0; i < W; ++i) {
      const int reste = n - 64 * i;
      m[i] = reste >= 64 ? ~std::uint64_t{0} : reste > 0 ? (std::uint64_t{1} << reste) - 1 : std::uint64_t{0};
    }
    return m;
  }

  std::uint64_t& operator[](int i) { return mots[static_cast<std::size_t>(i)]; }
  std::uint64_t operator[](int i) const { return mots[static_cast<std::size_t>(i)]; }

  bool Contient(int n) const { return (((*this)[n >> 6] >> (n & 63)) & 1U) != 0; }
  void Ajoute(int n) { (*this)[n >> 6] |= std::uint64_t{1} << (n & 63); }
  void Enleve(int n) { (*this)[n >> 6] &= ~(std::uint64_t{1} << (n & 63)); }

  bool Vide() const {
    std::uint64_t tous = 0;
    for (const auto mot : mots) tous |= mot;
    return tous == 0;
  }
  int Compte() const {
    int n = 0;
    for (const auto mot : mots) n += std::popcount(mot);
    return n;
  }
  // The smallest number; the set isn't empty.
  int Premier() const {
    int i = 0;
    while ((*this)[i] == 0) ++i;
    return 64 * i + std::countr_zero((*this)[i]);
  }
  // The smallest number that isn't below n; 64 W if there is none.
  int PremierDepuis(int n) const {
    int i = n >> 6;
    if (i == W) return n;
    std::uint64_t mot = (*this)[i] >> (n & 63) << (n & 63);
    while (mot == 0 && ++i < W) mot = (*this)[i];
    return mot == 0 ? 64 * W : 64 * i + std::countr_zero(mot);
  }
  bool Croise(const Masque& autre) const { return !(*this & autre).Vide(); }
  bool Dans(const Masque& autre) const { return Sauf(autre).Vide(); }

  Masque operator&(const Masque& b) const {
    return Combine(b, [](auto x, auto y) { return x & y; });
  }
  Masque operator|(const Masque& b) const {
    return Combine(b, [](auto x, auto y) { return x | y; });
  }
  // Those of this set that `b` lacks.
  Masque Sauf(const Masque& b) const {
    return Combine(b, [](auto x, auto y) { return x & ~y; });
  }
  // All of them, or none; without a branch.
  Masque Si(bool tous) const {
    return Combine(
        *this, [tous](auto x, auto) { return x & (std::uint64_t{0} - static_cast<std::uint64_t>(tous)); });
  }
  Masque& operator|=(const Masque& b) { return *this = *this | b; }
  bool operator==(const Masque& b) const {
    std::uint64_t difference = 0;
    for (int i = 0; i < W; ++i) difference |= (*this)[i] ^ b[i];
    return difference == 0;
  }

  // Calls f with each number, ascending.
  template <class F>
  void Chaque(F f) const {
    for (int i = 0; i < W; ++i) {
      for (std::uint64_t mot = (*this)[i]; mot != 0; mot &= mot - 1) f(64 * i + std::countr_zero(mot));
    }
  }

  // Calls f with each number from `depuis` on, descending.
  template <class F>
  void ChaqueEnDescendant(int depuis, F f) const {
    for (int i = W; i-- > 0;) {
      for (std::uint64_t mot = (*this)[i]; mot != 0;) {
        const int n = 64 * i + 63 - std::countl_zero(mot);
        if (n < depuis) return;
        f(n);
        mot &= ~(std::uint64_t{1} << (n & 63));
      }
    }
  }

  std::uint64_t Hache() const {
    std::uint64_t h = 0;
    for (const auto mot : mots) h = (h ^ mot) * 0x9E3779B97F4A7C15U;
    return h ^ (h >> 29);
  }

 private:
  template <class F>
  Masque Combine(const Masque& b, F f) const {
    Masque m;
    for (int i = 0; i < W; ++i) m[i] = f((*this)[i], b[i]);
    return m;
  }
};

}  // namespace sudoku::SUDOKU_MOTEUR
