#include "qt/mesure.h"

#include <QApplication>
#include <QFontMetrics>
#include <algorithm>

namespace sudoku {

QFont PoliceQt(const Police& police, double echelle) {
  QFont f;
  f.setFamilies({QStringLiteral("Liberation Sans"), QStringLiteral("Arimo"), QStringLiteral("Arial"),
                 QString::fromUtf8(police.Nom)});
  f.setStyleHint(QFont::SansSerif);
  f.setPixelSize(std::max(1, static_cast<int>(std::lround(police.Taille * kPixelsParPoint * echelle))));
  f.setBold(police.Gras);
  f.setItalic(police.Italique);
  return f;
}

double EchelleDuBureau() {
  return QApplication::font().pixelSize() / (Police().Taille * kPixelsParPoint);
}

int AuBureau(int pixels) {
  return static_cast<int>(std::lround(pixels * EchelleDuBureau()));
}

QFont Condensee(QFont police, const QString& texte, int largeur, int moindre) {
  const int voulue = QFontMetrics(police).horizontalAdvance(texte);
  if (voulue <= largeur || voulue == 0) return police;
  for (int pourcent = std::max(moindre, 100 * largeur / voulue); pourcent >= moindre; pourcent -= 5) {
    police.setStretch(pourcent);
    if (QFontMetrics(police).horizontalAdvance(texte) <= largeur) break;
  }
  return police;
}

}  // namespace sudoku
