#pragma once

#include <cstdint>
#include <vector>

#include "grid/grille.h"

namespace sudoku {

// Goes on from an evaluation that stopped at the candidates of its first pass, since a cell can be filled.
// All that its fields rest on are the contents that count, so that a change of Etat reaches the units of its
// cell and nothing else: an entry that was proved takes its symbol from their cells, and only those have to
// be visited again. What would take a whole evaluation a change takes a few hundred cells.
class Reprise {
 public:
  // The grid was evaluated so, with two passes, and GrilleCheck has just changed the Etat of the cell that
  // `revisions` names. Does what evaluations and GrilleCheck in turn would do, field for field. Result: the
  // verdict, or kReevaluer where another kind of evaluation has to follow, of the grid as it is now.
  std::int32_t Suit(Grille& grille, Revisions& revisions);

 private:
  bool Commence();
  bool Prouve(int cellule);
  void Retire(int cellule, int position);
  void NoteSolution(int cellule, Code solution);
  // The first cell to visit; one behind the last where there is none.
  int Prochaine();

  Bloc* bloc_ = nullptr;
  std::vector<std::uint64_t> aVisiter_;  // bit = cell
  std::size_t mot_ = 0;                  // no cell of the words before it
  int aRemplir_ = 0;                     // empty cells with a solution
};

}  // namespace sudoku
