#pragma once

#include <QString>

#include "text/texte.h"

namespace sudoku {

inline QString VersQt(TexteVue texte) {
  return QString::fromUcs4(texte.data(), static_cast<qsizetype>(texte.size()));
}

inline Texte DepuisQt(const QString& texte) {
  const auto codes = texte.toUcs4();
  return Texte(codes.begin(), codes.end());
}

// Positions are code points for the game, UTF-16 units for the toolkit.
inline int PositionQt(TexteVue texte, int codePoints) {
  const auto n = std::min(static_cast<std::size_t>(std::max(codePoints, 0)), texte.size());
  return static_cast<int>(VersQt(texte.substr(0, n)).size());
}

}  // namespace sudoku
