#include "qt/boites.h"

#include <QDialog>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QIdentityProxyModel>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QTreeView>
#include <QVBoxLayout>
#include <utility>

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

// A prompt, perhaps a field, and a row of buttons.
class Boite : public QDialog {
 public:
  Boite(const PlaceDeBoite& place, const char* nom, QString texte)
      : QDialog(place.proprietaire, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                        Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint),
        texte_(std::move(texte)),
        pile_(new QVBoxLayout(this)),
        boutons_(new QHBoxLayout) {
    Installe(*this, place, nom);
    setFont(PoliceQt({}));
    pile_->setContentsMargins(16, 14, 16, 12);
    pile_->setSpacing(12);
    pile_->setSizeConstraint(QLayout::SetFixedSize);
    AjouteTexte();
  }

  void Bouton(const QString& texte, int reponse, bool defaut) {
    auto* bouton = new QPushButton(texte, this);
    bouton->setMinimumWidth(76);
    bouton->setAutoDefault(true);
    bouton->setAccessibleDescription(texte_);
    connect(bouton, &QPushButton::clicked, this, [this, reponse] { done(reponse); });
    boutons_->addWidget(bouton);
    if (!defaut) return;
    bouton->setDefault(true);
    bouton->setFocus();
  }

  QLineEdit* Champ(const QString& defaut) {
    auto* champ = new QLineEdit(defaut, this);
    champ->setMinimumWidth(300);
    champ->setAccessibleName(texte_);
    champ->selectAll();
    pile_->addWidget(champ);
    return champ;
  }

  // As on other desktops the letter alone is enough where there is no field to type it into.
  void keyPressEvent(QKeyEvent* evenement) override {
    for (QPushButton* bouton : findChildren<QPushButton*>()) {
      const QKeySequence touche = QKeySequence::mnemonic(bouton->text());
      if (!touche.isEmpty() && touche[0].key() == evenement->key()) return bouton->click();
    }
    QDialog::keyPressEvent(evenement);
  }

  int Repond() {
    boutons_->insertStretch(0);
    boutons_->addStretch();
    pile_->addLayout(boutons_);
    return exec();
  }

 private:
  void AjouteTexte() {
    constexpr int kLargeur = 480;
    auto* texte = new QLabel(texte_, this);
    texte->setMinimumWidth(200);  // room for the title
    texte->setTextFormat(Qt::PlainText);
    texte->setTextInteractionFlags(Qt::TextSelectableByMouse);
    if (texte->sizeHint().width() > kLargeur) {
      texte->setWordWrap(true);
      texte->setFixedWidth(kLargeur);
      texte->setFixedHeight(texte->heightForWidth(kLargeur));
    }
    const QSize ecran = screen()->availableSize();
    if (texte->sizeHint().height() < ecran.height() * 2 / 3) {
      pile_->addWidget(texte);
      return;
    }
    auto* rouleau = new QScrollArea(this);
    rouleau->setFrameShape(QFrame::NoFrame);
    rouleau->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    rouleau->setWidget(texte);
    rouleau->setFixedSize(texte->sizeHint().width() + 24, ecran.height() * 2 / 3);
    pile_->addWidget(rouleau);
  }

  QString texte_;
  QVBoxLayout* pile_;
  QHBoxLayout* boutons_;
};

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
  boite.resize(680, 420);
  const auto* arbre = boite.findChild<QTreeView*>(QStringLiteral("treeView"));
  if (arbre == nullptr) return;
  for (int n = 0; n < 4; ++n) arbre->header()->resizeSection(n, kLargeurs[n]);
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
  Boite boite(place, "message", texte);
  boite.Bouton(QStringLiteral("OK"), QDialog::Accepted, true);
  boite.Repond();
}

bool PoseQuestion(const PlaceDeBoite& place, const QString& texte) {
  Boite boite(place, "question", texte);
  boite.Bouton(QStringLiteral("&Oui"), QDialog::Accepted, false);
  boite.Bouton(QStringLiteral("&Non"), QDialog::Rejected, true);
  return boite.Repond() == QDialog::Accepted;
}

QString DemandeTexte(const PlaceDeBoite& place, const QString& texte, const QString& defaut) {
  Boite boite(place, "saisie", texte);
  const QLineEdit* champ = boite.Champ(defaut);
  boite.Bouton(QStringLiteral("OK"), QDialog::Accepted, true);
  boite.Bouton(QStringLiteral("Annuler"), QDialog::Rejected, false);
  boite.setFocusProxy(nullptr);
  const_cast<QLineEdit*>(champ)->setFocus();
  return boite.Repond() == QDialog::Accepted ? champ->text() : QString();
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
