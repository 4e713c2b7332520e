#pragma once

#include <QPoint>
#include <QWidget>
#include <functional>
#include <utility>
#include <vector>

#include "text/texte.h"

class QGridLayout;
class QLayout;

namespace sudoku {

// The symbols of a grid to choose from, in a square, with a row of commands below. A symbol is chosen by
// typing it, by arrows (which go round), Home, End and Enter, or by the mouse once it moves; Escape or a
// click elsewhere closes. It goes when it closes.
class PaletteSymboles : public QWidget {
 public:
  // What stands below the symbols. A command that isn't allowed can't be chosen.
  struct Commande {
    QString texte;
    bool permise;
    std::function<void()> acte;
  };
  // `libre`: the box takes a symbol. `ici` is the text that it holds.
  PaletteSymboles(Texte symboles, bool libre, Texte ici, QWidget* parent);

  std::function<void(const Texte& symbole)> Choisi;
  void Ajoute(const std::vector<Commande>& commandes);

  // Beside a box, given in pixels of the screen, and on the screen as a whole.
  void Montre(const QRect& ici);
  // The pointer is over a button; where it lay when the palette opened it doesn't count.
  void Pointe(QWidget& bouton, QPoint ou);

 protected:
  void paintEvent(QPaintEvent* evenement) override;
  void keyPressEvent(QKeyEvent* evenement) override;

 private:
  void AjouteSymboles(QGridLayout* grille, bool libre);
  // Row and column of the button with the focus.
  std::pair<std::size_t, std::size_t> Ici() const;
  void Deplace(int colonnes, int lignes);
  void VaAuBout(bool debut);
  bool ChoisitTape(const QString& texte);

  Texte symboles_;
  Texte contenu_;
  std::vector<std::vector<QWidget*>> rangees_;  // symbols, then the commands
  QPoint pointeur_;
};

}  // namespace sudoku
