#pragma once

#include "engine/trouve_voies.h"

namespace sudoku::SUDOKU_MOTEUR {
namespace {

template <int S>
template <class F>
void TrouveVoies<S>::ChaqueFigure(F f) {
  if (!tournees_) Tourne();
  // All as the places are now: a figure that is acted on changes the tables.
  Chaque(Base::SymbolesSales(), [&](int s) {
    const Mot* const colonnes = parSymbole_[kColonne][s];
    const Mot* const lignes = parSymbole_[kLigne][s];
    if (Aucune(Lit<S>(lignes))) return;
    FiguresDe(s, Lit<S>(colonnes), Lit<S>(lignes), Lit<S>(parSymbole_[kCarre][s]), {colonnes, lignes}, f);
  });
}

// Turns words round that fill as many rows as they lie side by side: word j of de(i) becomes word i of a(j).
template <int K, class De, class A>
SUDOKU_EN_LIGNE void TourneBloc(De de, A a) {
  using Mot = std::remove_cvref_t<decltype(*a(0))>;
  using Rangee [[gnu::vector_size(16)]] = Mot;
  Rangee r[Taille(K)];
  for (int i = 0; i < K; ++i) std::memcpy(&r[i], de(i), sizeof r[i]);
  // Rows half of them apart go into each other, as often as that takes them all round.
  for (int fois = 1; fois < K; fois *= 2) {
    Rangee melees[Taille(K)];
    for (int k = 0; k < K / 2; ++k) {
      if constexpr (K == 8) {
        melees[2 * k] = __builtin_shufflevector(r[k], r[k + 4], 0, 8, 1, 9, 2, 10, 3, 11);
        melees[2 * k + 1] = __builtin_shufflevector(r[k], r[k + 4], 4, 12, 5, 13, 6, 14, 7, 15);
      } else {
        melees[2 * k] = __builtin_shufflevector(r[k], r[k + 2], 0, 4, 1, 5);
        melees[2 * k + 1] = __builtin_shufflevector(r[k], r[k + 2], 2, 6, 3, 7);
      }
    }
    for (int k = 0; k < K; ++k) r[k] = melees[k];  // a copy of all would be stored and loaded as a whole
  }
  for (int j = 0; j < K; ++j) std::memcpy(a(j), &r[j], sizeof r[j]);
}

// The places by symbol, from those by unit.
template <int S>
void TrouveVoies<S>::Tourne() {
  constexpr int K = 16 / static_cast<int>(sizeof(Mot));
  constexpr int kEntiers = N / K * K;
  for (int g = 0; g < 3; ++g) {
    const auto tourne = [&](int s, int i) { parSymbole_[g][s][i] = places_[Unite(g, i)][s]; };
    for (int s = 0; s < N; ++s)
      std::memset(&parSymbole_[g][s][kEntiers], 0, Taille(kVoies - kEntiers) * sizeof(Mot));
    for (int i = 0; i < kEntiers; i += K) {
      for (int s = 0; s < kEntiers; s += K) {
        TourneBloc<K>([&](int k) { return &places_[Unite(g, i + k)][s]; },
                      [&](int k) { return &parSymbole_[g][s + k][i]; });
      }
    }
    for (int s = 0; s < kEntiers; ++s) {
      for (int i = kEntiers; i < N; ++i) tourne(s, i);
    }
    for (int s = kEntiers; s < N; ++s) {
      for (int i = 0; i < N; ++i) tourne(s, i);
    }
  }
  tournees_ = true;
}

// Behind the S bits of a key, by unit number: the band, the stack in which a unit lies, from 1 on; and
// numbers that differ from each other and from all keys.
template <int S>
struct FinsDeCles {
  alignas(64) MotDe<S> bande[Taille(Largeur<S>::kVoies)] = {};
  alignas(64) MotDe<S> pile[Taille(Largeur<S>::kVoies)] = {};
  alignas(64) MotDe<S> aucune[Taille(Largeur<S>::kVoies)] = {};

