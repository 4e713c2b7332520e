#pragma once

#include <functional>

#include "text/texte.h"

namespace sudoku {

// What a view with a keyboard, a clipboard and a screen reader asks of the game to make typing easier, and
// the acts of the user that are no command of a menu. An empty function: the view does without.
struct Conforts {
  // The symbols of the grid on the board.
  std::function<Texte()> Symboles = {};
  // The user goes one step of the typing back, or forth again, or pastes a whole grid, which is typed box by
  // box. What comes back is empty, or says to the user why nothing was done.
  std::function<Texte()> Annule = {};
  std::function<Texte()> Retablit = {};
  std::function<Texte(TexteVue)> Colle = {};
  // A text is a whole grid for this board, and more than a box takes.
  std::function<bool(TexteVue)> EstGrille = {};
  // Why box i takes no typing; empty: it does.
  std::function<Texte(int)> Verrou = {};
  // The user asks for the list of the keys.
  std::function<void()> MontreTouches = {};
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
