#pragma once

#include <vector>

#include "engine/effectifs.h"
#include "engine/tableau.h"

namespace sudoku::SUDOKU_MOTEUR {

// The N by N figures: k units of one kind that hold a symbol only in the same set of units of another kind.
// The symbol goes from those other units outside the figure. All figures are found on the candidates as they
// stand when Cherche begins, and act in the order of discovery: kind, unit, symbol, other kind.
template <int W>
class Figures {
 public:
  explicit Figures(Tableau<W>& t) : t_(t) {}

  // One search over the grid. Symbols whose places haven't changed since the last one are left out. True if a
  // candidate went.
  bool NxN();

 private:
  using M = Masque<W>;

  struct Figure {
    std::int16_t type;   // T1: kind of the units of the figure
    std::int16_t unite;  // the first of them
    std::int16_t symbole;
    std::int16_t type2;  // T2: kind of the units it is confined to
    M unites;
    M cle;
  };

  void ChercheLignes(int symbole, int type, int type2);
  void ChercheCarres(int symbole, int type, int type2);
  void FigureEnCarres(int symbole, int type, int type2, int u, int fin, int pas);
  static Figure Commence(int symbole, int type, int unite, int type2, const M& cle);
  // Numbers - 1 of the units of kind type2 in which the places of unit (type, unite) lie.
  M Cle(int type, int unite, int type2, const M& places) const;
  // Places of unit (type2, unite2) that lie in the units `unites` of kind `type`.
  M Dedans(int type, const M& unites, int type2, int unite2) const;
  bool Retire(const Figure& f) const;
  void Agit(const Figure& f);

  Tableau<W>& t_;
  std::vector<Figure> figures_;
  bool resultat_ = false;
};

}  // namespace sudoku::SUDOKU_MOTEUR
