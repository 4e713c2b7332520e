#include "qt/capture.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <QSvgGenerator>
#include <cstdio>

#include "qt/fenetre_qt.h"
#include "qt/papier.h"
#include "qt/texte_qt.h"

namespace sudoku {
namespace {

bool DessinePng(FenetreQt& fenetre, QIODevice& fichier) {
  return fenetre.grab().save(&fichier, "PNG");
}

// The characters that no XML holds as pictures of them. Only the symbols of a grid, and names, can be such.
QByteArray XmlBienForme(const QByteArray& xml) {
  QByteArray sain;
  sain.reserve(xml.size());
  for (const char c : xml) {
    const auto octet = static_cast<unsigned char>(c);
    const bool tenable = octet >= ' ' || c == '\t' || c == '\n' || c == '\r';
    tenable ? sain.append(c) : sain.append("\xE2\x90").append(static_cast<char>(0x80 + octet));
  }
  return sain.replace("\xEF\xBF\xBE", "\xEF\xBF\xBD").replace("\xEF\xBF\xBF", "\xEF\xBF\xBD");
}

bool DessineSvg(FenetreQt& fenetre, QIODevice& fichier) {
  const QSize taille = TailleSurPapier(fenetre.LaFenetre());
  QBuffer xml;
  QSvgGenerator dessin;
  dessin.setOutputDevice(&xml);
  dessin.setResolution(kPapierParPouce);
  dessin.setSize(taille);
  dessin.setViewBox(QRect(QPoint(), taille));
  dessin.setTitle(fenetre.windowTitle());
  QPainter p(&dessin);
  DessineSurPapier(fenetre.LaFenetre(), p);
  if (!p.end()) return false;
  const QByteArray sain = XmlBienForme(xml.data());
  return fichier.write(sain) == sain.size();
}

bool DessinePdf(FenetreQt& fenetre, QIODevice& fichier) {
  QPdfWriter page(&fichier);
  page.setResolution(kPapierParPouce);
  page.setPageSize(QPageSize(QPageSize::A4));
  page.setPageMargins(QMarginsF(20, 20, 20, 20), QPageLayout::Millimeter);
  page.setTitle(fenetre.windowTitle());
  QPainter p(&page);
  DessineSurPapier(fenetre.LaFenetre(), p);
  return p.end();
}

using Dessine = bool (*)(FenetreQt& fenetre, QIODevice& fichier);

// Null for a name of no known form.
Dessine FormeDe(const QString& nom) {
  static constexpr std::pair<QLatin1String, Dessine> kFormes[] = {{QLatin1String(".png"), DessinePng},
                                                                  {QLatin1String(".svg"), DessineSvg},
                                                                  {QLatin1String(".pdf"), DessinePdf}};
  for (const auto& [fin, dessine] : kFormes) {
    if (nom.endsWith(fin, Qt::CaseInsensitive)) return dessine;
  }
  return nullptr;
}

}  // namespace

void SystemeSansJoueur::Message(TexteVue texte, TexteVue) {
  dit_ = true;
  std::fprintf(stderr, "%s\n", Montrable(VersUtf8(texte), "\n").c_str());
}

void SystemeSansJoueur::MontreModale(Fenetre& fenetre) {
  for (Element& element : fenetre.elements) {
    if (element.Default) element.Clique();
  }
}

bool FormeConnue(std::string_view nom) {
  return FormeDe(QString::fromUtf8(nom.data(), static_cast<qsizetype>(nom.size()))) != nullptr;
}

bool DessineDansFichier(FenetreQt& fenetre, const QString& chemin) {
  fenetre.MetSansEcran();
  QSaveFile fichier(chemin);
  if (!fichier.open(QIODevice::WriteOnly)) return false;
  // The commit itself passes over what can't be written any more.
  if (!FormeDe(chemin)(fenetre, fichier) || !fichier.flush()) fichier.cancelWriting();
  return fichier.commit();
}

}  // namespace sudoku
