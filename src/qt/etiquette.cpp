#include "qt/etiquette.h"

#include <QPainter>

#include "qt/mesure.h"

namespace sudoku {

void Etiquette::Montre(const QString& texte) {
  if (texte_ == texte) return;
  texte_ = texte;
  Ajuste();
  update();
}

void Etiquette::PrendApparence(const QFont& police, bool centre, bool bordure) {
  police_ = police;
  centre_ = centre;
  bordure_ = bordure;
  Ajuste();
}

QRect Etiquette::Dedans() const {
  const int bord = bordure_ ? 2 : 0;
  return rect().adjusted(bord, bord, -bord, -bord);
}

void Etiquette::Ajuste() {
  constexpr int kMarge = 4;  // between a text and the border of the label below it
  setFont(centre_ ? Condensee(police_, texte_, Dedans().width() - kMarge, 60) : police_);
  const bool coupe = centre_ && fontMetrics().horizontalAdvance(texte_) > Dedans().width();
  // As rich text a name in angle brackets would vanish.
  setToolTip(coupe ? texte_.toHtmlEscaped() : QString());
}

void Etiquette::paintEvent(QPaintEvent*) {
  QPainter p(this);
  if (bordure_) {
    // Filled: a drawn line of a fraction of a pixel may fall outside, where nothing is shown.
    const QRegion bord = QRegion(rect()) - rect().adjusted(1, 1, -1, -1);
    for (const QRect& cote : bord) p.fillRect(cote, palette().color(QPalette::Dark));
  }
  p.setPen(palette().color(QPalette::WindowText));
  if (centre_) {
    p.drawText(Dedans(), Qt::AlignHCenter | Qt::AlignTop | Qt::TextSingleLine,
               fontMetrics().elidedText(texte_, Qt::ElideRight, Dedans().width()));
  } else {
    p.drawText(Dedans(), Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, texte_);
  }
}

}  // namespace sudoku
