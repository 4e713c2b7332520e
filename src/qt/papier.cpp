#include "qt/papier.h"

#include <QPainter>
#include <algorithm>

#include "qt/geometrie_plateau.h"
#include "qt/mesure.h"
#include "qt/texte_qt.h"

namespace sudoku {
namespace {

constexpr int kLargeur = 17000;  // A4 without 20 mm on every side
constexpr int kHauteur = 25700;
constexpr int kTitre = 1200;
constexpr double kMoindreTitre = 450;
constexpr double kParTwip = kPapierParPouce / 1440.0;

// Small boards are drawn at three times their size, larger ones as large as the page allows.
GeometriePlateau GeometrieSurPapier(const Plateau& plateau) {
  GeometriePlateau geometrie(plateau);
  geometrie.Relit();
  geometrie.MetAEchelle(1, 0);
  const QRect tout = geometrie.Ensemble();
  double k = 3 * kParTwip;
  if (!tout.isEmpty()) {
    k = std::min({k, 1.0 * kLargeur / tout.width(), 1.0 * (kHauteur - kTitre) / tout.height()});
  }
  geometrie.MetAEchelle(k, 0);
  return geometrie;
}

QString Titre(const Fenetre& fenetre) {
  const auto premiere = std::ranges::find(fenetre.elements, Genre::kEtiquette, &Element::genre);
  const bool rien = premiere == fenetre.elements.end() || premiere->Caption.empty();
  return VersQt(rien ? fenetre.Caption : premiere->Caption);
}

QFont PoliceDePapier(double pixels, bool gras) {
  QFont police = PoliceQt({.Gras = gras});
  police.setPixelSize(std::max(1, static_cast<int>(pixels)));
  return police;
}

void DessineCase(QPainter& p, const CaseTexte& caseTexte, const QRectF& place) {
  p.drawRect(place);
  if (caseTexte.Text.empty()) return;
  const QString texte = VersQt(caseTexte.Text);
  const QFont police = PoliceDePapier(0.6 * place.height(), caseTexte.marque == Marque::kDonnee);
  p.setFont(Condensee(police, texte, static_cast<int>(0.9 * place.width())));
  p.drawText(place, Qt::AlignCenter | Qt::TextSingleLine, texte);
}

}  // namespace

QSize TailleSurPapier(const Fenetre& fenetre) {
  return QSize(kLargeur, kTitre + GeometrieSurPapier(fenetre.plateau).Ensemble().height());
}

void DessineSurPapier(const Fenetre& fenetre, QPainter& p) {
  const Plateau& plateau = fenetre.plateau;
  const GeometriePlateau geometrie = GeometrieSurPapier(plateau);
  const QRect tout = geometrie.Ensemble();
  p.fillRect(QRect(QPoint(), TailleSurPapier(fenetre)), Qt::white);
  p.setBrush(Qt::NoBrush);
  p.setPen(Qt::black);
  p.setFont(PoliceDePapier(kMoindreTitre, false));
  p.drawText(QRect(0, 0, kLargeur, kTitre), Qt::AlignHCenter | Qt::AlignTop | Qt::TextSingleLine,
             p.fontMetrics().elidedText(Titre(fenetre), Qt::ElideRight, kLargeur));
  const int marge = (kLargeur - tout.width()) / 2;
  p.translate(marge - tout.left(), kTitre - tout.top());
  // Lines on paper are finer than on a screen: drawn in the middle of the gaps.
  const double ecart = geometrie.Trait();
  p.setPen(QPen(Qt::black, ecart / 4, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  for (int i = 1; i <= plateau.Cases(); ++i) {
    const QRectF place(geometrie.Case(i));
    DessineCase(p, plateau.TxtCase(i), place.adjusted(-ecart / 2, -ecart / 2, ecart / 2, ecart / 2));
  }
  p.setPen(QPen(Qt::black, ecart, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  const double cadre = ecart / 2;
  for (int b = 1; b <= plateau.Cadres(); ++b) {
    p.drawRect(
        QRectF(geometrie.Cadre(b))
            .adjusted(cadre, cadre, -geometrie.TraitDeCadre() + cadre, -geometrie.TraitDeCadre() + cadre));
  }
}

}  // namespace sudoku
