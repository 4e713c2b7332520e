// The keys of the board.

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>

#include "qt/plateau_qt.h"
#include "qt/touches.h"

namespace sudoku {

bool PlateauQt::Touche(QKeyEvent& evenement) {
  if (ToucheDeFenetre(evenement) || ToucheDeConfort(evenement)) return true;
  if (evenement.key() == Qt::Key_Tab || evenement.key() == Qt::Key_Backtab) {
    Tabulation(evenement.key() == Qt::Key_Tab);
    return true;
  }
  const int code = CodeTouche(evenement);
  const int avant = fenetre_.plateau.Focus();
  if (code == 0 || !fenetre_.KeyDown) return false;
  pilote_.Precede([&] { fenetre_.KeyDown(code); });
  if (fenetre_.plateau.Focus() == avant) return false;  // the box gets it
  pilote_.Execute([] {});
  return true;
}

bool PlateauQt::ToucheDeConfort(const QKeyEvent& evenement) {
  if (!(evenement.modifiers() & Qt::ControlModifier)) return false;
  const bool maj = evenement.modifiers() & Qt::ShiftModifier;
  switch (evenement.key()) {
    case Qt::Key_Z:
      Fait(maj ? fenetre_.conforts.Retablit : fenetre_.conforts.Annule);
      return true;
    case Qt::Key_V:
      if (maj) DeposeTexte(QApplication::clipboard()->text());
      return maj;
    case Qt::Key_C:
      if (maj) CopieGrille();
      return maj;
    case Qt::Key_Space:
      OuvrePalette();
      return true;
    default:
      return false;
  }
}

bool PlateauQt::event(QEvent* evenement) {
  if (evenement->type() == QEvent::KeyPress && Touche(*static_cast<QKeyEvent*>(evenement))) return true;
  return QAbstractScrollArea::event(evenement);
}

void PlateauQt::keyPressEvent(QKeyEvent* evenement) {
  if (evenement->key() == Qt::Key_PageUp || evenement->key() == Qt::Key_PageDown) {
    QAbstractScrollArea::keyPressEvent(evenement);
  } else {
    evenement->ignore();
  }
}

}  // namespace sudoku
