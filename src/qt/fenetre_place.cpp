// Where a window lies on the screen, and how large it is.

#include <QKeyEvent>
#include <QMenuBar>
#include <QScreen>
#include <QStyle>
#include <QWheelEvent>
#include <QWindow>
#include <algorithm>

#include "qt/fenetre_qt.h"
#include "qt/mesure.h"
#include "qt/plateau_qt.h"

namespace sudoku {

// ---- size and place

void FenetreQt::MetSansEcran() {
  sansEcran_ = true;
  Dispose();
}

QSize FenetreQt::Disponible() const {
  if (sansEcran_) return QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
  // A window manager tells how thick its frame is only once the window is there, and some never do.
  QSize bords(8, 34);
  if (windowHandle() != nullptr)
    bords = bords.expandedTo(QSize(0, 0).grownBy(windowHandle()->frameMargins()));
  return screen()->availableSize() - bords;
}

// From top to bottom: menu bar; labels, at a scale at which they can be read; the board, at the zoom. Without
// a board the window has the record's size. With one it grows and shrinks with the zoom, as far as the screen
// allows: then the board scrolls, and the bar of one direction takes its room from the other.
void FenetreQt::Dispose() {
  voulue_ = QSize(fenetre_.Width, fenetre_.Height);
  const int menu = barre_ != nullptr ? barre_->sizeHint().height() : 0;
  const QSize disponible = Disponible();
  const QSize table(Pixels(fenetre_.Width), Pixels(fenetre_.Height));
  double echelle = bureau_;
  if (plateau_ == nullptr && bureau_ > 1) {
    echelle = std::clamp(
        std::min(1.0 * disponible.width() / table.width(), 1.0 * disponible.height() / table.height()), 1.0,
        bureau_);
  }
  QSize taille = (QSizeF(table) * echelle).toSize();
  if (plateau_ != nullptr) {
    Twips haut = 0;
    for (const Element& element : fenetre_.elements) haut = std::max(haut, element.Top + element.Height);
    echelle = bureau_ * std::clamp(zoom_, 1.0, 2.0);
    const double zoom = bureau_ * zoom_;
    const int entete = Pixels(haut, echelle);
    const QSize contenu(
        Pixels(fenetre_.Width, zoom),
        static_cast<int>(std::lround((table.height() - menu / bureau_ - Pixels(haut)) * zoom)));
    const int barre = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    taille = QSize(contenu.width(), menu + entete + contenu.height());
    if (taille.height() > disponible.height()) taille.rwidth() += barre;
    if (taille.width() > disponible.width()) taille.rheight() += barre;
    if (barre_ != nullptr) taille.setWidth(std::max(taille.width(), barre_->sizeHint().width()));
    taille = taille.boundedTo(disponible);
    plateau_->setGeometry(0, entete, taille.width(), taille.height() - menu - entete);
    plateau_->Dimensionne(zoom, haut, contenu);
  }
  setFixedSize(taille);
  if (barre_ != nullptr) barre_->setGeometry(0, 0, taille.width(), menu);
  fond_->setGeometry(0, menu, taille.width(), taille.height() - menu);
  for (const auto& element : elements_) element->Place(echelle, taille.width(), plateau_ != nullptr);
  if (isVisible()) RentreDansLEcran();
}

void FenetreQt::RentreDansLEcran() {
  if (plateau_ == nullptr || sansEcran_) return;
  const QRect ecran = screen()->availableGeometry();
  const QRect cadre = frameGeometry();
  const int x = std::max(ecran.left(), std::min(cadre.left(), ecran.right() + 1 - cadre.width()));
  const int y = std::max(ecran.top(), std::min(cadre.top(), ecran.bottom() + 1 - cadre.height()));
  if (cadre.topLeft() != QPoint(x, y)) move(x, y);
}

void FenetreQt::CentreSurProprietaire() {
  const QWidget* proprietaire = parentWidget();
  if (!fenetre_.CentreSurProprietaire || proprietaire == nullptr) return;
  const QRect ecran = screen()->availableGeometry();
  QRect cadre(QPoint(), size());
  cadre.moveCenter(proprietaire->frameGeometry().center());
  cadre.moveTopLeft(
      QPoint(std::clamp(cadre.left(), ecran.left(), std::max(ecran.left(), ecran.right() - width())),
             std::clamp(cadre.top(), ecran.top(), std::max(ecran.top(), ecran.bottom() - height()))));
  move(cadre.topLeft());
}

// A tool comes up beside its owner. Where the screen has no room there, it comes to the edge of the screen
// and leaves menus and labels free.
void FenetreQt::PlaceACote() {
  const auto* voisine = dynamic_cast<const FenetreQt*>(parentWidget());
  if (placee_ || voisine == nullptr || windowType() != Qt::Tool) return;
  placee_ = true;
  const QRect ecran = voisine->screen()->availableGeometry();
  const QRect place = voisine->frameGeometry();
  // Its frame will be as thick, and as long as that isn't there the place is that of what it holds.
  const QSize cadre = size() + place.size() - voisine->size();
  const QPoint dedans = voisine->geometry().topLeft() - place.topLeft();
  QPoint coin(place.right() + 1, place.top());
  if (coin.x() + cadre.width() > ecran.right() + 1) coin.setX(place.left() - cadre.width());
  if (coin.x() < ecran.left()) {
    coin.setX(ecran.right() + 1 - cadre.width());
    if (voisine->plateau_ != nullptr) coin.setY(voisine->plateau_->mapToGlobal(QPoint()).y());
  }
  const int bas = std::max(ecran.top(), ecran.bottom() + 1 - cadre.height());
  move(QPoint(coin.x(), std::clamp(coin.y(), ecran.top(), bas)) + dedans);
}

void FenetreQt::showEvent(QShowEvent* evenement) {
  CentreSurProprietaire();
  PlaceACote();
  QWidget::showEvent(evenement);
  if (focusWidget() != nullptr || plateau_ != nullptr) return;
  // The first stop in the order of the Tab key.
  QWidget* premier = nullptr;
  int rang = 0;
  for (const auto& element : elements_) {
    const Element& e = element->LElement();
    if (e.TabIndex < 0 || !e.TabStop || !e.Visible || element->Widget()->focusPolicy() == Qt::NoFocus)
      continue;
    if (e.genre == Genre::kCadre || (premier != nullptr && e.TabIndex > rang)) continue;
    premier = element->Widget();
    rang = e.TabIndex;
  }
  if (premier != nullptr) premier->setFocus();
}

// The real frame is known, or the window is on another screen.
bool FenetreQt::event(QEvent* evenement) {
  const bool resultat = QWidget::event(evenement);
  if (evenement->type() == QEvent::ScreenChangeInternal && plateau_ != nullptr) Dispose();
  return resultat;
}

// ---- larger and smaller

void FenetreQt::ChangeZoom(int pas) {
  constexpr int kPourcents[] = {25, 33, 50, 67, 80, 90, 100, 110, 125, 150, 175, 200, 250, 300, 350, 400};
  constexpr int kCent = 6;
  const int ici = static_cast<int>(std::lround(zoom_ * 100));
  int n = static_cast<int>(std::ranges::lower_bound(kPourcents, ici) - std::begin(kPourcents));
  n = pas == 0 ? kCent : std::clamp(n + pas, 0, static_cast<int>(std::size(kPourcents)) - 1);
  zoom_ = kPourcents[n] / 100.0;
  Dispose();
  update();
}

bool FenetreQt::ToucheDeZoom(const QKeyEvent& evenement) {
  if (plateau_ == nullptr || !(evenement.modifiers() & Qt::ControlModifier)) return false;
  const bool maj = evenement.modifiers() & Qt::ShiftModifier;
  switch (evenement.key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
      ChangeZoom(1);
      return true;
    case Qt::Key_Minus:
    case Qt::Key_Underscore:
      ChangeZoom(-1);
      return true;
    case Qt::Key_0:
    case Qt::Key_Agrave:
      ChangeZoom(0);
      return true;
    case Qt::Key_6:  // the shifted form of a French keyboard's minus
      if (maj) ChangeZoom(-1);
      return maj;
    default:
      return false;
  }
}

void FenetreQt::wheelEvent(QWheelEvent* evenement) {
  if (plateau_ == nullptr || !(evenement->modifiers() & Qt::ControlModifier)) return;
  constexpr int kCran = 120;
  roue_ += evenement->angleDelta().y();
  const int crans = roue_ / kCran;
  roue_ -= crans * kCran;
  if (crans != 0) ChangeZoom(crans);
}

}  // namespace sudoku
