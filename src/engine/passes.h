#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

#include "grid/game_state.h"

namespace sudoku::SUDOKU_MOTEUR {

// Solutions of this mode are proved ones (SolutionSure), otherwise they rest on unproved entries
// (SolutionPoss).
constexpr bool VersSure(std::int32_t mode) {
  return mode == kSaisieGrille || mode == kJeu;
}

// Calls f(mode) for each pass of an evaluation, see Moteur; one that gives true is the last.
template <class F>
void ChaquePasse(GameState& jeu, int VpPasses, bool seconde, F f) {
  for (int passe = seconde ? 2 : 1; passe <= VpPasses; ++passe) {
    if (VpPasses == 2) jeu.VgEtat = passe == 1 ? kJeu : kSecondePasse;
    if (f(jeu.VgEtat)) return;
  }
}

// The contents that count in this mode become the Possible of their cells and their solutions. All else that
// was known goes, but for SolutionSure in the second pass. True if some cell has Etat 2.
inline bool PoseContenus(Bloc& bloc, std::int32_t mode) {
  // Without a branch: a negative Etat is a large number here, and kVide has all bits.
  const auto dernier = static_cast<std::uint32_t>(DernierEtatQuiCompte(mode));
  const Code* const saisie = bloc.saisie.data();
  const std::int32_t* const etat = bloc.etat.data();
  Code* const possible = bloc.possibleTexte.data();
  const std::size_t n = bloc.saisie.size();
  int possibles = 0;
  for (std::size_t i = 1; i < n; ++i) {
    possibles |= etat[i] == kPossible ? 1 : 0;
    possible[i] = saisie[i] | (static_cast<std::uint32_t>(etat[i]) <= dernier ? 0 : kVide);
  }
  (VersSure(mode) ? bloc.sure : bloc.poss) = bloc.possibleTexte;
  if (mode != kSecondePasse) std::ranges::fill(VersSure(mode) ? bloc.poss : bloc.sure, kVide);
  return possibles != 0;
}

}  // namespace sudoku::SUDOKU_MOTEUR
