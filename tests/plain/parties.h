#pragma once

#include "plain/comparaison.h"

// Random games, and what one does with a game that shows a difference.
namespace sudoku::plain {

// For a failure's message.
std::string Decrit(const Partie& partie);

// What games are made of.
struct Genres {
  std::vector<int> tailles;
  int actions = 1;       // steps after each board, at most
  bool solveur = false;  // whole runs of the solver, most of the time
};

// Plays one random game of up to three boards; `jouee` receives its steps. What differs, or nothing.
std::string JoueAuHasard(std::uint64_t graine, const Genres& genres, Paire& paire, Partie& jouee);

// Plays the steps on a pair of its own.
std::string Rejoue(const Partie& partie, std::size_t boitesMax);

// The shortest game found that still shows a difference: steps left out, cells emptied.
Partie Reduit(Partie partie, std::size_t boitesMax);

}  // namespace sudoku::plain
