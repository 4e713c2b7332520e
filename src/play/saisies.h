#pragma once

#include <vector>

#include "grid/game_state.h"
#include "platform/plateau.h"

namespace sudoku {

// What was typed, for going back and forth over all boxes, and the typing of a whole grid. Going back types
// the text that was there before, like anything else that is typed: the game judges it, and may refuse it.
class Saisies {
 public:
  Saisies(const GameState& jeu, Plateau& plateau) : jeu_(jeu), plateau_(plateau) {}

  // The game has taken a text typed into box i, which held `avant`; what was taken back until now is lost.
  // Nothing while this class itself goes back or forth.
  void Note(int i, TexteVue avant, TexteVue apres);
  // Another game begins, or the texts were not the user's: nothing before this can be gone back to.
  void Oublie();

  // One step back, or forth again: the focus on the box, then the text is typed. Nothing at the ends.
  void Annule();
  void Retablit();
  // Types a whole grid, box by box, until one is refused. False: the text stands for none, or the givens are
  // not being typed now.
  bool Colle(TexteVue texte);

 private:
  struct Saisie {
    int Index;
    Texte avant;
    Texte apres;
  };
  bool Tient(int i, const Texte& texte);
  bool Repete(int i, const Texte& texte);

  const GameState& jeu_;
  Plateau& plateau_;
  std::vector<Saisie> liste_;
  std::size_t place_ = 0;  // entries before it are in force, those from it on were taken back
  bool repete_ = false;
};

}  // namespace sudoku
