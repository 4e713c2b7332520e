#include "qt/listes.h"

#include <QAbstractListModel>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QVBoxLayout>

#include "qt/mesure.h"
#include "qt/texte_qt.h"

namespace sudoku {
namespace {

// The items of a record as they were last shown. The toolkit's list of items of its own looks for an item
// among all others whenever one is written, which takes a minute for a long library.
class Items : public QAbstractListModel {
 public:
  using QAbstractListModel::QAbstractListModel;

  void Montre(const std::vector<Texte>& items) {
    if (items == items_) return;
    beginResetModel();
    items_ = items;
    endResetModel();
  }
  int rowCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : static_cast<int>(items_.size());
  }
  QVariant data(const QModelIndex& place, int role) const override {
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole) return {};
    const QString texte = VersQt(items_[static_cast<std::size_t>(place.row())]);
    return role == Qt::ToolTipRole ? texte.toHtmlEscaped() : texte;
  }

 private:
  std::vector<Texte> items_;
};

// A list that shows the items and the position of a record, and reports what the user selects.
class ListeQt : public QListView {
 public:
  ListeQt(Element& element, Pilote& pilote, QWidget* parent) : QListView(parent), element_(element) {
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setUniformItemSizes(true);
    setModel(&items_);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [&] {
      if (ecrit_) return;
      pilote.Execute([&] { element_.Selectionne(Position()); });
    });
    connect(this, &QListView::doubleClicked, this,
            [&] { pilote.ExecuteCommande([&] { element_.DoubleClique(); }); });
  }

  int Position() const {
    const QModelIndexList choix = selectionModel()->selectedRows();
    return choix.isEmpty() ? -1 : choix.first().row();
  }
  void Choisit(int position) { setCurrentIndex(items_.index(position)); }

  void Montre() {
    ecrit_ = true;
    items_.Montre(element_.items);
    if (Position() != element_.ListIndex) {
      if (element_.ListIndex < 0) {
        clearSelection();
      } else {
        Choisit(element_.ListIndex);
      }
    }
    ecrit_ = false;
  }

 private:
  Element& element_;
  Items items_;
  bool ecrit_ = false;  // the program writes: no user's act
};

class ListeElement : public ElementQt {
 public:
  ListeElement(Element& element, QWidget* parent, Pilote& pilote)
      : ListeElement(element, new ListeQt(element, pilote, parent)) {}

 private:
  ListeElement(Element& element, ListeQt* widget) : ElementQt(element, widget), liste_(widget) {}
  void MontreContenu() override { liste_->Montre(); }
  void Dimensionne(double echelle) override { liste_->setFont(PoliceQt(element_.police, echelle)); }

  ListeQt* liste_;
};

// The field of an edit field with list: the vertical arrows go through the list below.
class ChampDeListe : public QLineEdit {
 public:
  ChampDeListe(QWidget* parent, ListeQt* liste) : QLineEdit(parent), liste_(liste) {}

 protected:
  void keyPressEvent(QKeyEvent* evenement) override {
    if (evenement->key() != Qt::Key_Up && evenement->key() != Qt::Key_Down) {
      QLineEdit::keyPressEvent(evenement);
      return;
    }
    const int pas = evenement->key() == Qt::Key_Down ? 1 : -1;
    const int ici = liste_->Position();
    const int ligne = ici < 0 ? 0 : ici + pas;
    if (ligne >= 0 && ligne < liste_->model()->rowCount()) liste_->Choisit(ligne);
  }

 private:
  ListeQt* liste_;
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
  void MontreContenu() override {
    liste_->Montre();
    const QString texte = VersQt(element_.Text);
    if (champ_->text() != texte) champ_->setText(texte);
    if (choisi_ == element_.ListIndex) return;
    choisi_ = element_.ListIndex;
    if (choisi_ >= 0) champ_->selectAll();  // what is typed next replaces the choice
  }
  void Dimensionne(double echelle) override {
    champ_->setFont(PoliceQt(element_.police, echelle));
    liste_->setFont(PoliceQt(element_.police, echelle));
  }

  ListeQt* liste_;
  ChampDeListe* champ_;
  int choisi_ = -1;
};

}  // namespace

std::unique_ptr<ElementQt> FabriqueListe(Element& element, QWidget* parent, Pilote& pilote) {
  return std::make_unique<ListeElement>(element, parent, pilote);
}

std::unique_ptr<ElementQt> FabriqueChampListe(Element& element, QWidget* parent, Pilote& pilote) {
  return std::make_unique<ChampListeElement>(element, parent, pilote);
}

}  // namespace sudoku
