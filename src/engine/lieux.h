#pragma once

#include <cstdint>

#include "engine/contenus.h"

namespace sudoku {

// Words for a set of units of all kinds.
template <int S>
inline constexpr int kMotsUnites = (3 * S * S + 63) / 64;

// Where a cell lies: its units and its place in each, by kind.
template <int S>
struct Lieu {
  std::uint8_t unite[3] = {};
  std::uint8_t place[3] = {};
  std::uint64_t unites[Taille(kMotsUnites<S>)] = {};  // the three of them
};

// The parts that a unit shares with units of other kinds: 2S for a block, S for a line.
template <int S>
struct Croisements {
  struct Un {
    std::uint8_t unite = 0;                   // the other one
    typename Largeur<S>::Bits horsDeIci = 0;  // places of this unit outside the part
    typename Largeur<S>::Bits horsDeLa = 0;   // of the other one
  };
  Un un[Taille(2 * S)];
};

// For sides whose sets are one word.
template <int S>
struct TousLesLieux {
  static constexpr int N = S * S;
  using Bits = typename Largeur<S>::Bits;

  Bits tous = 0;                // symbols, places, units of a kind
  Bits groupe[Taille(S)] = {};  // places in a row of a block, of a line
  Bits residu[Taille(S)] = {};  // places in a column of a block
  Lieu<S> lieux[Taille(N * N)];
  std::uint16_t cellules[Taille(3 * N)][Taille(N)] = {};
  Croisements<S> croisements[Taille(3 * N)];

  constexpr TousLesLieux() : lieux(), croisements() {
    for (int i = 0; i < N; ++i) {
      const Bits bit = Bits{1} << i;
      tous |= bit;
      groupe[i / S] |= bit;
      residu[i % S] |= bit;
    }
    for (int i = 0; i < N * N; ++i) Place(i);
    for (int n = 0; n < N; ++n) {
      for (int k = 0; k < S; ++k) {
        const int premiers = n / S;
        const int derniers = n % S;
        Croise(kCarre, n, k, Unite(kLigne, S * premiers + k), groupe[k], groupe[derniers]);
        Croise(kCarre, n, S + k, Unite(kColonne, S * derniers + k), residu[k], groupe[premiers]);
        Croise(kLigne, n, k, Unite(kCarre, S * premiers + k), groupe[k], groupe[derniers]);
        Croise(kColonne, n, k, Unite(kCarre, S * k + premiers), groupe[k], residu[derniers]);
      }
    }
  }

 private:
  constexpr void Place(int cellule) {
    const int ligne = cellule / N;
    const int colonne = cellule % N;
    const int numero[3] = {colonne, ligne, ligne / S * S + colonne / S};
    const int place[3] = {ligne, colonne, ligne % S * S + colonne % S};
    for (int g = 0; g < 3; ++g) {
      const int u = Unite(g, numero[g]);
      lieux[cellule].unite[g] = static_cast<std::uint8_t>(u);
      lieux[cellule].place[g] = static_cast<std::uint8_t>(place[g]);
      lieux[cellule].unites[u / 64] |= std::uint64_t{1} << u % 64;
      cellules[u][place[g]] = static_cast<std::uint16_t>(cellule);
    }
  }
  constexpr void Croise(int type, int numero, int k, int unite, Bits ici, Bits la) {
    croisements[Unite(type, numero)].un[k] = {static_cast<std::uint8_t>(unite), tous & ~ici, tous & ~la};
  }
};
// All versions of the hot code share these tables.
template <int S>
inline constexpr TousLesLieux<S> kLieux;

}  // namespace sudoku
