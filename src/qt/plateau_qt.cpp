#include "qt/plateau_qt.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QStyle>
#include <QToolTip>

#include "qt/editeur_case.h"
#include "qt/lecture_plateau.h"
#include "qt/mesure.h"
#include "qt/palette_symboles.h"
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

void PlateauQt::BrancheEditeur() {
  editeur_->Saisi = [this](const QString& texte) { Tape(DepuisQt(texte)); };
  editeur_->Touche = [this](QKeyEvent& evenement) { return Touche(evenement); };
  editeur_->Revenu = [this] { SelectionneEncore(); };
  editeur_->Clic = [this] { Focalise(focus_); };
  editeur_->Menu = [this] { OuvrePalette(); };
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

// ---- comforts

void PlateauQt::Execute(const std::function<Texte()>& acte) {
  Texte raison;
  if (acte) pilote_.Execute([&] { raison = acte(); });
  if (!raison.empty()) Dit(VersQt(raison));
}

void PlateauQt::Dit(const QString& raison) {
  constexpr int kDuree = 4000;  // milliseconds
  const QRect ici = focus_ != 0 ? RectangleCase(focus_) : viewport()->rect();
  const QPoint coin = focus_ != 0 ? ici.bottomLeft() : ici.center();
  QToolTip::showText(viewport()->mapToGlobal(coin), raison.toHtmlEscaped(), viewport(), {}, kDuree);
}

// The user makes this the text of the box with the focus.
void PlateauQt::Tape(const Texte& texte) {
  if (!fenetre_.plateau.TxtCase(focus_).Locked)
    pilote_.Execute([&] { fenetre_.plateau.Saisit(focus_, texte); });
}

void PlateauQt::OuvrePalette() {
  if (!AUneCase() || !fenetre_.conforts.Symboles) return;
  const CaseTexte& caseTexte = fenetre_.plateau.TxtCase(focus_);
  const Texte contenu = caseTexte.Text;
  const bool libre = !caseTexte.Locked;
  const auto copie = [contenu] { QApplication::clipboard()->setText(VersQt(contenu)); };
  auto* palette = new PaletteSymboles(fenetre_.conforts.Symboles(), libre, contenu, this);
  palette->Choisi = [this](const Texte& symbole) { Tape(symbole); };
  palette->Ajoute({{QStringLiteral("Couper"), libre && !contenu.empty(),
                    [this, copie] {
                      copie();
                      Tape({});
                    }},
                   {QStringLiteral("Copier"), !contenu.empty(), copie},
                   {QStringLiteral("Coller"), true, [this] { Colle(true); }},
                   {QStringLiteral("Effacer"), libre && !contenu.empty(), [this] { Tape({}); }}});
  palette->Montre(
      QRect(viewport()->mapToGlobal(RectangleCase(focus_).topLeft()), RectangleCase(focus_).size()));
}

void PlateauQt::DeposeTexte(const QString& texte) {
  Execute([&] { return fenetre_.conforts.Colle(DepuisQt(texte)); });
}

// A grid goes to the board, any other text into the box with the focus, in place of all that it holds or of
// what is selected there.
void PlateauQt::Colle(bool remplace) {
  const QString texte = QApplication::clipboard()->text();
  if (fenetre_.plateau.Cases() == 0 || fenetre_.conforts.EstGrille(DepuisQt(texte)))
    return DeposeTexte(texte);
  if (texte.isEmpty())
    return Dit(QStringLiteral("Rien à coller : le presse-papiers ne contient pas de texte"));
  if (!AUneCase()) return;
  const Texte verrou = fenetre_.conforts.Verrou(focus_);
  if (!verrou.empty()) return Dit(VersQt(verrou));
  remplace ? Tape(DepuisQt(texte)) : editeur_->paste();
}

void PlateauQt::CopieGrille() {
  if (fenetre_.plateau.Cases() == 0 || !fenetre_.conforts.EcritGrille) return;
  QApplication::clipboard()->setText(VersQt(fenetre_.conforts.EcritGrille()));
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
  editeur_->setFont(PoliceQt({.Gras = true}, zoom_));
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
