#pragma once

#include <QString>

#include "text/texte.h"

class QKeyEvent;

namespace sudoku {

// Key codes as the handlers get them.
inline constexpr int kToucheEntree = 13;
inline constexpr int kToucheEchappe = 27;
inline constexpr int kToucheEspace = 32;

// The key code of a key; 0 for one that no handler could tell apart.
int CodeTouche(const QKeyEvent& evenement);

// What a key types into a grid of these symbols: its own character, but for a key of the row of digits that
// gives another one unshifted, as French keyboards do: its digit, where that is a symbol and the character is
// none. Empty: nothing (a control, or a blank that is no symbol and would not be seen).
QString TexteTape(const QKeyEvent& evenement, const Texte& symboles);

}  // namespace sudoku
