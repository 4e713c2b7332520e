#pragma once

#include "plain/comparaison.h"

// Random games, and what one does with a game that shows a difference.
namespace sudoku::plain {

using Partie = std::vector<Action>;

// What games are made of.
struct Genres {
  std::vector<int> tailles;
  int actions = 1;       // steps after each board, at most
  bool solveur = false;  // whole runs of the solver, most of the time
};

// Plays random games number `premiere` and on, of up to three boards each. At the first difference it stops
// and tells it, with the shortest game found that shows it, steps left out and cells emptied; nothing if
// there is none.
std::string JoueAuHasard(std::uint64_t premiere, std::uint64_t parties, const Genres& genres, Paire& paire);

// Plays the steps on a pair of its own. What differs, or nothing.
std::string Rejoue(const Partie& partie);

// For a failure's message.
std::string Decrit(const Partie& partie);

}  // namespace sudoku::plain
