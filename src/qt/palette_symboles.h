#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "text/texte.h"

class QGridLayout;

namespace sudoku {

class EditeurCase;

// The symbols of a grid to choose from, in a square, with Couper, Copier, Coller below. Arrows and Enter or
// the mouse choose, Escape or a click elsewhere closes. It goes when it closes.
class PaletteSymboles : public QWidget {
 public:
  PaletteSymboles(const Texte& symboles, EditeurCase& editeur, QWidget* parent);

  std::function<void(const Texte& symbole)> Choisi;

  // Beside a box, given in pixels of the screen, and on the screen as a whole.
  void Montre(const QRect& boite);

 protected:
  void paintEvent(QPaintEvent* evenement) override;
  void keyPressEvent(QKeyEvent* evenement) override;

 private:
  void AjouteSymboles(QGridLayout* grille, const Texte& symboles);
  void AjouteCommande(QLayout* rangee, const QString& texte, bool permise, const std::function<void()>& acte);
  void Deplace(int colonnes, int lignes);

  EditeurCase& editeur_;
  std::vector<QWidget*> boutons_;  // symbols, row by row, then the commands
  int colonnes_ = 1;
};

}  // namespace sudoku
