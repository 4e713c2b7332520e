#pragma once

#include "engine/voies.h"

// Tables made of a board's contents, lanes for one unit at a time.
namespace sudoku::SUDOKU_MOTEUR {
namespace {

// What is left of all symbols in each lane without `prises` and those of unit number n of `symboles`,
// register by register.
template <int S>
SUDOKU_EN_LIGNE auto Laisse(const Voies<S>& prises, const MotDe<S>* symboles, int n,
                            const Voies<S, 1>& ouvertes) {
  return [&prises, &ouvertes, laissent = kTousDe<S> & ~Voie<S>(symboles, n)](int i) SUDOKU_LAMBDA_EN_LIGNE {
    return ~prises.r[i] & Partout<S>(laissent, i) & ouvertes.r[i % Voies<S, 1>::kTous];
  };
}

// Calls f(row, candidates by column, lanes of its open cells) for each row; candidates(i) is their register
// i.
template <int S, class F>
SUDOKU_EN_LIGNE void ChaqueLigne(const Contenus<S>& contenus, F f) {
  const Voies<S> colonnes = Lit<S>(contenus.symboles[kColonne]);
  ChaqueConstante<S>([&](auto bande) {
    const Voies<S> prises = Etire<S, S, 1>(contenus.symboles[kCarre], bande) | colonnes;
    for (int l = bande * S; l < (bande + 1) * S; ++l) {
      const Voies<S, 1> ouvertes = Etale<S>(Voie<S>(contenus.ouvertes[kLigne], l));
      f(l, Laisse<S>(prises, contenus.symboles[kLigne], l, ouvertes), ouvertes);
    }
  });
}

// The same for each column, by row.
template <int S, class F>
SUDOKU_EN_LIGNE void ChaqueColonne(const Contenus<S>& contenus, F f) {
  const Voies<S> lignes = Lit<S>(contenus.symboles[kLigne]);
  ChaqueConstante<S>([&](auto pile) {
    const Voies<S> prises = Etire<S, 1, S>(contenus.symboles[kCarre], pile) | lignes;
    for (int c = pile * S; c < (pile + 1) * S; ++c) {
      const Voies<S, 1> ouvertes = Etale<S>(Voie<S>(contenus.ouvertes[kColonne], c));
      f(c, Laisse<S>(prises, contenus.symboles[kColonne], c, ouvertes));
    }
  });
}

// The parts k of a unit for which the units `de` hold number premiere + k * pas, a lane a symbol.
template <int S>
SUDOKU_EN_LIGNE Voies<S> Etend(const BitsDe<S>* parts, const Voies<S>& de, int premiere, int pas) {
  Voies<S> etendues{};
  for (int k = 0; k < S; ++k) {
    const Voies<S, 1> la = Avec<S>(de, premiere + k * pas);
    Voies<S>::Chaque([&](int i) { etendues.r[i] |= la.r[i % Voies<S, 1>::kTous] & Partout<S>(parts[k], i); });
  }
  return etendues;
}

// Calls f(unit, places by symbol) for each unit; places(i) is their register i. The places of a symbol in a
// unit are its open cells but for those in units that have the symbol.
template <int S, class F>
SUDOKU_EN_LIGNE void ChaquePlaces(const Contenus<S>& contenus, F f) {
  const auto& parts = kParts<S>;
  const Voies<S> lignes = Lit<S>(contenus.unites[kLigne]);
  const Voies<S> colonnes = Lit<S>(contenus.unites[kColonne]);
  const Voies<S> carres = Lit<S>(contenus.unites[kCarre]);
  const auto une = [&](int type, int numero, const Voies<S>& de, const Voies<S>& prises) {
    const Voies<S, 1> avec = Avec<S>(de, numero);
    const BitsDe<S> ouvertes = Voie<S>(contenus.ouvertes[type], numero);
    f(Unite(type, numero), [&](int i) SUDOKU_LAMBDA_EN_LIGNE {
      return Partout<S>(ouvertes, i) & ~(prises.r[i] | avec.r[i % Voies<S, 1>::kTous]);
    });
  };
  Voies<S> colonnesDuCarre[Taille(S)];
  for (int g = 0; g < S; ++g) colonnesDuCarre[g] = Etend<S>(parts.residu, colonnes, S * g, 1);
  for (int g = 0; g < S; ++g) {
    const Voies<S> prisesLigne = Etend<S>(parts.groupe, carres, S * g, 1) | colonnes;
    const Voies<S> prisesColonne = Etend<S>(parts.groupe, carres, g, S) | lignes;
    const Voies<S> prisesCarre = Etend<S>(parts.groupe, lignes, S * g, 1);
    for (int k = 0; k < S; ++k) {
      une(kLigne, S * g + k, lignes, prisesLigne);
      une(kColonne, S * g + k, colonnes, prisesColonne);
      une(kCarre, S * g + k, carres, prisesCarre | colonnesDuCarre[k]);
    }
  }
}

}  // namespace
}  // namespace sudoku::SUDOKU_MOTEUR
