#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <type_traits>

// Sets of small numbers: symbols of the grid, places in a unit, units of a kind. Where a word holds them they
// are an unsigned integer, otherwise a Masque; what follows is the same for both.
namespace sudoku::SUDOKU_MOTEUR {

// W words of 64.
template <int W>
struct Masque {
  std::array<std::uint64_t, static_cast<std::size_t>(W)> mots{};

  constexpr std::uint64_t& operator[](int i) { return mots[static_cast<std::size_t>(i)]; }
  constexpr std::uint64_t operator[](int i) const { return mots[static_cast<std::size_t>(i)]; }

  // The smallest number that isn't below n; 64 W if there is none.
  constexpr int PremierDepuis(int n) const {
    int i = n >> 6;
    if (i == W) return n;
    std::uint64_t mot = (*this)[i] >> (n & 63) << (n & 63);
    while (mot == 0 && ++i < W) mot = (*this)[i];
    return mot == 0 ? 64 * W : 64 * i + std::countr_zero(mot);
  }

  constexpr Masque operator~() const {
    Masque m;
    for (int i = 0; i < W; ++i) m[i] = ~(*this)[i];
    return m;
  }
  constexpr Masque& operator&=(const Masque& b) {
    for (int i = 0; i < W; ++i) (*this)[i] &= b[i];
    return *this;
  }
  constexpr Masque& operator|=(const Masque& b) {
    for (int i = 0; i < W; ++i) (*this)[i] |= b[i];
    return *this;
  }
  constexpr Masque operator&(const Masque& b) const { return Masque(*this) &= b; }
  constexpr Masque operator|(const Masque& b) const { return Masque(*this) |= b; }
  constexpr bool operator==(const Masque& b) const {
    std::uint64_t difference = 0;
    for (int i = 0; i < W; ++i) difference |= (*this)[i] ^ b[i];
    return difference == 0;
  }
};

// Words that hold a set.
template <class B>
inline constexpr int kMotsDe = static_cast<int>(sizeof(B) > 8 ? sizeof(B) / 8 : 1);

template <class B>
constexpr std::uint64_t Mot(const B& b, int i) {
  if constexpr (std::is_integral_v<B>)
    return b;
  else
    return b[i];
}

template <class B>
constexpr B Bit(int n) {
  if constexpr (std::is_integral_v<B>) {
    return static_cast<B>(B{1} << n);
  } else {
    B b;
    b[n >> 6] = std::uint64_t{1} << (n & 63);
    return b;
  }
}
// The numbers 0 to n - 1.
template <class B>
constexpr B Premiers(int n) {
  B b{};
  for (int i = 0; i < n; ++i) b |= Bit<B>(i);
  return b;
}

template <class B>
constexpr bool Vide(const B& b) {
  return b == B{};
}
template <class B>
constexpr bool Contient(const B& b, int n) {
  return (Mot(b, n >> 6) >> (n & 63) & 1U) != 0;
}
template <class B>
constexpr int Nombre(const B& b) {
  int n = 0;
  for (int i = 0; i < kMotsDe<B>; ++i) n += std::popcount(Mot(b, i));
  return n;
}
// The smallest number; the set isn't empty.
template <class B>
constexpr int Premier(const B& b) {
  if constexpr (std::is_integral_v<B>)
    return std::countr_zero(b);
  else
    return b.PremierDepuis(0);
}
// Those of the set from n on; n is less than the bits of a word.
template <class B>
constexpr B Depuis(const B& b, int n) {
  if constexpr (std::is_integral_v<B>) {
    return static_cast<B>(b >> n << n);
  } else {
    B depuis = b;
    for (int i = 0; i < kMotsDe<B>; ++i) {
      const int d = n - 64 * i;
      depuis[i] = d >= 64 ? 0 : d > 0 ? b[i] >> d << d : b[i];
    }
    return depuis;
  }
}
// Calls f with each number, ascending.
template <class B, class F>
constexpr void Chaque(const B& b, F f) {
  if constexpr (std::is_integral_v<B>) {
    for (B m = b; m != 0; m &= static_cast<B>(m - 1)) f(std::countr_zero(m));
  } else {
    for (int i = 0; i < kMotsDe<B>; ++i) {
      for (std::uint64_t mot = b[i]; mot != 0; mot &= mot - 1) f(64 * i + std::countr_zero(mot));
    }
  }
}

}  // namespace sudoku::SUDOKU_MOTEUR
