#include "qt/geometrie_plateau.h"

#include <algorithm>
#include <cmath>

namespace sudoku {
namespace {

constexpr Twips kTrait = 15;  // a pixel of the tables, and the gap between boxes
constexpr Twips kTraitDeCadre = 30;

}  // namespace

void GeometriePlateau::Relit() {
  rangees_.clear();
  for (int i = 1; i <= plateau_.Cases(); ++i) {
    const bool suite =
        !rangees_.empty() && plateau_.TxtCase(rangees_.back().premiere).Top == plateau_.TxtCase(i).Top;
    if (suite) {
      rangees_.back().derniere = i;
    } else {
      rangees_.push_back({i, i});
    }
  }
}

void GeometriePlateau::MetAEchelle(double pixelsParTwip, Twips haut) {
  k_ = pixelsParTwip;
  haut_ = haut;
  trait_ = std::max(1, static_cast<int>(std::lround(kTrait * k_)));
  cadre_ = std::max(trait_ + 1, static_cast<int>(std::lround(kTraitDeCadre * k_)));
}

int GeometriePlateau::X(Twips x) const {
  return static_cast<int>(std::lround(x * k_));
}

int GeometriePlateau::Y(Twips y) const {
  return X(y - haut_);
}

QRect GeometriePlateau::Case(int i) const {
  const CaseTexte& c = plateau_.TxtCase(i);
  const QPoint coin(X(c.Left), Y(c.Top));
  // The next box begins a line further on: measured from there, rounding never eats the line.
  const QSize taille(X(c.Left + c.Width + kTrait) - trait_ - coin.x(),
                     Y(c.Top + c.Height + kTrait) - trait_ - coin.y());
  return QRect(coin, taille.expandedTo(QSize(1, 1)));
}

QRect GeometriePlateau::Cadre(int b) const {
  const CadreCarre& c = plateau_.Box(b);
  // From the line before the first box to the line behind the last one, drawn so that neighbours share it.
  const int gauche = X(c.Left + kTrait) - trait_;
  const int haut = Y(c.Top + kTrait) - trait_;
  return QRect(gauche, haut, X(c.Left + c.Width - kTrait) - trait_ + cadre_ - gauche,
               Y(c.Top + c.Height - kTrait) - trait_ + cadre_ - haut);
}

QRect GeometriePlateau::Ensemble() const {
  QRect tout;
  for (int b = 1; b <= plateau_.Cadres(); ++b) tout |= Cadre(b);
  return tout;
}

int GeometriePlateau::CaseSous(QPoint point) const {
  int trouvee = 0;
  PourChaque(QRect(point, QSize(1, 1)), [&](int i) {
    if (Case(i).contains(point)) trouvee = i;
  });
  return trouvee;
}

std::pair<int, int> GeometriePlateau::RangeeDe(int i) const {
  const auto rangee = std::ranges::lower_bound(rangees_, i, {}, &Rangee::derniere);
  return {rangee->premiere, rangee->derniere};
}

int GeometriePlateau::PlusProche(QPoint point) const {
  if (!Ensemble().contains(point)) return 0;
  int trouvee = 0;
  int distance = 0;
  const int autour = cadre_ + 1;  // no point is further from every box than the line between two blocks
  PourChaque(QRect(point, QSize(1, 1)).adjusted(-autour, -autour, autour, autour), [&](int i) {
    const QRect place = Case(i);
    const QPoint dedans(std::clamp(point.x(), place.left(), place.right()),
                        std::clamp(point.y(), place.top(), place.bottom()));
    const int ici = (point - dedans).manhattanLength();
    if (trouvee != 0 && ici >= distance) return;
    trouvee = i;
    distance = ici;
  });
  return trouvee;
}

// By hand: the boxes of a row are numbers, and no list that a library could search.
int GeometriePlateau::PremiereDans(const Rangee& rangee, int gauche) const {
  int bas = rangee.premiere;
  int haut = rangee.derniere + 1;
  while (bas < haut) {
    const int milieu = (bas + haut) / 2;
    if (Case(milieu).right() < gauche) {
      bas = milieu + 1;
    } else {
      haut = milieu;
    }
  }
  return bas;
}

}  // namespace sudoku
