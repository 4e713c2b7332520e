#pragma once

#include <QColor>
#include <QFont>
#include <cmath>

#include "platform/element.h"

namespace sudoku {

inline constexpr double kTwipsParPixel = 15;
inline constexpr double kPixelsParPoint = 20 / kTwipsParPixel;

// Twips to pixels; `echelle` 1 is the size of the tables.
inline int Pixels(Twips twips, double echelle = 1) {
  return static_cast<int>(std::lround(twips / kTwipsParPixel * echelle));
}

inline QColor CouleurQt(Couleur c) {
  return QColor(static_cast<int>(c & 0xFF), static_cast<int>(c >> 8 & 0xFF),
                static_cast<int>(c >> 16 & 0xFF));
}

// The font of a table, sized in pixels, in an installed face with the metrics of the one that is named there.
QFont PoliceQt(const Police& police, double echelle = 1);

// `police` narrowed as far as it takes (down to `moindre` percent) for `texte` to fit into `largeur` pixels.
QFont Condensee(QFont police, const QString& texte, int largeur, int moindre = 50);

// How many times larger than in the tables windows and menus are, as the desktop's font wants it: that of the
// application, which is made so in PrepareApplication.
double EchelleDuBureau();

// A length in pixels of windows that grow with the desktop's font, from the one at its usual size.
int AuBureau(int pixels);

}  // namespace sudoku
