#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "grid/game_state.h"
#include "platform/erreur.h"
#include "text/texte.h"

namespace sudoku {

// The text of a game file. Lines end in CR LF; [00] and [1F] are bytes:
//
//   123456789                 the symbols
//   10 0 020…                 the givens, as a state string
//   Essai-10 042…             a line for each game of the library: name, "-", state string
//   [00]Marie-00:03:17[00]…   one line of scores: a NUL, then name, "-", time, NUL for each
//
// The score line has no line end, and is a NUL alone where there is no score. In names and in the library's
// state strings [1F] stands for "-", and [1F][1E] for the character 1F itself: behind either, r characters 1E
// of the text are written as 2 r more of them. A line's first byte tells what it is; there is no magic
// number.

// The bytes of a file, in code page 1252 or UTF-8 as the text needs.
std::string EcritSud(TexteVue VmValeurs, TexteVue initiale, const std::vector<ClsPartie>& VgParties,
                     const std::vector<TypScore>& VgScores);

// More games or scores than this are no game file, and would fill the memory.
inline constexpr std::size_t kEntreesMax = 1'000'000;
// So are more characters, which take four bytes of memory each: a thousand games of side 169 have 57 179 122.
inline constexpr std::size_t kCaracteresMax = std::size_t{1} << 26;

// What could be read of a file's bytes.
struct LectureSud {
  std::optional<Texte> VmValeurs;  // line 1
  std::optional<Texte> grille;     // line 2
  std::vector<ClsPartie> VgParties = std::vector<ClsPartie>(1);
  std::optional<std::vector<TypScore>> VgScores;  // nothing where no score line was reached
  // Why the reading stopped. 75: more than kCaracteresMax, nothing is read. 62: fewer than two lines. 9: a
  // game or score without "-"; it is the last one read, with its name alone. 9 also: more than kEntreesMax of
  // either; they aren't read. 13: a time that is none; its score has the name alone. Scores behind a failure
  // are empty.
  std::optional<NumeroErreur> erreur;
};
LectureSud LitSud(std::string_view octets);

}  // namespace sudoku
