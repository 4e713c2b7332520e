#include "qt/plateau_qt.h"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QStyle>

#include "qt/editeur_case.h"
#include "qt/lecture_plateau.h"
#include "qt/mesure.h"
#include "qt/texte_qt.h"

namespace sudoku {

PlateauQt::PlateauQt(Fenetre& fenetre, Pilote& pilote, QWidget* parent)
    : QAbstractScrollArea(parent),
      fenetre_(fenetre),
      pilote_(pilote),
      geometrie_(fenetre.plateau),
      editeur_(new EditeurCase(viewport())) {
  setObjectName(QStringLiteral("TxtCase"));
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::StrongFocus);
  viewport()->setAutoFillBackground(false);
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
  editeur_->setObjectName(QStringLiteral("TxtCase.editeur"));
  editeur_->hide();
  BrancheEditeur();
}

// ---- what the records hold

void PlateauQt::Synchronise() {
  Relit();
  SuitFocus();
  SuitChangements();
  SuitEditeur();
}

void PlateauQt::Relit() {
  const Plateau& plateau = fenetre_.plateau;
  if (constructions_ == plateau.Constructions()) return;
  constructions_ = plateau.Constructions();
  geometrie_.Relit();
  focus_ = 0;
  if (plateau.Focus() == 0) setFocus();
  editeur_->hide();
  horizontalScrollBar()->setValue(0);
  verticalScrollBar()->setValue(0);
  viewport()->update();
}

void PlateauQt::SuitFocus() {
  const int voulu = fenetre_.plateau.Focus();
  if (focus_ == voulu) return;
  if (focus_ != 0) Repeint(focus_);
  focus_ = voulu;
  if (voulu == 0) {
    setFocus();
    editeur_->hide();
    return;
  }
  Repeint(voulu);
  PlaceEditeur();
  MontreFocus();
  editeur_->setText(VersQt(fenetre_.plateau.TxtCase(voulu).Text));
  editeur_->show();
  editeur_->setFocus();
  redessins_ = fenetre_.plateau.Redessins() - 1;  // the selection is to be written
  AnnonceFocus(*this);
}

void PlateauQt::SuitEditeur() {
  if (focus_ == 0 || editeur_->Compose()) return;
  const Plateau& plateau = fenetre_.plateau;
  const CaseTexte& caseTexte = plateau.TxtCase(focus_);
  const QString texte = VersQt(caseTexte.Text);
  if (editeur_->isReadOnly() != caseTexte.Locked) editeur_->setReadOnly(caseTexte.Locked);
  const QColor encre = CouleurQt(caseTexte.ForeColor);
  if (editeur_->palette().color(QPalette::Text) != encre) {
    QPalette palette = editeur_->palette();
    palette.setColor(QPalette::Text, encre);
    editeur_->setPalette(palette);
  }
  const bool autre = editeur_->text() != texte;
  if (autre) editeur_->setText(texte);
  if (!autre && redessins_ == plateau.Redessins()) return;
  redessins_ = plateau.Redessins();
  const int debut = PositionQt(caseTexte.Text, caseTexte.SelStart);
  editeur_->setSelection(debut, PositionQt(caseTexte.Text, caseTexte.SelStart + caseTexte.SelLength) - debut);
}

void PlateauQt::SuitChangements() {
  constexpr std::size_t kBeaucoup = 200;
  const std::vector<std::int32_t>& changees = fenetre_.plateau.Changees();
  if (changees.size() > kBeaucoup) {
    viewport()->update();
  } else {
    for (const std::int32_t i : changees) {
      if (i > 0 && i <= fenetre_.plateau.Cases()) Repeint(i);
    }
  }
  if (QAccessible::isActive()) {
    for (const std::int32_t i : changees) AnnonceChangement(*this, i);
  }
  fenetre_.plateau.OublieChangees();
}

// ---- the focus

void PlateauQt::Focalise(int i) {
  if (i == 0) return;
  const bool meme = i == fenetre_.plateau.Focus();
  pilote_.Execute([&] { fenetre_.plateau.SetFocus(i); });
  if (!meme || focus_ != i) return;
  SelectionneEncore();
  editeur_->setFocus();
}

// As the record says, whatever the user has done to the selection.
void PlateauQt::SelectionneEncore() {
  redessins_ = fenetre_.plateau.Redessins() - 1;
  SuitEditeur();
}

// To the next box that is a stop, in a circle, or the one before.
void PlateauQt::Tabule(bool avant) {
  const Plateau& plateau = fenetre_.plateau;
  const int n = plateau.Cases();
  int i = plateau.Focus();
  if (i == 0 && !avant) i = n + 1;
  for (int pas = 0; pas < n; ++pas) {
    i += avant ? 1 : -1;
    if (i > n) i = 1;
    if (i < 1) i = n;
    if (plateau.TxtCase(i).TabStop) {
      return Focalise(i);
    }
  }
}

// ---- mouse

void PlateauQt::wheelEvent(QWheelEvent* evenement) {
  if (evenement->modifiers() & Qt::ControlModifier) {
    evenement->ignore();  // the window makes the board larger or smaller
  } else {
    QAbstractScrollArea::wheelEvent(evenement);
  }
}

