#pragma once

#include <QRect>
#include <QSize>
#include <utility>
#include <vector>

#include "platform/plateau.h"

namespace sudoku {

// Where the boxes and frames of a board lie in device pixels, at any scale: the edges of every box are whole
// pixels, with at least one pixel between neighbours. Finding the boxes of a rectangle costs what lies in it,
// whatever the size of the board. Reads the records when it is made and on every question; Relit after they
// were taken away and made anew.
class GeometriePlateau {
 public:
  explicit GeometriePlateau(const Plateau& plateau) : plateau_(plateau) {}

  void Relit();
  // Pixels of the device for a twip, and the twips above the board that are no part of it.
  void MetAEchelle(double pixelsParTwip, Twips haut);

  QRect Case(int i) const;
  QRect Cadre(int b) const;
  // All frames together.
  QRect Ensemble() const;
  // Thickness of the line between boxes, and of a block's frame.
  int Trait() const { return trait_; }
  int TraitDeCadre() const { return cadre_; }

  // The box that holds this point, 0 for none.
  int CaseSous(QPoint point) const;
  // The box nearest to a point among the frames, 0 for a point outside them.
  int PlusProche(QPoint point) const;
  // The first and the last box of the row of box i.
  std::pair<int, int> RangeeDe(int i) const;
  // Calls f(i) for every box that meets the rectangle, in ascending order.
  template <class F>
  void PourChaque(const QRect& zone, F&& f) const {
    for (const Rangee& r : rangees_) {
      const QRect premiere = Case(r.premiere);
      if (premiere.bottom() < zone.top()) continue;
      if (premiere.top() > zone.bottom()) break;
      for (int i = PremiereDans(r, zone.left());
           i <= r.derniere && X(plateau_.TxtCase(i).Left) <= zone.right(); ++i) {
        f(i);
      }
    }
  }

 private:
  // Boxes of one height, from left to right.
  struct Rangee {
    int premiere;
    int derniere;
  };
  int X(Twips x) const;
  int Y(Twips y) const;
  int PremiereDans(const Rangee& rangee, int gauche) const;

  const Plateau& plateau_;
  std::vector<Rangee> rangees_;
  double k_ = 1 / 15.0;
  Twips haut_ = 0;
  int trait_ = 1;
  int cadre_ = 2;
};

}  // namespace sudoku
