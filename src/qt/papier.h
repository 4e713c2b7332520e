#pragma once

#include <QSize>

#include "platform/fenetre.h"

class QPainter;

namespace sudoku {

// A window on paper: the text of its first label as a title, and its board, black on white, without what only
// serves on a screen. What was given is bold, what was entered is not. In hundredths of a millimetre.
inline constexpr int kPapierParPouce = 2540;

// What the drawing takes, at most the area inside the margins of a page of A4.
QSize TailleSurPapier(const Fenetre& fenetre);
// Draws it into its size, from the upper left corner on.
void DessineSurPapier(const Fenetre& fenetre, QPainter& p);

}  // namespace sudoku
