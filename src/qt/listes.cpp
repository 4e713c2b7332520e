#include "qt/listes.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>

#include "qt/mesure.h"
#include "qt/texte_qt.h"

namespace sudoku {
namespace {

// A list that shows the items and the position of a record, and reports what the user selects.
class ListeQt : public QListWidget {
 public:
  ListeQt(Element& element, Pilote& pilote, QWidget* parent) : QListWidget(parent), element_(element) {
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setUniformItemSizes(true);
    connect(this, &QListWidget::itemSelectionChanged, this, [&] {
      if (ecrit_) return;
      pilote.Execute([&] { element_.Selectionne(Position()); });
    });
    connect(this, &QListWidget::itemDoubleClicked, this,
            [&] { pilote.ExecuteCommande([&] { element_.DoubleClique(); }); });
  }

  int Position() const {
    const QModelIndexList choix = selectionModel()->selectedRows();
    return choix.isEmpty() ? -1 : choix.first().row();
  }

  void Montre() {
    ecrit_ = true;
    if (montre_ != element_.items) Remplit();
    if (Position() != element_.ListIndex) {
      if (element_.ListIndex < 0) {
        clearSelection();
      } else {
        setCurrentRow(element_.ListIndex);
      }
    }
    ecrit_ = false;
  }

 private:
  void Remplit() {
    montre_ = element_.items;
    clear();
    for (const Texte& item : montre_) {
      auto* ligne = new QListWidgetItem(VersQt(item), this);
      ligne->setToolTip(ligne->text().toHtmlEscaped());
    }
  }

  Element& element_;
  std::vector<Texte> montre_;
  bool ecrit_ = false;  // the program writes: no user's act
};

class ListeElement : public ElementQt {
 public:
  ListeElement(Element& element, QWidget* parent, Pilote& pilote)
      : ListeElement(element, new ListeQt(element, pilote, parent)) {}

 private:
  ListeElement(Element& element, ListeQt* widget) : ElementQt(element, widget), liste_(widget) {}
  void Contenu() override { liste_->Montre(); }
  void Taille(double echelle) override { liste_->setFont(PoliceQt(element_.police, echelle)); }

  ListeQt* liste_;
};

// The field of an edit field with list: the vertical arrows go through the list below.
class ChampDeListe : public QLineEdit {
 public:
  ChampDeListe(QWidget* parent, QListWidget* liste) : QLineEdit(parent), liste_(liste) {}

 protected:
  void keyPressEvent(QKeyEvent* evenement) override {
    if (evenement->key() != Qt::Key_Up && evenement->key() != Qt::Key_Down) {
      QLineEdit::keyPressEvent(evenement);
      return;
    }
    const int pas = evenement->key() == Qt::Key_Down ? 1 : -1;
    const QModelIndexList choix = liste_->selectionModel()->selectedRows();
    const int ligne = choix.isEmpty() ? 0 : choix.first().row() + pas;
    if (ligne >= 0 && ligne < liste_->count()) liste_->setCurrentRow(ligne);
  }

 private:
  QListWidget* liste_;
};

class ChampListeElement : public ElementQt {
 public:
  ChampListeElement(Element& element, QWidget* parent, Pilote& pilote)
      : ElementQt(element, new QWidget(parent)),
        liste_(new ListeQt(element, pilote, Widget())),
        champ_(new ChampDeListe(Widget(), liste_)) {
    auto* pile = new QVBoxLayout(Widget());
    pile->setContentsMargins(0, 0, 0, 0);
    pile->setSpacing(2);
    pile->addWidget(champ_);
    pile->addWidget(liste_);
    champ_->setObjectName(Widget()->objectName() + QStringLiteral(".champ"));
    liste_->setObjectName(Widget()->objectName() + QStringLiteral(".liste"));
    liste_->setFocusPolicy(Qt::ClickFocus);
    Widget()->setFocusPolicy(Qt::StrongFocus);
    Widget()->setFocusProxy(champ_);
    QObject::connect(champ_, &QLineEdit::textEdited, champ_,
                     [&](const QString& texte) { pilote.Execute([&] { element_.Edite(DepuisQt(texte)); }); });
  }

 private:
  void Contenu() override {
    liste_->Montre();
    const QString texte = VersQt(element_.Text);
    if (champ_->text() != texte) champ_->setText(texte);
  }
  void Taille(double echelle) override {
    champ_->setFont(PoliceQt(element_.police, echelle));
    liste_->setFont(PoliceQt(element_.police, echelle));
  }

  ListeQt* liste_;
  ChampDeListe* champ_;
};

}  // namespace

std::unique_ptr<ElementQt> FabriqueListe(Element& element, QWidget* parent, Pilote& pilote) {
  return std::make_unique<ListeElement>(element, parent, pilote);
}

std::unique_ptr<ElementQt> FabriqueChampListe(Element& element, QWidget* parent, Pilote& pilote) {
  return std::make_unique<ChampListeElement>(element, parent, pilote);
}

}  // namespace sudoku
