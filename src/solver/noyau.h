#pragma once

#include <cstdint>
#include <vector>

#include "solver/cases.h"

namespace sudoku {

// The solve pass for grids of blocks of side 3 to 8 whose cells hold single symbols, none typed and unproved
// (Etat 2) or wrong (Etat 3) but for those that the solver wrote: what a search does by the thousand, without
// facts. It gives what TravailGrille::JeuSolve and the engine give on such a board, deduction for deduction.

// What a solve pass is asked about a board, and what it made of it.
template <int S>
struct Passe {
  // Asked: a board with a contradiction is to have its candidates too.
  bool possibles = false;
  // Asked: the board was left by an earlier pass of this attempt, and `sansOrdre` is wanted.
  bool suite = false;
  // By ordre_voies.h: on the whole way to this board what was filled took sets of two at most, and nothing
  // was wrong. Of the way before the pass the caller tells it.
  bool paires = true;
  // As of GrilleCheck: -1, 0, or the number of empty cells.
  std::int16_t verdict = 0;
  // For a verdict above 0: one pass from the attempt's beginning would fill the same cells, by ordre_voies.h.
  bool sansOrdre = false;
  // Candidates of the empty cells after the last evaluation; for a verdict above 0, or -1 with `possibles`.
  typename Largeur<S>::Mot candidats[Taille(S * S * S * S)];
};

// kSur before any supposition; with one, solutions rest on suppositions.
template <int S>
using Noyau = void (*)(Cases<S>& cases, Appui appui, Passe<S>& passe);

// The versions that this machine runs, the fastest first; all give the same.
template <int S>
std::vector<Noyau<S>> VersionsNoyau();

}  // namespace sudoku
