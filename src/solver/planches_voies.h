#pragma once

#include <cstring>

#include "engine/voies.h"
#include "solver/cases.h"

// What the planches of a board of side 9 say of all its cells at once.
namespace sudoku::SUDOKU_MOTEUR {
namespace {

// The same cells for all symbols, or one vector of words of a Planche.
using MotsDePlanche [[gnu::vector_size(sizeof(Planche))]] = std::uint32_t;

SUDOKU_EN_LIGNE MotsDePlanche Mots(const Planche& planche) {
  MotsDePlanche mots;
  std::memcpy(&mots, planche.mots, sizeof mots);
  return mots;
}
SUDOKU_EN_LIGNE Planche Rangee(const MotsDePlanche& mots) {
  Planche planche;
  std::memcpy(planche.mots, &mots, sizeof mots);
  return planche;
}

// The cells of a Planche, in two words.
struct Cellules {
  std::uint64_t six;  // rows
  std::uint64_t trois;

  SUDOKU_EN_LIGNE explicit Cellules(const MotsDePlanche& mots)
      : six(mots[0] | std::uint64_t{mots[1]} << 27), trois(mots[2]) {}
  SUDOKU_EN_LIGNE bool Aucune() const { return (six | trois) == 0; }
  // Calls f(cell, what reads the bit of this cell from others) for each.
  template <class F>
  SUDOKU_EN_LIGNE void Chaque(F f) const {
    for (std::uint64_t reste = six; reste != 0; reste &= reste - 1) {
      const int i = std::countr_zero(reste);
      f(i, [i](const Cellules& autres) { return static_cast<int>(autres.six >> i & 1); });
    }
    for (std::uint64_t reste = trois; reste != 0; reste &= reste - 1) {
      const int i = std::countr_zero(reste);
      f(54 + i, [i](const Cellules& autres) { return static_cast<int>(autres.trois >> i & 1); });
    }
  }
};

// Fills the cells that the contents leave one candidate, until there are none. False: a cell has no
// candidate.
[[gnu::noinline]] bool PoseSeules(Cases<3>& cases) {
  for (;;) {
    MotsDePlanche une{};
    MotsDePlanche deux{};
    MotsDePlanche numero[4] = {};  // the bits of the number of a cell's only symbol
    ChaqueConstante<9>([&](auto s) SUDOKU_LAMBDA_EN_LIGNE {
      const MotsDePlanche ici = Mots(cases.restes[s]);
      deux |= une & ici;
      une |= ici;
      for (int bit = 0; bit < 4; ++bit) {
        if ((s >> bit & 1) != 0) numero[bit] |= ici;
      }
    });
    const MotsDePlanche libres = Mots(cases.libres);
    if (!Cellules(libres & ~une).Aucune()) return false;
    const Cellules seules(libres & ~deux);
    if (seules.Aucune()) return true;
    const Cellules bits[4] = {Cellules(numero[0]), Cellules(numero[1]), Cellules(numero[2]),
                              Cellules(numero[3])};
    seules.Chaque([&](int cellule, auto lit) SUDOKU_LAMBDA_EN_LIGNE {
      cases.Pose(cellule, lit(bits[0]) | lit(bits[1]) << 1 | lit(bits[2]) << 2 | lit(bits[3]) << 3);
    });
  }
}

// The units of which a symbol may have to go from the rest of another, as a set: what stands in one part of a
// unit only, and in other parts of that part's other unit too.
SUDOKU_EN_LIGNE std::uint32_t UnitesConfinees(const Cases<3>& cases) {
  constexpr std::uint32_t kParts = 0x1249249;  // of the three parts of a word's lines, the first bits
  constexpr std::uint32_t kPremieres = 0x40201;
  constexpr std::uint32_t kDernieres = kPremieres << 6;
  const MotsDePlanche libres = Mots(cases.libres);
  MotsDePlanche lignes{};
  MotsDePlanche carres{};
  ChaqueConstante<9>([&](auto s) SUDOKU_LAMBDA_EN_LIGNE {
    const MotsDePlanche places = Mots(cases.restes[s]) & libres;
    const MotsDePlanche ici = (places | places >> 1 | places >> 2) & kParts;
    const MotsDePlanche plusieurs = ((places | places >> 1) & places >> 2) | (places & places >> 1);
    const MotsDePlanche carre = (ici >> 9 | ici << 18 | ici >> 18 | ici << 9) & kParts;
    const MotsDePlanche ligne = ((ici >> 3 | ici << 3) & ~kDernieres & ~kPremieres & kParts) |
                                ((ici >> 3 | ici >> 6) & kPremieres) | ((ici << 3 | ici << 6) & kDernieres);
    lignes |= plusieurs & carre & ~ligne;
    carres |= plusieurs & ligne & ~carre;
  });
  lignes |= lignes >> 3 | lignes >> 6;
  lignes &= kPremieres;
  const Planche l = Rangee(lignes | lignes >> 6 | lignes >> 12);
  const Planche c = Rangee(carres | carres >> 9 | carres >> 18);
  std::uint32_t unites = 0;
  for (int n = 0; n < 3; ++n) {
    unites |= (l.mots[n] & 0111) << (9 * n + Unite(kLigne, 0));
    unites |= (l.mots[3 + n] & 0111) << (9 * n + Unite(kColonne, 0));
    unites |= (c.mots[n] & 0111) << (9 * n + Unite(kCarre, 0));
    const std::uint32_t pile = c.mots[3 + n];
    unites |= ((pile & 1) | (pile & 010) << 6 | (pile & 0100) << 12) << (3 * n + Unite(kCarre, 0));
  }
  return unites;
}

}  // namespace
}  // namespace sudoku::SUDOKU_MOTEUR
