#pragma once

#include "engine/trouve_voies.h"

namespace sudoku::SUDOKU_MOTEUR {
namespace {

template <int S>
template <class F>
void TrouveVoies<S>::ChaqueFigure(F f) {
  if (!tournees_) Tourne();
  Chaque(Base::SymbolesSales(), [&](int s) { FiguresDe(s, f); });
}

// The places by symbol, from those by unit.
template <int S>
void TrouveVoies<S>::Tourne() {
  for (int g = 0; g < 3; ++g) {
    for (int s = 0; s < N; ++s) {
      for (int i = 0; i < N; ++i) parSymbole_[g][s][i] = places_[Unite(g, i)][s];
      for (int i = N; i < kVoies; ++i) parSymbole_[g][s][i] = 0;
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

template <int S>
template <class F>
SUDOKU_EN_LIGNE void TrouveVoies<S>::FiguresDe(int s, F f) const {
  const auto figure = [&](TypeUnite type, Bits unites, TypeUnite type2, Bits cle) {
    f({.symbole = s, .type = type, .unites = unites, .type2 = type2, .cle = cle});
  };
  // All as the places are now: a figure that is acted on changes the tables.
  const V colonnes = Lit<S>(parSymbole_[kColonne][s]);
  const V lignes = Lit<S>(parSymbole_[kLigne][s]);
  const V carres = Lit<S>(parSymbole_[kCarre][s]);
  const Bits deColonnes = Ensembles<S>(parSymbole_[kColonne][s], colonnes, Comptes(colonnes));
  const Bits deLignes = Ensembles<S>(parSymbole_[kLigne][s], lignes, Comptes(lignes));
  DeLignes(colonnes, deColonnes, kColonne, figure);
  DeLignes(lignes, deLignes, kLigne, figure);
  DeCarres(carres, figure);
}

// The figures whose units are lines of this kind. Confined to crossing lines (`debuts`: where such sets
// begin), then to blocks.
template <int S>
template <class F>
SUDOKU_EN_LIGNE void TrouveVoies<S>::DeLignes(const V& lignes, Bits debuts, TypeUnite type, F f) {
  const V comptes = Comptes(lignes);
  if (debuts != 0) {
    alignas(64) Mot p[Taille(kVoies)];
    Ecrit<S>(p, lignes);
    Chaque(debuts, [&](int premiere) {
      const Bits unites = Depuis(BitsEgales(lignes, Partout<S>(p[premiere])), premiere);
      f(type, unites, type == kLigne ? kColonne : kLigne, p[premiere]);
    });
  }
  // Blocks serve only lines with fewer than S places.
  const V longues = PlusDe(S - 1, comptes);
  if (S > 3 && Aucune(PlusDe(1, comptes) & ~longues)) return;
  const V cles = (Cles<S>(lignes, kLieux<S>.groupe, kFinsDeCles<S>.bande) & ~longues) |
                 (Lit<S>(kFinsDeCles<S>.aucune) & longues);
  EnCarres(cles, EnsemblesVoisins<S, 1>(cles, comptes), type, kCarre, f);
}

// The figures whose units are blocks.
template <int S>
template <class F>
SUDOKU_EN_LIGNE void TrouveVoies<S>::DeCarres(const V& carres, F f) {
  const V comptes = Comptes(carres);
  if (S > 3 && Aucune(PlusDe(1, comptes) & ~PlusDe(S, comptes))) return;
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
