#pragma once

#include <cstdint>
#include <vector>

#include "grid/alphabet.h"
#include "grid/geometrie.h"

namespace sudoku {

// What the engine deduced during one pass, as facts: no deduction reads them, and the sentences are made of
// them only when somebody reads (engine/explications.h). One deduction is an Argument; each cell that it
// changed adds a Fait, in the order in which the cells were changed.
struct Argument {
  enum class Genre : std::uint8_t {
    kSeule,      // hidden single in a unit of kind `type`
    kInference,  // `symbole` of unit (`type`, `unite`) confined to the places of masque A
    kCachee,     // hidden set: symbols of masque A at the places of masque B of the unit
    kNue,        // naked set: symbols of masque A (or the text `symbole`) at the places of masque B
    kFigure      // `symbole` of the units of masque A, of kind `type`, confined to those of masque B, `type2`
  };
  Genre genre;
  TypeUnite type = kColonne;
  TypeUnite type2 = kColonne;
  std::int16_t unite = 0;
  // A position of VmValeurs; for kNue the number of a text that no mask can hold, or kVide.
  Code symbole = kVide;
  // kCachee: how often each place was noted (a symbol that stands twice in VmValeurs notes it twice).
  std::int16_t fois = 1;
  std::uint32_t masques = 0;  // where the words of masque A, then B, begin in Journal::mots
};

struct Fait {
  std::int32_t cellule;
  std::uint32_t argument;
  std::int32_t exclus = -1;  // kCachee: where the words of the excluded candidates begin in Journal::mots
};

// The facts of the pass that ran last over a grid.
struct Journal {
  std::vector<Argument> arguments;
  std::vector<Fait> faits;
  std::vector<std::uint64_t> mots;

  void Efface() {
    arguments.clear();
    faits.clear();
    mots.clear();
  }
};

}  // namespace sudoku
