// How the board looks.
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include "qt/mesure.h"
#include "qt/plateau_qt.h"
#include "qt/texte_qt.h"

namespace sudoku {
namespace {

const QColor kTraits(0x80, 0x80, 0x80);  // between the boxes of a block
const QColor kCadres(0x00, 0x00, 0x00);  // around the blocks
const QColor kAnneau(0xE0, 0x70, 0x00);  // around the box that has the focus
const QColor kReliefSombre(0x60, 0x60, 0x60);
const QColor kReliefClair(0xF0, 0xF0, 0xF0);

void PeintContour(QPainter& p, const QRect& dehors, int epaisseur, const QColor& hautGauche,
                  const QColor& basDroite) {
  const QRect r = dehors;
  p.fillRect(QRect(r.left(), r.top(), r.width(), epaisseur), hautGauche);
  p.fillRect(QRect(r.left(), r.top(), epaisseur, r.height()), hautGauche);
  p.fillRect(QRect(r.left(), r.bottom() - epaisseur + 1, r.width(), epaisseur), basDroite);
  p.fillRect(QRect(r.right() - epaisseur + 1, r.top(), epaisseur, r.height()), basDroite);
}

}  // namespace

void PlateauQt::paintEvent(QPaintEvent* evenement) {
  const double dpr = devicePixelRatioF();
  QPainter p(viewport());
  p.scale(1 / dpr, 1 / dpr);
  p.setFont(police_);
  const QPoint origine = Origine();
  p.translate(origine);
  for (const QRect& zone : evenement->region()) {
    const QRectF appareil(zone.x() * dpr, zone.y() * dpr, zone.width() * dpr, zone.height() * dpr);
    const QRect ici = appareil.toAlignedRect().translated(-origine);
    p.setClipRect(ici);  // boxes are painted whole, and would cover the ring that another zone has painted
    PeintZone(p, ici);
  }
}

// Sentences name cells by number: a tool tip tells which number the cell under the pointer has.
bool PlateauQt::viewportEvent(QEvent* evenement) {
  if (evenement->type() != QEvent::ToolTip) return QAbstractScrollArea::viewportEvent(evenement);
  const auto& aide = *static_cast<QHelpEvent*>(evenement);
  const int i = CaseSous(aide.pos());
  if (i != 0 && fenetre_.conforts.DecritPlace) {
    QToolTip::showText(aide.globalPos(), VersQt(fenetre_.conforts.DecritPlace(i)), viewport(),
                       RectangleCase(i));
  } else {
    QToolTip::hideText();
  }
  return true;
}

void PlateauQt::PeintZone(QPainter& p, const QRect& zone) const {
  p.fillRect(zone, palette().color(QPalette::Window));
  if (fenetre_.plateau.Cases() == 0) return;
  p.fillRect(geometrie_.Ensemble() & zone, kTraits);
  geometrie_.PourChaque(zone, [&](int i) { PeintCase(p, i); });
  PeintCadres(p, zone);
  PeintRelief(p, zone);
}

void PlateauQt::PeintCase(QPainter& p, int i) const {
  const CaseTexte& caseTexte = fenetre_.plateau.TxtCase(i);
  if (!caseTexte.Visible) return;
  const QRect place = geometrie_.Case(i);
  p.fillRect(place, CouleurQt(caseTexte.BackColor));
  if (caseTexte.marque > Marque::kDonnee) PeintMarque(p, place, caseTexte);
  if (i == focus_ || caseTexte.Text.empty()) return;  // the editor shows the text of its box
  p.setPen(CouleurQt(caseTexte.ForeColor));
  const QString texte = VersQt(caseTexte.Text);
  if (caseTexte.Text.size() == 1) {
    p.drawText(place, Qt::AlignCenter | Qt::TextSingleLine | Qt::TextDontClip, texte);
    return;
  }
  p.setFont(Condensee(police_, texte, place.width() - 2 * geometrie_.Trait()));
  p.drawText(place, Qt::AlignCenter | Qt::TextSingleLine, texte);
  p.setFont(police_);
}

// Beside the colours, for whoever can't tell them apart, and so small that nobody else is disturbed: a full
// corner where a symbol is proved, an angle where one is possible; a line below a wrong entry, points below
// one that is neither proved nor refuted.
void PlateauQt::PeintMarque(QPainter& p, const QRect& place, const CaseTexte& caseTexte) const {
  const int trait = geometrie_.Trait();
  const QColor encre = CouleurQt(caseTexte.ForeColor);
  const QRect dedans = place.adjusted(2 * trait, 2 * trait, -2 * trait, -2 * trait);
  if (caseTexte.marque == Marque::kCertaine || caseTexte.marque == Marque::kPossible) {
    const int cote = std::max(2 * trait, place.width() / 6);
    for (int n = 0; n < cote; ++n) {
      const int longueur = caseTexte.marque == Marque::kCertaine || n < trait ? cote - n : trait;
      p.fillRect(dedans.right() + 1 - longueur, dedans.top() + n, longueur, 1, encre);
    }
    return;
  }
  const int pas = caseTexte.marque == Marque::kErronee ? trait : 3 * trait;
  const int gauche = place.left() + place.width() / 4;
  for (int x = gauche; x < gauche + place.width() / 2; x += pas)
    p.fillRect(x, dedans.bottom(), trait, trait, encre);
}

void PlateauQt::PeintCadres(QPainter& p, const QRect& zone) const {
  const int epaisseur = geometrie_.TraitDeCadre();
  for (int b = 1; b <= fenetre_.plateau.Cadres(); ++b) {
    const QRect cadre = geometrie_.Cadre(b);
    if (fenetre_.plateau.Box(b).Visible && cadre.intersects(zone))
      PeintContour(p, cadre, epaisseur, kCadres, kCadres);
  }
}

int PlateauQt::TraitDAnneau() const {
  return std::max(geometrie_.TraitDeCadre(), static_cast<int>(std::lround(2 * devicePixelRatioF())));
}

// Around the box, but never so small that it is lost among thousands of small boxes.
QRect PlateauQt::Anneau(int i) const {
  const int moindre = static_cast<int>(std::lround(26 * devicePixelRatioF()));
  const QRect place = geometrie_.Case(i);
  const int ecart =
      std::max({0, (moindre - place.width()) / 2, (moindre - place.height()) / 2}) + TraitDAnneau();
  return place.adjusted(-ecart, -ecart, ecart, ecart);
}

// The box that has the focus is sunk into the board, with a ring around it.
void PlateauQt::PeintRelief(QPainter& p, const QRect& zone) const {
  if (focus_ == 0 || fenetre_.plateau.TxtCase(focus_).Appearance == 0) return;
  const QRect anneau = Anneau(focus_);
  if (!anneau.intersects(zone)) return;
  PeintContour(p, anneau, TraitDAnneau(), kAnneau, kAnneau);
  PeintContour(p, geometrie_.Case(focus_), geometrie_.Trait(), kReliefSombre, kReliefClair);
}

void PlateauQt::Repeint(int i) {
  viewport()->update(EnPixels(Anneau(i).translated(Origine())) & viewport()->rect());
}

}  // namespace sudoku
