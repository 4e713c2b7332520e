#include "qt/editeur_case.h"

#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QMouseEvent>

namespace sudoku {

EditeurCase::EditeurCase(QWidget* parent) : QLineEdit(parent) {
  setFrame(false);
  QPalette sansFond = palette();
  sansFond.setColor(QPalette::Base, Qt::transparent);  // the board paints what lies below the text
  setPalette(sansFond);
  setAcceptDrops(false);
  setDragEnabled(false);
  setAlignment(Qt::AlignCenter);
  setTextMargins(-2, -1, -2,
                 -1);  // takes the field's own margins away: the smallest boxes have no room for them
  connect(this, &QLineEdit::textEdited, this, [this](const QString& texte) {
    if (!dansMethode_) Saisi(texte);
  });
}

bool EditeurCase::event(QEvent* evenement) {
  // Before the toolkit makes a move to the next widget of a Tab.
  if (evenement->type() == QEvent::KeyPress && Touche(*static_cast<QKeyEvent*>(evenement))) return true;
  // Undo and redo belong to the board: without this the field would take them as its own shortcuts.
  if (evenement->type() == QEvent::ShortcutOverride) {
    auto* touche = static_cast<QKeyEvent*>(evenement);
    if (touche->matches(QKeySequence::Undo) || touche->matches(QKeySequence::Redo)) {
      evenement->accept();
      return true;
    }
  }
  return QLineEdit::event(evenement);
}

void EditeurCase::keyPressEvent(QKeyEvent* evenement) {
  if (evenement->matches(QKeySequence::Undo) || evenement->matches(QKeySequence::Redo)) return;
  QLineEdit::keyPressEvent(evenement);
}

void EditeurCase::focusInEvent(QFocusEvent* evenement) {
  QLineEdit::focusInEvent(evenement);
  Revenu();
}

void EditeurCase::inputMethodEvent(QInputMethodEvent* evenement) {
  const bool commence = !compose_;
  const bool valide = !evenement->commitString().isEmpty() || evenement->replacementLength() > 0;
  if (commence) avantComposition_ = text();
  compose_ = !evenement->preeditString().isEmpty();
  dansMethode_ = true;
  QLineEdit::inputMethodEvent(evenement);
  dansMethode_ = false;
  if (valide && !isReadOnly()) {
    const QString texte = text();
    avantComposition_ = texte;
    Saisi(texte);
  } else if (!compose_ && text() != avantComposition_) {
    setText(avantComposition_);
    selectAll();
  }
}

void EditeurCase::mousePressEvent(QMouseEvent* evenement) {
  evenement->accept();
  if (evenement->button() == Qt::MiddleButton) {
    QLineEdit::mousePressEvent(evenement);
  } else {
    Clic();
  }
}

void EditeurCase::contextMenuEvent(QContextMenuEvent* evenement) {
  evenement->accept();
  Menu();
}

}  // namespace sudoku
