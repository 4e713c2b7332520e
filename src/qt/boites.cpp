#include "qt/boites.h"

#include <QFileDialog>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QIdentityProxyModel>
#include <QInputDialog>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTreeView>

#include "qt/icone.h"
#include "qt/mesure.h"
#include "qt/texte_qt.h"

namespace sudoku {
namespace {

void Installe(QDialog& boite, const PlaceDeBoite& place, const char* nom) {
  boite.setObjectName(QString::fromLatin1(nom));
  boite.setWindowTitle(place.titre);
  boite.setWindowIcon(IconeDuJeu());
  boite.setWindowModality(Qt::ApplicationModal);
  if (place.dessus) boite.setWindowFlag(Qt::WindowStaysOnTopHint);
}

// A short text leaves the title whole.
void ElargitPourLeTitre(QMessageBox& boite) {
  constexpr int kLargeur = 200;
  auto* texte = boite.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
  if (texte->sizeHint().width() < AuBureau(kLargeur)) texte->setMinimumWidth(AuBureau(kLargeur));
}

// A text that is too tall for the screen rolls.
void Enroule(QMessageBox& boite) {
  auto* texte = boite.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
  const int place = boite.screen()->availableSize().height() * 2 / 3;
  const QSize taille = texte->sizeHint();
  if (taille.height() < place) return;
  auto* rouleau = new QScrollArea(&boite);
  rouleau->setFrameShape(QFrame::NoFrame);
  delete boite.layout()->replaceWidget(texte, rouleau);
  rouleau->setWidget(texte);
  rouleau->setFixedSize(taille.width() + rouleau->verticalScrollBar()->sizeHint().width(), place);
}

void Prepare(QMessageBox& boite, const PlaceDeBoite& place, const char* nom, const QString& texte) {
  Installe(boite, place, nom);
  boite.setTextFormat(Qt::PlainText);
  boite.setText(texte);
  boite.setTextInteractionFlags(Qt::TextSelectableByMouse);
  ElargitPourLeTitre(boite);
  Enroule(boite);
}

void Ajoute(QMessageBox& boite, QMessageBox::StandardButton bouton, const QString& texte) {
  QPushButton* ici = boite.addButton(bouton);
  ici->setText(texte);
  ici->setAccessibleDescription(boite.text());
}

// The file dialog takes dates and sizes from the desktop's language, and has no word of its own for a folder.
class ModeleFrancais : public QIdentityProxyModel {
 public:
  using QIdentityProxyModel::QIdentityProxyModel;

  QVariant data(const QModelIndex& place, int role) const override {
    enum Colonne { kTaille = 1, kType = 2, kDate = 3 };
    const auto* modele = qobject_cast<const QFileSystemModel*>(sourceModel());
    if (role != Qt::DisplayRole || modele == nullptr) return QIdentityProxyModel::data(place, role);
    const QFileInfo fichier = modele->fileInfo(mapToSource(place));
    if (place.column() == kDate) return QLocale().toString(fichier.lastModified(), QLocale::ShortFormat);
    if (place.column() == kTaille && fichier.isFile()) return QLocale().formattedDataSize(fichier.size());
    if (place.column() == kType && fichier.isDir()) return QStringLiteral("Dossier");
    return QIdentityProxyModel::data(place, role);
  }
};

void ElargitColonnes(QFileDialog& boite) {
  constexpr int kLargeurs[] = {220, 70, 110, 110};
  boite.resize(AuBureau(680), AuBureau(420));
  const auto* arbre = boite.findChild<QTreeView*>(QStringLiteral("treeView"));
  if (arbre == nullptr) return;
  for (int n = 0; n < 4; ++n) arbre->header()->resizeSection(n, AuBureau(kLargeurs[n]));
}

// "Sudoku Files (*.sud)" of the pairs of description and pattern of a request.
QStringList Filtres(const Texte& liste) {
  const QStringList morceaux = VersQt(liste).split(QChar(u'\0'), Qt::SkipEmptyParts);
  QStringList filtres;
  for (qsizetype n = 0; n + 1 < morceaux.size(); n += 2) {
    QString motif = morceaux[n + 1];
    if (motif == u"*.*") motif = QStringLiteral("*");
    const QString nom = morceaux[n].section(u'(', 0, 0).trimmed();
    filtres << nom + QStringLiteral(" (") + motif + QStringLiteral(")");
  }
  return filtres;
}

}  // namespace

void MontreMessage(const PlaceDeBoite& place, const QString& texte) {
  QMessageBox boite(place.proprietaire);
  Prepare(boite, place, "message", texte);
  Ajoute(boite, QMessageBox::Ok, QStringLiteral("OK"));
  boite.setDefaultButton(QMessageBox::Ok);
  boite.exec();
}

bool PoseQuestion(const PlaceDeBoite& place, const QString& texte) {
  QMessageBox boite(place.proprietaire);
  Prepare(boite, place, "question", texte);
  Ajoute(boite, QMessageBox::Yes, QStringLiteral("&Oui"));
  Ajoute(boite, QMessageBox::No, QStringLiteral("&Non"));
  boite.setDefaultButton(QMessageBox::No);
  boite.setEscapeButton(QMessageBox::No);
  return boite.exec() == QMessageBox::Yes;
}

QString DemandeTexte(const PlaceDeBoite& place, const QString& texte, const QString& defaut) {
  constexpr int kLargeur = 300;
  QInputDialog boite(place.proprietaire);
  Installe(boite, place, "saisie");
  boite.setLabelText(texte);
  boite.setTextValue(defaut);
  boite.setOkButtonText(QStringLiteral("OK"));
  boite.setCancelButtonText(QStringLiteral("Annuler"));
  boite.findChild<QLabel*>()->setTextFormat(Qt::PlainText);
  boite.findChild<QLineEdit*>()->setMinimumWidth(kLargeur);
  return boite.exec() == QDialog::Accepted ? boite.textValue() : QString();
}

QString DemandeChemin(const PlaceDeBoite& place, const DemandeFichier& demande) {
  QFileDialog boite(place.proprietaire);
  PlaceDeBoite ici = place;
  if (!demande.lpstrTitle.empty()) ici.titre = VersQt(demande.lpstrTitle);
  Installe(boite, ici, "fichier");
  boite.setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::DontConfirmOverwrite);
  boite.setProxyModel(new ModeleFrancais(&boite));
  ElargitColonnes(boite);
  boite.setFileMode(QFileDialog::AnyFile);
  boite.setAcceptMode(QFileDialog::AcceptOpen);
  boite.setLabelText(QFileDialog::Accept, QStringLiteral("OK"));
  if (!demande.lpstrInitialDir.empty()) boite.setDirectory(VersQt(demande.lpstrInitialDir));
  const QStringList filtres = Filtres(demande.lpstrFilter);
  if (!filtres.isEmpty()) boite.setNameFilters(filtres);
  if (boite.exec() != QDialog::Accepted || boite.selectedFiles().isEmpty()) return {};
  return boite.selectedFiles().first();
}

}  // namespace sudoku
