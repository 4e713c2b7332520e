#pragma once

#include <QString>
#include <string_view>

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

// The name of a file says what is drawn into it: .png a picture of the window, .svg and .pdf its title and
// its board for paper, black on white, .pdf on a page of A4. False: it says none of these.
bool FormeConnue(std::string_view nom);

// Draws a window, with the whole board, into a file of a known form. What was there before is
// replaced when the new one is whole. False: it can't be written, and nothing has changed.
bool DessineDansFichier(FenetreQt& fenetre, const QString& chemin);

}  // namespace sudoku
