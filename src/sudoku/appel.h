#pragma once

#include <optional>

namespace sudoku {

// What one call of sudoku asks for; null where it is absent.
struct Appel {
  const char* image = nullptr;    // to be drawn; null: the game is to be played
  const char* fichier = nullptr;  // the game file
  const char* reponse = nullptr;  // to be printed, and nothing else to be done: --help, --version
};

//   sudoku [FICHIER]                     plays, with this game file if one is named
//   sudoku --capture IMAGE [FICHIER]     draws its window into IMAGE (.png), or its title and grid for paper
//                                        (.svg, .pdf), and ends; needs no display
//   sudoku --help | --version            prints that and ends
//
// Reads the words of the call, and touches no file. Nothing where it is wrong, which has been said on
// standard error then: a word too many, an unknown option, an image that is missing, has none of the names of
// its forms, or is the game file itself.
std::optional<Appel> LitAppel(int argc, const char* const* argv);

}  // namespace sudoku
