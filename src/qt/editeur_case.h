#pragma once

#include <QLineEdit>
#include <functional>

namespace sudoku {

// The one real edit field of a board: it lies over the box that has the focus and brings caret, selection,
// clipboard and input methods. It reports each change of its text by the user once, with the whole text;
// nothing while a text is being composed, and then one change at the commit. A composition given up leaves
// the text as it was. Its own undo, drop and context menu are off.
class EditeurCase : public QLineEdit {
 public:
  explicit EditeurCase(QWidget* parent);

  std::function<void(const QString& texte)> Saisi;
  // A key, before the field gets it; True: it is used up.
  std::function<bool(QKeyEvent& evenement)> Touche;
  // The field has the keyboard again; what it selects then is for the listener to say.
  std::function<void()> Revenu;
  std::function<void()> Clic;
  std::function<void()> Menu;

  bool Compose() const { return compose_; }

 protected:
  bool event(QEvent* evenement) override;
  void keyPressEvent(QKeyEvent* evenement) override;
  void focusInEvent(QFocusEvent* evenement) override;
  void inputMethodEvent(QInputMethodEvent* evenement) override;
  void mousePressEvent(QMouseEvent* evenement) override;
  // A shaky click would lose the selection that it has just made.
  void mouseMoveEvent(QMouseEvent*) override {}
  void contextMenuEvent(QContextMenuEvent* evenement) override;
  // The Tab key is the board's; when the toolkit itself looks for another place for the focus, it stays.
  bool focusNextPrevChild(bool) override { return false; }

 private:
  bool compose_ = false;
  bool dansMethode_ = false;
  QString avantComposition_;
};

}  // namespace sudoku
