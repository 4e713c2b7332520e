#pragma once

class QKeyEvent;

namespace sudoku {

// Key codes as the handlers get them.
inline constexpr int kToucheEntree = 13;
inline constexpr int kToucheEchappe = 27;
inline constexpr int kToucheEspace = 32;

// The key code of a key; 0 for one that no handler could tell apart.
int CodeTouche(const QKeyEvent& evenement);

}  // namespace sudoku
