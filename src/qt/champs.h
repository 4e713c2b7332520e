#pragma once

#include <QLineEdit>
#include <memory>

#include "qt/elements.h"

namespace sudoku {

// The field of a text box of one line.
class ChampQt : public QLineEdit {
 public:
  using QLineEdit::QLineEdit;
};

// A text box of one line or several. A disabled one only displays: it is read, and its text gone through,
// with the keyboard; one with a colour of its own is a sample of that colour and takes no focus.
std::unique_ptr<ElementQt> FabriqueChamp(Element& element, QWidget* parent, Pilote& pilote);

}  // namespace sudoku
