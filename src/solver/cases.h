#pragma once

#include <cstdint>

#include "engine/contenus.h"
#include "engine/lieux.h"
#include "solver/planches.h"

namespace sudoku {

// Wrong entries (Etat 3) of a board: their cells are open as far as contents go, and aren't filled.
template <int N>
struct Fausses {
  std::uint8_t fausse[Taille(N * N)];  // by cell, 0 or the symbol + 1
  std::uint16_t fausses;               // how many there are

  // Always inline, so that no version of the hot code makes one that others would share; as Pose below.
  [[gnu::always_inline]] void PoseFausse(int cellule, int symbole) {
    OteFausse(cellule);
    fausse[cellule] = static_cast<std::uint8_t>(symbole + 1);
    ++fausses;
  }
  [[gnu::always_inline]] void OteFausse(int cellule) {
    if (fausse[cellule] != 0) --fausses;
    fausse[cellule] = 0;
  }
};

// A board of blocks of side S that a search writes on. Cells and symbols count from 0.
template <int S>
struct Cases : Contenus<S>, Fausses<S * S> {
  using typename Contenus<S>::Mot;
  using Contenus<S>::N;

  std::uint8_t valeur[Taille(N * N)];  // 0 for an open cell, else the symbol + 1
  std::uint16_t remplies;              // cells that aren't open

  // All cells are open.
  void Efface();
  // The cell, an open one, holds the symbol.
  [[gnu::always_inline]] void Pose(int cellule, int symbole) {
    const auto bit = [](int n) { return static_cast<Mot>(Mot{1} << n); };
    const Lieu<S>& lieu = kLieux<S>.lieux[cellule];
    for (int g = 0; g < 3; ++g) {
      const int numero = NumeroDe(lieu.unite[g]);
      this->symboles[g][numero] |= bit(symbole);
      this->unites[g][symbole] |= bit(numero);
      this->ouvertes[g][numero] &= static_cast<Mot>(~bit(lieu.place[g]));
    }
    valeur[cellule] = static_cast<std::uint8_t>(symbole + 1);
    ++remplies;
  }
};

// The same for side 9, of which another search wants other tables.
template <>
struct Cases<3> : Fausses<9> {
  using Mot = Largeur<3>::Mot;
  static constexpr int N = 9;

  alignas(32) Mot symboles[3][Largeur<3>::kVoies];  // as those of Contenus
  Planche libres;                                   // the open cells
  Planche restes[9];  // by symbol: the cells, open or not, with no such symbol in a unit of theirs
  std::uint8_t valeur[N * N];
  std::uint16_t remplies;

  void Efface();
  [[gnu::always_inline]] void Pose(int cellule, int symbole) {
    const Lieu<3>& lieu = kLieux<3>.lieux[cellule];
    for (int g = 0; g < 3; ++g) symboles[g][NumeroDe(lieu.unite[g])] |= static_cast<Mot>(1 << symbole);
    const auto& apres = kPlanches.apres[cellule];
    for (int i = 0; i < Planche::kMots; ++i) restes[symbole].mots[i] &= apres.reste.mots[i];
    for (int i = 0; i < Planche::kMots; ++i) libres.mots[i] &= apres.libres.mots[i];
    valeur[cellule] = static_cast<std::uint8_t>(symbole + 1);
    ++remplies;
  }
};

// Made in cases.cpp for the same reason.
extern template struct Cases<4>;
extern template struct Cases<5>;
extern template struct Cases<6>;
extern template struct Cases<7>;
extern template struct Cases<8>;

}  // namespace sudoku
