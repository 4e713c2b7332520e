#pragma once

#include <functional>
#include <vector>

#include "text/texte.h"

namespace sudoku {

// What a view with a keyboard, a clipboard and a screen reader asks of the game to make typing easier. Asking
// changes nothing; what comes of the answers is typed like anything else. An empty function: the view does
// without.
struct Conforts {
  // The symbols of the grid on the board.
  std::function<Texte()> Symboles = {};
  // The contents of boxes 1, 2 … that a pasted text stands for; nothing where it is no grid, or a grid can't
  // be typed now.
  std::function<std::vector<Texte>(TexteVue)> LitGrille = {};
  // The board as one line of text.
  std::function<Texte()> EcritGrille = {};
  // Where box i is, with its number: the sentences name boxes by it.
  std::function<Texte(int)> DecritPlace = {};
  // Box i in words: content, what is known of it from what the board shows, place.
  std::function<Texte(int)> DecritCase = {};
  // The user hands over a file to be opened, as the command that loads one would, with its question.
  std::function<void(TexteVue chemin)> OuvreFichier = {};
};

}  // namespace sudoku
