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

  // One step back, or forth again: for each text of the step, the focus on its box, then the text is typed. A
  // refusal ends it part-way, and the next call goes on from there. Empty, or why there is none.
  Texte Annule();
  Texte Retablit();
  // Types a whole grid, box by box, until one is refused; all of it is one step. Empty, or why nothing was
  // typed: the text stands for no grid, or the givens are not being typed now.
  Texte Colle(TexteVue texte);
  // The text is a whole grid of this board's symbols. On a board of one box nothing is.
  bool EstGrille(TexteVue texte) const;

 private:
  struct Saisie {
    int Index;
    Texte avant;
    Texte apres;
    bool suite;  // belongs to the step of the one before it
  };
  bool Tient(int i, const Texte& texte);
  bool Repete(int i, const Texte& texte);
  void TapeGrille(const std::vector<Texte>& contenus);

  const GameState& jeu_;
  Plateau& plateau_;
  std::vector<Saisie> liste_;
  std::size_t place_ = 0;  // entries before it are in force, those from it on were taken back
  bool repete_ = false;
  bool groupe_ = false;  // a step of several texts is being typed
  bool suite_ = false;   // … and has its first
};

}  // namespace sudoku
