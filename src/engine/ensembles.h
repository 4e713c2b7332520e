#pragma once

#include "engine/bits_voies.h"

// The search for sets: as many equal lanes as each of them holds numbers.
namespace sudoku::SUDOKU_MOTEUR {
namespace {

// For each lane: itself and those of the lanes i + d, i + 2d, ... that are equal to it, so many of these as
// the sequence is long.
template <int S, int d, int... k>
SUDOKU_EN_LIGNE Voies<S> CompteEgales(const Voies<S>& cles, std::integer_sequence<int, k...>) {
  Voies<S> egales = Partout<S>(1);
  ((egales = egales - Egales(cles, Descend<S, (k + 1) * d>(cles))), ...);
  return egales;
}

// Bits i where lane i and the lanes i + d to i + (S-1)d equal to it are as many as `comptes` says, two or
// more: a set of equal lanes begins there.
template <int S, int d>
SUDOKU_EN_LIGNE BitsDe<S> EnsemblesVoisins(const Voies<S>& cles, const Voies<S>& comptes) {
  const Voies<S> egales = CompteEgales<S, d>(cles, std::make_integer_sequence<int, S - 1>());
  return BitsEgales(egales, comptes) & BitsNonNulles(comptes & ~Partout<S>(1));
}

// All ones, and as many zeros: from number d on, a vector of ones without its last d lanes.
template <int S>
struct UnsPuisZeros {
  alignas(64) MotDe<S> mots[Taille(2 * Largeur<S>::kVoies)] = {};
  constexpr UnsPuisZeros() {
    for (int i = 0; i < Largeur<S>::kVoies; ++i) mots[i] = static_cast<MotDe<S>>(~MotDe<S>{0});
  }
};
template <int S>
inline constexpr UnsPuisZeros<S> kUnsPuisZeros;

// The same with all later lanes, as they lie at p; behind them, as many may be read that don't count.
template <int S, int... avant>
SUDOKU_EN_LIGNE BitsDe<S> EnsemblesSuivants(const MotDe<S>* p, const Voies<S>& comptes,
                                            std::integer_sequence<int, avant...>) {
  const Voies<S> cles = Lit<S>(p);
  Voies<S> egales = Partout<S>(1);
  const auto compare = [&](auto d) SUDOKU_LAMBDA_EN_LIGNE {
    Voies<S> memes = Egales(cles, Lit<S>(p + d));
    if constexpr (S * S - 1 + d >= Largeur<S>::kVoies) memes = memes & Lit<S>(kUnsPuisZeros<S>.mots + d);
    egales = egales - memes;
  };
  (compare(std::integral_constant<int, avant + 1>()), ...);
  return BitsEgales(egales, comptes) & BitsNonNulles(comptes & ~Partout<S>(1));
}

// The same; equal lanes have equal `comptes`. A few lanes are soonest all compared: it takes no branch.
template <int S>
SUDOKU_EN_LIGNE BitsDe<S> Ensembles(const MotDe<S>* p, const Voies<S>& cles, const Voies<S>& comptes) {
  if constexpr (S <= 4) {
    return EnsemblesSuivants<S>(p, comptes, std::make_integer_sequence<int, S * S - 1>());
  } else {
    // Lanes with the same count together: most are seen to be too few before any two are compared.
    alignas(64) MotDe<S> c[Taille(Largeur<S>::kVoies)];
    alignas(64) MotDe<S> n[Taille(Largeur<S>::kVoies)];
    Ecrit<S>(c, cles);
    Ecrit<S>(n, comptes);
    BitsDe<S> debuts = 0;
    BitsDe<S> reste = BitsNonNulles(comptes & ~Partout<S>(1));
    while (reste != 0) {
      const BitsDe<S> compte = n[std::countr_zero(reste)];
      BitsDe<S> memes = reste & BitsEgales(comptes, Partout<S>(compte));
      reste &= ~memes;
      while (std::popcount(memes) >= static_cast<int>(compte)) {
        BitsDe<S> egales = memes & BitsEgales(cles, Partout<S>(c[std::countr_zero(memes)]));
        memes &= ~egales;
        int deTrop = std::popcount(egales) - static_cast<int>(compte);
        if (deTrop < 0) continue;
        for (; deTrop > 0; --deTrop) egales &= egales - 1;
        debuts |= egales & (~egales + 1);
      }
    }
    return debuts;
  }
}

}  // namespace
}  // namespace sudoku::SUDOKU_MOTEUR
