#pragma once

#include "engine/bits.h"
#include "engine/contenus.h"
#include "grid/geometrie.h"

// What units of a grid with blocks of side S share, for sets of any width.
namespace sudoku::SUDOKU_MOTEUR {
namespace {

// A figure of symbol `symbole`: its units and those it is confined to, kinds and sets of numbers - 1.
template <class Bits>
struct FigureDe {
  int symbole;
  TypeUnite type;
  Bits unites;
  TypeUnite type2;
  Bits cle;

  // By kind, first unit, symbol, other kind.
  int Ordre() const {
    constexpr int kPlus = kTailleMax + 1;
    return ((kPlus * type + Premier(unites)) * kPlus + symbole) * 3 + type2;
  }
};

template <class Bits>
struct Parts {
  int S;
  Bits groupe[13] = {};  // places in a row of a block, of a line
  Bits residu[13] = {};  // places in a column of a block

  constexpr explicit Parts(int s) : S(s) {
    for (int i = 0; i < S * S; ++i) {
      groupe[i / S] |= Bit<Bits>(i);
      residu[i % S] |= Bit<Bits>(i);
    }
  }

  // Cell, from 0, at a place of unit u.
  constexpr int Cellule(int u, int place) const {
    const int N = S * S;
    const int n = NumeroDe(u);
    if (TypeDe(u) == kLigne) return n * N + place;
    if (TypeDe(u) == kColonne) return place * N + n;
    return (n / S * S + place / S) * N + n % S * S + place % S;
  }
  // The unit of a kind that has the cell, and the cell's place in it.
  constexpr int UniteDe(int type, int cellule) const {
    const int l = cellule / (S * S);
    const int c = cellule % (S * S);
    return Unite(type, type == kLigne ? l : type == kColonne ? c : l / S * S + c / S);
  }
  constexpr int PlaceDe(int type, int cellule) const {
    const int l = cellule / (S * S);
    const int c = cellule % (S * S);
    return type == kLigne ? c : type == kColonne ? l : l % S * S + c % S;
  }

  struct Commune {
    int unite = -1;
    Bits places{};  // of that unit, which the first one has too
  };
  // The unit of another kind that has all these places of unit u, two or more; unite -1 if there is none.
  constexpr Commune UniteCommune(int u, const Bits& lieux) const {
    const int premier = Premier(lieux);
    const int bande = NumeroDe(u) / S;
    const int pile = NumeroDe(u) % S;
    const int g = premier / S;
    if (Vide(lieux & ~groupe[g])) {
      if (TypeDe(u) == kCarre) return {Unite(kLigne, bande * S + g), groupe[pile]};
      if (TypeDe(u) == kLigne) return {Unite(kCarre, bande * S + g), groupe[pile]};
      return {Unite(kCarre, g * S + bande), residu[pile]};
    }
    const int r = premier % S;
    if (TypeDe(u) == kCarre && Vide(lieux & ~residu[r]))
      return {Unite(kColonne, pile * S + r), groupe[bande]};
    return {};
  }

  // The places that the units of a figure have in each of those it is confined to. Where blocks are among
  // them all lie in one band or stack.
  constexpr Bits Dedans(const FigureDe<Bits>& f) const {
    if (f.type != kCarre && f.type2 != kCarre) return f.unites;
    Bits dedans{};
    Chaque(f.unites, [&](int i) {
      if (f.type == kCarre)
        dedans |= groupe[f.type2 == kColonne ? i / S : i % S];
      else
        dedans |= f.type == kColonne ? residu[i % S] : groupe[i % S];
    });
    return dedans;
  }
  // Numbers - 1 of the units of kind type2 that have these places of unit u, where one of the two is a
  // block.
  constexpr Bits Cle(int u, TypeUnite type2, const Bits& lieux) const {
    const int bande = NumeroDe(u) / S;
    const int pile = NumeroDe(u) % S;
    const int type = TypeDe(u);
    Bits cle{};
    for (int k = 0; k < S; ++k) {
      const bool colonnes = type == kCarre && type2 == kColonne;
      if (Vide(lieux & (colonnes ? residu[k] : groupe[k]))) continue;
      const int suite = colonnes ? pile * S + k : bande * S + k;
      cle |= Bit<Bits>(type == kColonne ? k * S + bande : suite);
    }
    return cle;
  }
};

}  // namespace
}  // namespace sudoku::SUDOKU_MOTEUR
