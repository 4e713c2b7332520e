#pragma once

#include <vector>

#include "platform/fenetre.h"
#include "qt/pilote.h"

namespace sudoku {

// The way of everything that is typed into the boxes: typed, pasted, chosen or gone back to. Keeps the list
// of typed texts, over all boxes, for going back and forth. A text that the game has refused never enters it,
// and Plateau::OublieSaisies empties it.
class Saisies {
 public:
  Saisies(Fenetre& fenetre, Pilote& pilote) : fenetre_(fenetre), pilote_(pilote) {}

  // The user makes `texte` the text of box i. A locked box refuses.
  void Tape(int i, TexteVue texte);
  // One step back, or forth again: the focus on the box, then the text is typed. Nothing at the ends.
  void Annule();
  void Retablit();
  // Types a whole grid, box by box, until one is refused. False: the text stands for none, or there is
  // nothing to type it into.
  bool TapeGrille(TexteVue texte);

 private:
  struct Saisie {
    int Index;
    Texte avant;
    Texte apres;
  };
  bool Tient(int i, const Texte& texte);
  bool TapeEtNote(int i, const Texte& texte);
  void SuitLesOublis();

  Fenetre& fenetre_;
  Pilote& pilote_;
  std::vector<Saisie> liste_;
  std::size_t place_ = 0;  // entries before it are in force, those from it on were taken back
  std::uint32_t oublis_ = 0;
};

}  // namespace sudoku