void PlateauQt::mousePressEvent(QMouseEvent* evenement) {
  const QPoint appareil = (evenement->position() * devicePixelRatioF()).toPoint();
  Focalise(geometrie_.PlusProche(appareil - Origine()));
}

// A press beside the boxes, or whatever else brings the keyboard here, leaves it with the box that has the
// focus.
void PlateauQt::focusInEvent(QFocusEvent* evenement) {
  QAbstractScrollArea::focusInEvent(evenement);
  if (focus_ != 0) editeur_->setFocus();
}

void PlateauQt::contextMenuEvent(QContextMenuEvent*) {
  OuvrePalette();
}

// ---- size and place

void PlateauQt::Dimensionne(double zoom, Twips haut, QSize contenu) {
  zoom_ = zoom;
  haut_ = haut;
  contenu_ = contenu;
  Redimensionne();
}

void PlateauQt::Redimensionne() {
  const double dpr = devicePixelRatioF();
  geometrie_.MetAEchelle(zoom_ * dpr / kTwipsParPixel, haut_);
  police_ = PoliceQt({.Gras = true}, zoom_ * dpr);
  MontreBarres();
  const QSize vue = viewport()->size();
  horizontalScrollBar()->setPageStep(vue.width());
  horizontalScrollBar()->setRange(0, std::max(0, contenu_.width() - vue.width()));
  verticalScrollBar()->setPageStep(vue.height());
  verticalScrollBar()->setRange(0, std::max(0, contenu_.height() - vue.height()));
  const int pas = std::max(1, Pixels(fenetre_.plateau.TxtCase(0).Width, zoom_));
  horizontalScrollBar()->setSingleStep(pas);
  verticalScrollBar()->setSingleStep(pas);
  PlaceEditeur();
  MontreFocus();
  viewport()->update();
}

// At once: left to itself the toolkit lays the bars out later, when the size of the view was needed before.
void PlateauQt::MontreBarres() {
  const int barre = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  bool verticale = contenu_.height() > height();
  const bool horizontale = contenu_.width() > width() - (verticale ? barre : 0);
  verticale = contenu_.height() > height() - (horizontale ? barre : 0);
  setVerticalScrollBarPolicy(verticale ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
  setHorizontalScrollBarPolicy(horizontale ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
}

void PlateauQt::resizeEvent(QResizeEvent*) {
  Redimensionne();
}

QPoint PlateauQt::Origine() const {
  const int marge = std::max(0, viewport()->width() - contenu_.width()) / 2;
  const QPointF coin(marge - horizontalScrollBar()->value(), -verticalScrollBar()->value());
  return (coin * devicePixelRatioF()).toPoint();
}

void PlateauQt::scrollContentsBy(int dx, int dy) {
  const double dpr = devicePixelRatioF();
  // Moving pixels is exact only where a pixel of the window is a whole number of the screen's.
  if (dpr == std::floor(dpr)) {
    viewport()->scroll(dx, dy);
  } else {
    viewport()->update();
  }
  PlaceEditeur();
}

QRect PlateauQt::EnPixels(const QRect& appareil) const {
  const double dpr = devicePixelRatioF();
  const int gauche = static_cast<int>(std::floor(appareil.left() / dpr));
  const int haut = static_cast<int>(std::floor(appareil.top() / dpr));
  return QRect(QPoint(gauche, haut), QPoint(static_cast<int>(std::ceil((appareil.right() + 1) / dpr)) - 1,
                                            static_cast<int>(std::ceil((appareil.bottom() + 1) / dpr)) - 1));
}

QRect PlateauQt::RectangleCase(int i) const {
  return EnPixels(geometrie_.Case(i).translated(Origine()));
}

int PlateauQt::CaseSous(QPoint point) const {
  const QPoint appareil = (QPointF(point) * devicePixelRatioF()).toPoint();
  return geometrie_.CaseSous(appareil - Origine());
}

void PlateauQt::PlaceEditeur() {
  if (focus_ == 0) return;
  const int bord = geometrie_.Trait();
  const QRect dedans = geometrie_.Case(focus_).adjusted(bord, bord, -bord, -bord).translated(Origine());
  editeur_->setFont(PoliceQt({.Gras = true}, zoom_));
  editeur_->setGeometry(EnPixels(dedans));
}

void PlateauQt::MontreFocus() {
  if (focus_ == 0) return;
  const QRect anneau = EnPixels(Anneau(focus_).translated(Origine()));
  const QRect vue = viewport()->rect();
  const auto avance = [](int debut, int fin, int taille) {
    if (debut < 0) return debut;
    return fin >= taille ? std::min(debut, fin - taille + 1) : 0;
  };
  const int dx = avance(anneau.left(), anneau.right(), vue.width());
  const int dy = avance(anneau.top(), anneau.bottom(), vue.height());
  if (dx != 0) horizontalScrollBar()->setValue(horizontalScrollBar()->value() + dx);
  if (dy != 0) verticalScrollBar()->setValue(verticalScrollBar()->value() + dy);
}

}  // namespace sudoku
