#pragma once

#include <memory>

#include "qt/elements.h"

namespace sudoku {

// A text box of one line or several. A disabled one only displays: it takes no focus, unless it has more
// lines than it shows and is to be read with the keyboard.
std::unique_ptr<ElementQt> FabriqueChamp(Element& element, QWidget* parent, Pilote& pilote);

}  // namespace sudoku
