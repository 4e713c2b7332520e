#include "qt/icone.h"

#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

namespace sudoku {
namespace {

QIcon Compose() {
  QIcon icone(QPixmap(QStringLiteral(":/icones/sudoku-16.xpm")));
  icone.addPixmap(QPixmap(QStringLiteral(":/icones/sudoku-32.xpm")));
  QSvgRenderer dessin(QStringLiteral(":/icones/sudoku.svg"));
  for (const int cote : {48, 64, 128}) {
    QPixmap image(cote, cote);
    image.fill(Qt::transparent);
    QPainter p(&image);
    dessin.render(&p);
    p.end();
    icone.addPixmap(image);
  }
  return icone;
}

}  // namespace

const QIcon& IconeDuJeu() {
  static const QIcon icone = Compose();
  return icone;
}

}  // namespace sudoku
