#include "qt/etiquette.h"

#include <QPainter>

namespace sudoku {

void Etiquette::Montre(const QString& texte) {
  if (texte_ == texte) return;
  texte_ = texte;
  MetAJourBulle();
  update();
}

void Etiquette::Apparence(const QFont& police, bool centre, bool bordure) {
  setFont(police);
  centre_ = centre;
  bordure_ = bordure;
  MetAJourBulle();
}

QRect Etiquette::Dedans() const {
  const int bord = bordure_ ? 2 : 0;
  return rect().adjusted(bord, bord, -bord, -bord);
}

void Etiquette::MetAJourBulle() {
  const bool coupe = centre_ && fontMetrics().horizontalAdvance(texte_) > Dedans().width();
  // As rich text a name in angle brackets would vanish.
  setToolTip(coupe ? texte_.toHtmlEscaped() : QString());
}

void Etiquette::paintEvent(QPaintEvent*) {
  QPainter p(this);
  if (bordure_) {
    p.setPen(palette().color(QPalette::Dark));
    p.drawRect(rect().adjusted(0, 0, -1, -1));
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
