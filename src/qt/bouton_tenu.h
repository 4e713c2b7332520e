#pragma once

#include <QPushButton>

#include "platform/element.h"
#include "qt/pilote.h"

namespace sudoku {

// A button that listens to being held, with any mouse button or the space bar. What begins ends exactly once:
// at the first release of either, or when the button loses the focus, its window is deactivated, or it is
// hidden. By hand: pressed and released of the toolkit's button are of the left mouse button only, and end
// where the pointer leaves the button.
class BoutonTenu : public QPushButton {
 public:
  BoutonTenu(Element& element, Pilote& pilote, QWidget* parent);

 protected:
  void mousePressEvent(QMouseEvent* evenement) override;
  void mouseReleaseEvent(QMouseEvent* evenement) override;
  void keyPressEvent(QKeyEvent* evenement) override;
  void keyReleaseEvent(QKeyEvent* evenement) override;
  void focusOutEvent(QFocusEvent* evenement) override;
  void hideEvent(QHideEvent* evenement) override;
  bool event(QEvent* evenement) override;

 private:
  enum class Tenu { kNon, kSouris, kClavier };
  void Appuie(Tenu par);
  void Relache();

  Element& element_;
  Pilote& pilote_;
  Tenu tenu_ = Tenu::kNon;
};

}  // namespace sudoku
