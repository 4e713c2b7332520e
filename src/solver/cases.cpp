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

void Cases<3>::Efface() {
  *this = Cases{};
  libres = kPlanches.toutes;
  std::ranges::fill(restes, kPlanches.toutes);
}

template struct Cases<4>;
template struct Cases<5>;
template struct Cases<6>;
template struct Cases<7>;
template struct Cases<8>;

}  // namespace sudoku
