#include "qt/capture.h"

#include <QFile>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <cstdio>

#include "qt/fenetre_qt.h"
#include "qt/texte_qt.h"

namespace sudoku {
namespace {

void Rend(FenetreQt& fenetre, QPainter& p) {
  fenetre.render(&p, QPoint(), QRegion(), QWidget::DrawChildren | QWidget::DrawWindowBackground);
}

bool DessineSvg(FenetreQt& fenetre, const QString& chemin) {
  QFile fichier(chemin);
  if (!fichier.open(QIODevice::WriteOnly)) return false;
  QSvgGenerator dessin;
  dessin.setOutputDevice(&fichier);
  dessin.setSize(fenetre.size());
  dessin.setViewBox(fenetre.rect());
  dessin.setTitle(fenetre.windowTitle());
  dessin.setResolution(fenetre.logicalDpiX());
  QPainter p(&dessin);
  Rend(fenetre, p);
  return p.end() && fichier.flush();
}

bool DessinePdf(FenetreQt& fenetre, const QString& chemin) {
  QFile fichier(chemin);
  if (!fichier.open(QIODevice::WriteOnly)) return false;
  QPdfWriter page(&fichier);
  page.setPageSize(QPageSize(QPageSize::A4));
  page.setPageMargins(QMarginsF(20, 20, 20, 20), QPageLayout::Millimeter);
  page.setTitle(fenetre.windowTitle());
  QPainter p(&page);
  // As wide as the page; a small board no larger than three times its size.
  const double unite = page.logicalDpiX() / 96.0;
  const double echelle = std::min({3 * unite, static_cast<double>(page.width()) / fenetre.width(),
                                   static_cast<double>(page.height()) / fenetre.height()});
  p.translate((page.width() - fenetre.width() * echelle) / 2, 0);
  p.scale(echelle, echelle);
  Rend(fenetre, p);
  return p.end() && fichier.flush();
}

}  // namespace

void SystemeSansJoueur::Message(TexteVue texte, TexteVue) {
  dit_ = true;
  std::fprintf(stderr, "%s\n", VersUtf8(texte).c_str());
}

void SystemeSansJoueur::MontreModale(Fenetre& fenetre) {
  for (Element& element : fenetre.elements) {
    if (element.Default) element.Clique();
  }
}

bool DessineDansFichier(FenetreQt& fenetre, const QString& chemin) {
  fenetre.SansEcran();
  if (chemin.endsWith(QStringLiteral(".svg"), Qt::CaseInsensitive)) return DessineSvg(fenetre, chemin);
  if (chemin.endsWith(QStringLiteral(".pdf"), Qt::CaseInsensitive)) return DessinePdf(fenetre, chemin);
  return fenetre.grab().save(chemin);
}

}  // namespace sudoku