  constexpr FinsDeCles() {
    for (int i = 0; i < S * S; ++i) {
      bande[i] = static_cast<MotDe<S>>((i / S + 1) << S);
      pile[i] = static_cast<MotDe<S>>((i % S + 1) << S);
      aucune[i] = static_cast<MotDe<S>>(((S + 1) << S) + i);
    }
  }
};
template <int S>
constexpr FinsDeCles<S> kFinsDeCles;

// The keys of units seen through blocks, or of blocks seen through lines: which of S units side by side, and
// behind these bits which S.
template <int S>
SUDOKU_EN_LIGNE Voies<S> Cles(const Voies<S>& places, const BitsDe<S>* parts, const MotDe<S>* fins) {
  Voies<S> cle = Lit<S>(fins);
  for (int k = 0; k < S; ++k) {
    cle |= NonNulles(places & Partout<S>(parts[k])) & Partout<S>(BitsDe<S>{1} << k);
  }
  return cle;
}

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

// Two units side by side in a band are among these.
template <int S>
SUDOKU_EN_LIGNE bool DeuxEnBande(BitsDe<S> unites) {
  BitsDe<S> deux = 0;
  for (int k = 0; k < S; ++k) {
    const BitsDe<S> bande = unites & kLieux<S>.groupe[k];
    deux |= bande & (bande - 1);
  }
  return deux != 0;
}

template <int S>
template <class F>
SUDOKU_EN_LIGNE void TrouveVoies<S>::FiguresDe(int s, const V& colonnes, const V& lignes, const V& carres,
                                               const Duo<S>& vues, F f) {
  const auto figure = [&](TypeUnite type, Bits unites, TypeUnite type2, Bits cle) {
    f({.symbole = s, .type = type, .unites = unites, .type2 = type2, .cle = cle});
  };
  DeLignes(vues, kPremiere, colonnes, kColonne, figure);
  DeLignes(vues, kSeconde, lignes, kLigne, figure);
  DeCarres(carres, figure);
}

// The figures whose units are lines of this kind. Confined to crossing lines, then to blocks.
template <int S>
template <class F>
SUDOKU_EN_LIGNE void TrouveVoies<S>::DeLignes(const Duo<S>& vues, Vue vue, const V& lignes, TypeUnite type,
                                              F f) {
  if (const Bits debuts = vues.Debuts(vue); debuts != 0) {
    alignas(64) Mot p[Taille(kVoies)];
    Ecrit<S>(p, lignes);
    Chaque(debuts, [&](int premiere) {
      const Bits cle = p[premiere];
      const int combien = std::popcount(cle);
      if ((cle & ~vues.De(Autre(vue), combien)) == 0) return;
      const Bits unites = Depuis(BitsEgales(lignes, Partout<S>(cle)), premiere);
      if (std::popcount(unites) == combien) f(type, unites, type == kLigne ? kColonne : kLigne, cle);
    });
  }
  // Blocks serve only lines with fewer than S places.
  if (!DeuxEnBande<S>(vues.Entre(vue, 1, S - 1))) return;
  const V comptes = Comptes(lignes);
  const V longues = PlusDe(S - 1, comptes);
  const V cles = (Cles<S>(lignes, kLieux<S>.groupe, kFinsDeCles<S>.bande) & ~longues) |
                 (Lit<S>(kFinsDeCles<S>.aucune) & longues);
  EnCarres(cles, EnsemblesVoisins<S, 1>(cles, comptes), type, kCarre, f);
}

// The figures whose units are blocks. S of them that are confined to S lines have all places there.
template <int S>
template <class F>
SUDOKU_EN_LIGNE void TrouveVoies<S>::DeCarres(const V& carres, F f) {
  const V comptes = Comptes(carres);
  if (Aucune(PlusDe(1, comptes) & ~PlusDe(S - 1, comptes))) return;
  const V parColonnes = Cles<S>(carres, kLieux<S>.residu, kFinsDeCles<S>.pile);
  const V parLignes = Cles<S>(carres, kLieux<S>.groupe, kFinsDeCles<S>.bande);
  EnCarres(parColonnes, EnsemblesVoisins<S, S>(parColonnes, comptes), kCarre, kColonne, f);
  EnCarres(parLignes, EnsemblesVoisins<S, 1>(parLignes, comptes), kCarre, kLigne, f);
}

// Figures between lines and blocks. A key names S units side by side, of which some are held.
template <int S>
template <class F>
SUDOKU_EN_LIGNE void TrouveVoies<S>::EnCarres(const V& voies, Bits debuts, TypeUnite type, TypeUnite type2,
                                              F f) {
  if (debuts == 0) return;
  alignas(64) Mot cles[Taille(kVoies)];
  Ecrit<S>(cles, voies);
  Chaque(debuts, [&](int premiere) {
    const Bits unites = Depuis(BitsEgales(voies, Partout<S>(cles[premiere])), premiere);
    const int bande = static_cast<int>(cles[premiere] >> S) - 1;  // or the stack, in which the figure lies
    Bits cle = 0;
    for (int k = 0; k < S; ++k) {
      // Down a column every Sth block comes.
      const int unite = type == kColonne ? bande + k * S : bande * S + k;
      cle |= (Bits{cles[premiere]} >> k & 1) << unite;
    }
    f(type, unites, type2, cle);
  });
}

}  // namespace
}  // namespace sudoku::SUDOKU_MOTEUR
