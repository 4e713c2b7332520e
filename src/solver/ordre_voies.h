#pragma once

#include "solver/neuf_voies.h"

// Whether a board of side 9 that a search has come to is the one that it would come to in any other order.
//
// A set is of equal lanes: three cells that hold ab, bc and ac are none, and were one as long as all held
// abc. So what is filled in the end can depend on what was found first. It doesn't where
//   1. what led to a filled cell took candidates by singles, locked candidates and sets of two only;
//   2. in the end no symbol stands twice in a unit, each has a place in every unit, and no set is active: no
//      lanes, equal or not, have as many numbers between them as they are, one of which another lane has too.
// Take another order, as long as its cells hold at least what they hold in the end here. What it finds next
// lies, smaller perhaps, in the end's board too and has nothing to take there (2): the cells still hold at
// least that afterwards. Where it has come to its own end, go the way again that was gone here. A locked
// candidate or a single is still one then, for it keeps at least what it has in the end here. Two equal lanes
// are as they were, or one has lost a number, so that both are singles by now, and filled: all that the two
// take has gone (1). So both fill the same cells. A kind of deduction that comes in has to have its place in
// this: what it does on fewer candidates, in 1, and how one that is left is seen, in 2.
namespace sudoku::SUDOKU_MOTEUR {
namespace {

// Where deductions have come to their end, every lane holds two numbers or more, and sets of two are done,
// and with them those of all lanes but two. Fewer lanes than this have no others.
inline constexpr int kVoiesDUnEnsemble = 6;

// Some of the lanes are an active set: the candidates of a unit's cells, the places of its symbols, or the
// places of a symbol in rows, in columns; of such two tables, which are each other's transpose, one has a set
// of three, or of four where there are eight lanes or more. Two of its lanes hold all its numbers.
SUDOKU_EN_LIGNE bool EnsembleActif(const Voies<3>& voies, int taille) {
  alignas(64) MotDe<3> v[Taille(Largeur<3>::kVoies)];
  Ecrit<3>(v, voies);
  BitsDe<3> petites = BitsNonNulles(voies) & ~EnBits(PlusDe(taille, Comptes(voies)));
  for (; petites != 0; petites &= petites - 1) {
    const BitsDe<3> premiere = v[std::countr_zero(petites)];
    for (BitsDe<3> suite = petites & (petites - 1); suite != 0; suite &= suite - 1) {
      const BitsDe<3> nombres = premiere | v[std::countr_zero(suite)];
      const int combien = std::popcount(nombres);
      if (combien > taille) continue;
      const BitsDe<3> touchees = BitsNonNulles(voies & Partout<3>(nombres));
      const BitsDe<3> dehors = BitsNonNulles(voies & Partout<3>(kLieux<3>.tous & ~nombres));
      if (std::popcount(touchees) > combien && std::popcount(touchees & ~dehors) >= combien) return true;
    }
  }
  return false;
}

// One of four tables has an active set. Most are seen to have none while they are bytes.
SUDOKU_EN_LIGNE bool EnsembleActif(const MotDe<3>* const (&tables)[4]) {
  const std::uint32_t trois = TroisEnTrois(QuatreTables(tables));
  for (int k = 0; k < 4; ++k) {
    const Voies<3> voies = Lit<3>(tables[k]);
    const int taille = std::popcount(BitsNonNulles(voies)) < 8 ? 3 : 4;
    if ((taille == 4 || (trois >> 8 * k & 0xFF) != 0) && EnsembleActif(voies, taille)) return true;
  }
  return false;
}

}  // namespace
}  // namespace sudoku::SUDOKU_MOTEUR
