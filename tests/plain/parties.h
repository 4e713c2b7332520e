#pragma once

#include "plain/comparaison.h"

namespace sudoku::plain {

// What random games are made of.
struct Genres {
  std::vector<int> tailles;
  int actions = 1;       // steps after each board, at most
  bool solveur = false;  // whole runs of the solver, most of the time
};

// Plays random games number `premiere` and on, of up to three boards each. At the first difference it stops
// and tells it, with the game's number and steps; nothing if there is none.
std::string JoueAuHasard(std::uint64_t premiere, std::uint64_t parties, const Genres& genres, Paire& paire);

}  // namespace sudoku::plain
