#pragma once

#include <vector>

#include "engine/effectifs.h"
#include "engine/tableau.h"

namespace sudoku::SUDOKU_MOTEUR {

// The deductions within one unit, always in this order: hidden singles and locked candidates in one sweep
// over the symbols, then hidden sets, then naked sets, of every size.
template <int W>
class Series {
 public:
  explicit Series(Tableau<W>& t) : t_(t) {}

  // One sweep over all units: for each number, block, row, column. Units none of whose cells changed in any
  // field since their own last run can only give nothing again and are left out. True if a candidate went.
  bool Balaye();

 private:
  using M = Masque<W>;

  // A symbol with two places or more.
  struct Lieux {
    int symbole;
    int nombre;  // of places
    int fois;    // the symbol stands so often in VmValeurs
    M places;
  };

  bool TestSerie(int type, int unite);
  M Reste();
  void Symbole(int s, int p);
  void SeuleSolution(int s, int p);
  // Locked candidate: the symbol of position s, which stands first at p, has all its places of this unit
  // (`lieux`) in one unit of another kind too.
  void Verrouille(int s, int p, const M& lieux);
  void Inference(int type, int unite, const M& horsDe, int s, int p, const M& lieux);
  void InferenceAvecTextes(int type, int unite, int s, int p, const M& lieux);
  void EnsemblesCaches(const M& reste);
  void Cache(int rang);
  void EnsemblesNus();
  void CompteNus(int depuis);
  bool Nu(int place);
  void EnsemblesNusEnTextes();
  bool MemesSymboles(const M& a, const M& b) const;
  int Cellule(int place) const { return serie_[place]; }

  Tableau<W>& t_;
  int type_ = 0;
  int unite_ = 0;
  const std::int16_t* serie_ = nullptr;  // the cells of the unit
  bool resultat_ = false;
  M plusieurs_;               // symbols of the unit with two places or more
  Effectifs<W> effectifs_;    // of their places, or of the cells' candidates
  std::vector<Lieux> lieux_;  // ascending
};

}  // namespace sudoku::SUDOKU_MOTEUR
