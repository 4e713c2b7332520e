#pragma once

#include <memory>

#include "qt/elements.h"

namespace sudoku {

std::unique_ptr<ElementQt> FabriqueListe(Element& element, QWidget* parent, Pilote& pilote);
// An edit field with its list always shown below it.
std::unique_ptr<ElementQt> FabriqueChampListe(Element& element, QWidget* parent, Pilote& pilote);

}  // namespace sudoku
