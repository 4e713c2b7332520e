#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "grid/grille.h"

namespace sudoku {

// A cell that the run is about to fill: proved, or resting on entries and suppositions.
struct Remplissage {
  std::int16_t Index;
  Code symbole;
  bool sure;
};

// Who follows a run of the solver as it goes. Nothing that is told may be changed.
class Auditeur {
 public:
  virtual ~Auditeur() = default;

  // `cases`, one at least, are filled in this order. `grille` is as the evaluation has left it that gave
  // `verdict`: its cells hold their sentences, and not yet what they are filled with.
  virtual void Remplit(const Grille& grille, int verdict, std::span<const Remplissage> cases) = 0;
  // The board is the base again, with the suppositions that stand; their consequences are found anew.
  virtual void Reprend() = 0;
  // `symbole` is supposed in a cell; `niveau` levels are then open.
  virtual void Suppose(int cellule, Code symbole, std::size_t niveau) = 0;
  // The supposition of the last of `niveau` open levels is refuted.
  virtual void Refute(int cellule, Code symbole, std::size_t niveau) = 0;
};

}  // namespace sudoku
