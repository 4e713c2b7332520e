#pragma once

#include <QApplication>
#include <memory>

namespace sudoku {

class SystemeQt;

// Before there is an application: without `ecran` it draws with no display at all. A display that can't be
// reached, or goes away, ends the program with a message and exit status 1.
void PrepareAffichage(bool ecran);

// The application. Meanwhile a thread reads the configuration of the fonts; it has ended when this returns.
// The application keeps the reference to `argc`.
std::unique_ptr<QApplication> FabriqueApplication(int& argc, char** argv);

// The look and the language of the program, the same on every desktop: its own style, font and colours, and
// everything that the toolkit says in French.
void PrepareApplication(QApplication& application);

// The end of the desktop session, and the signals that end a program, are requests to close like any other.
void EcouteLesFins(SystemeQt& systeme);

}  // namespace sudoku
