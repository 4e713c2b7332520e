#include "solver/cases.h"

#include <algorithm>

#include "engine/lieux.h"

namespace sudoku {

template <int S>
void Cases<S>::Efface() {
  *this = Cases{};
  for (int g = 0; g < 3; ++g) {
    std::fill_n(this->unites[g] + N, Contenus<S>::kVoies - N, static_cast<Mot>(~Mot{0}));
    std::ranges::fill(this->ouvertes[g], static_cast<Mot>(kLieux<S>.tous));
  }
}

template <int S>
void Cases<S>::Pose(int cellule, int symbole) {
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

template struct Cases<3>;
template struct Cases<4>;
template struct Cases<5>;
template struct Cases<6>;
template struct Cases<7>;
template struct Cases<8>;

}  // namespace sudoku
