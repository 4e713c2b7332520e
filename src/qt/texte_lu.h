#pragma once

#include <QAccessible>
#include <QLineEdit>

namespace sudoku {

// A text of one line for screen readers: caret and selection are those of the field that shows it, if one
// does. A reader moves the caret and changes nothing.
class TexteLu : public QAccessibleTextInterface {
 public:
  virtual QString Contenu() const = 0;
  virtual QRect Place() const = 0;
  // Null while none shows it.
  virtual QLineEdit* Champ() const = 0;

  int selectionCount() const override { return Champ() != nullptr && Champ()->hasSelectedText() ? 1 : 0; }
  void selection(int n, int* debut, int* fin) const override {
    const bool une = n < selectionCount();
    *debut = une ? Champ()->selectionStart() : 0;
    *fin = une ? Champ()->selectionEnd() : 0;
  }
  int cursorPosition() const override { return Champ() != nullptr ? Champ()->cursorPosition() : 0; }
  void setCursorPosition(int position) override {
    if (Champ() != nullptr) Champ()->setCursorPosition(position);
  }
  int characterCount() const override { return static_cast<int>(Contenu().size()); }
  QString text(int debut, int fin) const override { return Contenu().mid(debut, fin - debut); }
  QRect characterRect(int) const override { return Place(); }
  int offsetAtPoint(const QPoint& point) const override {
    return Place().contains(point) && !Contenu().isEmpty() ? 0 : -1;
  }
  QString attributes(int, int* debut, int* fin) const override {
    *debut = 0;
    *fin = characterCount();
    return {};
  }
  void addSelection(int, int) override {}
  void removeSelection(int) override {}
  void setSelection(int, int, int) override {}
  void scrollToSubstring(int, int) override {}
};

}  // namespace sudoku
