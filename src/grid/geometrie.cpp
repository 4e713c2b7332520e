#include "grid/geometrie.h"

#include <cmath>

namespace sudoku {
namespace {

int Racine(std::size_t longueur) {
  return static_cast<int>(std::sqrt(static_cast<double>(longueur)));
}

}  // namespace

bool TailleAcceptable(std::size_t longueur) {
  if (longueur == 0 || longueur > kTailleMax) return false;
  const int racine = Racine(longueur);
  return static_cast<std::size_t>(racine * racine) == longueur;
}

Geometrie::Geometrie(int N) : n_(N), s_(Racine(static_cast<std::size_t>(N))) {
  for (int type = kColonne; type <= kCarre; ++type) {
    unites_[Rang(type)].resize(Rang(Cases() + 1));
    places_[Rang(type)].resize(Rang(Cases() + 1));
    series_[Rang(type)].resize(Rang(Cases()));
  }
  for (int cellule = 1; cellule <= Cases(); ++cellule) {
    const int ligne = (cellule - 1) / n_;
    const int colonne = (cellule - 1) % n_;
    const int carre = ligne / s_ * s_ + colonne / s_;
    const int dansCarre = ligne % s_ * s_ + colonne % s_;
    const int unite[3] = {colonne, ligne, carre};
    const int place[3] = {ligne, colonne, dansCarre};
    for (int type = kColonne; type <= kCarre; ++type) {
      unites_[Rang(type)][Rang(cellule)] = static_cast<std::int16_t>(unite[type] + 1);
      places_[Rang(type)][Rang(cellule)] = static_cast<std::int16_t>(place[type]);
      series_[Rang(type)][Rang(unite[type] * n_ + place[type])] = static_cast<std::int16_t>(cellule);
    }
  }
}

}  // namespace sudoku
