#pragma once

#include <optional>
#include <vector>

#include "text/texte.h"

namespace sudoku {

// A grid as people write it: N*N cells on one line, or N lines of N, N being the number of symbols. A cell is
// a symbol (ignoring case) or one of . 0 _ * and the blank, which stand for an empty cell. Frames of | - +
// and lines without any cell are left out; a character that is a symbol of the grid is never anything else.
// Blanks are cells where that gives a grid, otherwise they only keep the cells apart ("5 3 . | . 7 .").
//
// Gives the N*N contents in the order of the cells, each as it is written or empty; nothing where the text is
// no such grid, or `VmValeurs` holds no symbol.
std::optional<std::vector<Texte>> LitGrilleTexte(TexteVue texte, TexteVue VmValeurs);

// The other way: one line of N*N characters, `.` for an empty cell. Of a longer content, the first character.
Texte EcritGrilleTexte(const std::vector<Texte>& contenus);

}  // namespace sudoku
