#pragma once

#include <cstdint>

#include "grid/grille.h"
#include "solver/suppositions.h"

namespace sudoku {

// The board that a run of the solver works on, with the base that its attempts are rebuilt from.
class Travail {
 public:
  virtual ~Travail() = default;

  // Works on the cells of `grille` until Detache.
  virtual void Commence(const Grille& grille) = 0;
  // The grid as the run leaves it, which it lets go of. Evaluated, unless `contenus` says that its contents
  // alone will be read.
  virtual Grille Rend(bool contenus) = 0;

  // Carries the deductions into the board until an evaluation leaves nothing to write. -1: a cell has no
  // candidate; 0: complete; otherwise the number of cells not settled. Only where `possibles` says so are the
  // candidates of a board with a contradiction good for CelluleOuverte afterwards.
  virtual std::int16_t JeuSolve(bool possibles) = 0;
  // Takes the board, after its first solve pass, as the base.
  virtual void PrendBase() = 0;
  // Makes the board the base again.
  virtual void Reconstruit() = 0;
  // From now on what is written leaves the player's grid alone.
  virtual void Detache() = 0;
  // Supposes a symbol in a cell, as an entry in play.
  virtual void Suppose(int cellule, Code symbole) = 0;
  // The board that the last solve pass left open is the one that a pass from the base and all suppositions
  // would leave.
  virtual bool CommeRejouee() const = 0;
  // First cell behind `cellule` with several candidates, which go to `Possible`; 0 if there is none.
  virtual int CelluleOuverte(int cellule, Essai& Possible) = 0;
  // A symbol stands twice in a unit.
  virtual bool SymboleEnDouble() = 0;
  // Where no cell is left to suppose in: wrong entries of the base take the one candidate that is left to
  // them, and one solve pass follows.
  virtual std::int16_t Acheve() = 0;
  // Somebody is about to look at the player's grid.
  virtual void Montre() = 0;
};

}  // namespace sudoku
