#pragma once

#include <QString>

#include "qt/systeme_qt.h"

namespace sudoku {

// The window system with nobody before it: messages go to standard error, questions are answered by No,
// prompts and the file dialog are cancelled, and a modal window is left by its default button.
class SystemeSansJoueur : public SystemeQt {
 public:
  void Message(TexteVue texte, TexteVue titre = {}) override;
  bool Question(TexteVue) override { return false; }
  Texte Saisie(TexteVue, TexteVue, TexteVue) override { return {}; }
  void Fichier(DemandeFichier&) override {}
  void MontreModale(Fenetre& fenetre) override;

  bool ADitQuelqueChose() const { return dit_; }

 private:
  bool dit_ = false;
};

// Draws the inside of a window, with the whole board, into a file: a picture, .svg as a drawing, .pdf as one
// page of A4 to print. False: the file can't be written.
bool DessineDansFichier(FenetreQt& fenetre, const QString& chemin);

}  // namespace sudoku
