#include "qt/touches.h"

#include <QKeyEvent>

namespace sudoku {

int CodeTouche(const QKeyEvent& evenement) {
  const int touche = evenement.key();
  // Digits and capital letters are their own codes. Other characters are not: % is 37 here, which is an arrow
  // among key codes.
  if ((touche >= Qt::Key_0 && touche <= Qt::Key_9) || (touche >= Qt::Key_A && touche <= Qt::Key_Z))
    return touche;
  switch (touche) {
    case Qt::Key_Backspace:
      return 8;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      return 9;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return kToucheEntree;
    case Qt::Key_Escape:
      return kToucheEchappe;
    case Qt::Key_Space:
      return kToucheEspace;
    case Qt::Key_PageUp:
      return 33;
    case Qt::Key_PageDown:
      return 34;
    case Qt::Key_End:
      return 35;
    case Qt::Key_Home:
      return 36;
    case Qt::Key_Left:
      return 37;
    case Qt::Key_Up:
      return 38;
    case Qt::Key_Right:
      return 39;
    case Qt::Key_Down:
      return 40;
    case Qt::Key_Insert:
      return 45;
    case Qt::Key_Delete:
      return 46;
    default:
      return 0;
  }
}

}  // namespace sudoku
