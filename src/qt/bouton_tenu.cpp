#include "qt/bouton_tenu.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <utility>

#include "qt/touches.h"

namespace sudoku {

BoutonTenu::BoutonTenu(Element& element, Pilote& pilote, QWidget* parent)
    : QPushButton(parent), element_(element), pilote_(pilote) {}

void BoutonTenu::Appuie(Tenu par) {
  if (tenu_ != Tenu::kNon) return;
  tenu_ = par;
  setDown(true);
  pilote_.ExecuteCommande([&] {
    if (par == Tenu::kSouris && element_.MouseDown) element_.MouseDown();
    if (par == Tenu::kClavier && element_.KeyDown) element_.KeyDown(kToucheEspace);
  });
}

void BoutonTenu::Relache() {
  const Tenu par = std::exchange(tenu_, Tenu::kNon);
  if (par == Tenu::kNon) return;
  setDown(false);
  pilote_.Execute([&] {
    if (par == Tenu::kSouris && element_.MouseUp) element_.MouseUp();
    if (par == Tenu::kClavier && element_.KeyUp) element_.KeyUp(kToucheEspace);
  });
}

void BoutonTenu::mousePressEvent(QMouseEvent* evenement) {
  evenement->accept();
  Appuie(Tenu::kSouris);
}

void BoutonTenu::mouseReleaseEvent(QMouseEvent* evenement) {
  evenement->accept();
  if (tenu_ == Tenu::kNon || evenement->buttons() != Qt::NoButton) return;
  Relache();
  if (rect().contains(evenement->position().toPoint())) emit clicked();
}

void BoutonTenu::keyPressEvent(QKeyEvent* evenement) {
  if (CodeTouche(*evenement) != kToucheEspace) {
    QPushButton::keyPressEvent(evenement);
  } else if (!evenement->isAutoRepeat()) {
    Appuie(Tenu::kClavier);
  }
}

void BoutonTenu::keyReleaseEvent(QKeyEvent* evenement) {
  if (CodeTouche(*evenement) != kToucheEspace) {
    QPushButton::keyReleaseEvent(evenement);
  } else if (!evenement->isAutoRepeat() && tenu_ != Tenu::kNon) {
    Relache();
    emit clicked();
  }
}

void BoutonTenu::focusOutEvent(QFocusEvent* evenement) {
  Relache();
  QPushButton::focusOutEvent(evenement);
}

void BoutonTenu::hideEvent(QHideEvent* evenement) {
  Relache();
  QPushButton::hideEvent(evenement);
}

bool BoutonTenu::event(QEvent* evenement) {
  if (evenement->type() == QEvent::WindowDeactivate) Relache();
  return QPushButton::event(evenement);
}

}  // namespace sudoku
