#pragma once

#include <QApplication>

namespace sudoku {

class SystemeQt;

// The look and the language of the program, the same on every desktop: its own style, font and colours, and
// everything that the toolkit says in French.
void PrepareApplication(QApplication& application);

// The end of the desktop session, and the signals that end a program, are requests to close like any other. A
// display that goes away ends the program with a message.
void EcouteLesFins(SystemeQt& systeme);

}  // namespace sudoku
