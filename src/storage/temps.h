#pragma once

#include <cstdint>
#include <optional>

#include "text/texte.h"

namespace sudoku {

// Times of games. In memory a time is a number of days; it comes from a whole number of milliseconds by one
// division, so that a time of whole seconds equals the same time read back from its text.
inline double Jours(std::int64_t millisecondes) {
  return static_cast<double>(millisecondes) / 86'400'000.0;
}

// "00:03:17": hours of two digits or more, which go on past 24, minutes, seconds; rounded to the nearest
// second, half a second upwards. A negative time is 00:00:00.
Texte TempsEnTexte(double jours);
// Reads such a text back: digits, ":", 00 to 59, ":", 00 to 59 and nothing else. Nothing for any other text,
// or for more milliseconds than a double counts one by one.
std::optional<double> TexteEnTemps(TexteVue texte);

}  // namespace sudoku
