#include "qt/lecture_plateau.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <unordered_map>
#include <utility>

#include "qt/editeur_case.h"
#include "qt/plateau_qt.h"
#include "qt/texte_lu.h"
#include "qt/texte_qt.h"

namespace sudoku {
namespace {

// What a box, or the editor over it, is and holds.
class ContenuLu : public TexteLu {
 public:
  explicit ContenuLu(PlateauQt* plateau) : plateau_(plateau) {}

  // The box, 0 for none.
  virtual int Index() const = 0;

  QString Contenu() const override { return Existe() ? VersQt(LaCase().Text) : QString(); }
  QLineEdit* Champ() const override { return Edite() ? &plateau_->Editeur() : nullptr; }
  QRect Place() const override {
    if (!Existe()) return {};
    const QRect place = plateau_->RectangleCase(Index());
    return QRect(plateau_->viewport()->mapToGlobal(place.topLeft()), place.size());
  }
  QString Nom() const {
    const auto& decrit = plateau_->LaFenetre().conforts.DecritCase;
    return Existe() && decrit ? VersQt(decrit(Index())) : QString();
  }

 protected:
  bool Existe() const { return Index() > 0 && Index() <= plateau_->LePlateau().Cases(); }
  bool Edite() const { return Existe() && Index() == plateau_->LePlateau().Focus(); }
  const CaseTexte& LaCase() const { return plateau_->LePlateau().TxtCase(Index()); }
  EditeurCase& Editeur() const { return plateau_->Editeur(); }

  PlateauQt* plateau_;  // lives longer: its own interface, which holds this one, goes with it
};

class CaseLue : public QAccessibleInterface, public ContenuLu {
 public:
  CaseLue(PlateauQt* plateau, int i) : ContenuLu(plateau), i_(i) {}

  int Index() const override { return i_; }
  bool isValid() const override { return Existe(); }
  QObject* object() const override { return nullptr; }
  QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(plateau_); }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QAccessible::Role role() const override { return QAccessible::EditableText; }
  QRect rect() const override { return Place(); }
  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::TextInterface ? static_cast<QAccessibleTextInterface*>(this) : nullptr;
  }

  using ContenuLu::text;
  QString text(QAccessible::Text quoi) const override {
    if (quoi == QAccessible::Value) return Contenu();
    if (quoi != QAccessible::Name) return {};
    dit_ = Nom();
    return dit_;
  }
  void setText(QAccessible::Text, const QString&) override {}

  QAccessible::State state() const override {
    QAccessible::State etat;
    if (!isValid()) {
      etat.invalid = true;
      return etat;
    }
    verrou_ = LaCase().Locked;
    etat.focusable = true;
    etat.focused = Edite() && Editeur().hasFocus();
    etat.editable = !verrou_;
    etat.readOnly = verrou_;
    etat.offscreen = !plateau_->viewport()->rect().intersects(plateau_->RectangleCase(i_));
    return etat;
  }

  void AnnonceChangement() {
    if (!Existe()) return;
    const QString avant = std::exchange(dit_, Nom());
    if (!avant.isNull() && avant != dit_) Annonce(QAccessibleEvent(plateau_, QAccessible::NameChanged));
    if (std::exchange(verrou_, LaCase().Locked) == verrou_) return;
    QAccessible::State etat;
    etat.editable = true;
    etat.readOnly = true;
    Annonce(QAccessibleStateChangeEvent(plateau_, etat));
  }

 private:
  template <class Evenement>
  void Annonce(Evenement evenement) const {
    evenement.setChild(i_ - 1);
    QAccessible::updateAccessibility(&evenement);
    if (!Edite() || evenement.type() != QAccessible::NameChanged) return;
    QAccessibleEvent deLEditeur(&Editeur(), QAccessible::NameChanged);
    QAccessible::updateAccessibility(&deLEditeur);
  }

  int i_;
  // What a reader was told last.
  mutable QString dit_;
  mutable bool verrou_ = false;
};

class PlateauLu : public QAccessibleWidget {
 public:
  explicit PlateauLu(PlateauQt* plateau)
      : QAccessibleWidget(plateau, QAccessible::Grouping, QStringLiteral("Plateau")), plateau_(plateau) {}
  ~PlateauLu() override {
    for (const auto& [n, numero] : cases_) QAccessible::deleteAccessibleInterface(numero);
  }

  int childCount() const override { return Cases() + 1; }
  QAccessibleInterface* child(int n) const override {
    if (n == Cases()) return QAccessible::queryAccessibleInterface(&plateau_->Editeur());
    return n < 0 || n > Cases() ? nullptr : &Lue(n + 1);
  }
  int indexOfChild(const QAccessibleInterface* enfant) const override {
    if (enfant != nullptr && enfant->object() == &plateau_->Editeur()) return Cases();
    const auto* lue = dynamic_cast<const CaseLue*>(enfant);
    return lue != nullptr ? lue->Index() - 1 : -1;
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    const QPoint ici = plateau_->viewport()->mapFromGlobal(QPoint(x, y));
    const int i = plateau_->CaseSous(ici);
    return i > 0 ? &Lue(i) : nullptr;
  }
  QAccessibleInterface* focusChild() const override {
    const int i = plateau_->LePlateau().Focus();
    return i > 0 ? &Lue(i) : nullptr;
  }

  CaseLue& Lue(int i) const {
    if (CaseLue* connue = Connue(i)) return *connue;
    auto* lue = new CaseLue(plateau_, i);
    cases_[i] = QAccessible::registerAccessibleInterface(lue);
    return *lue;
  }
  // Null for a box that no reader has asked for.
  CaseLue* Connue(int i) const {
    const auto place = cases_.find(i);
    return place == cases_.end() ? nullptr
                                 : static_cast<CaseLue*>(QAccessible::accessibleInterface(place->second));
  }

 private:
  int Cases() const { return plateau_->LePlateau().Cases(); }

  PlateauQt* plateau_;
  mutable std::unordered_map<int, QAccessible::Id> cases_;
};

class EditeurLu : public QAccessibleWidget, public ContenuLu {
 public:
  EditeurLu(EditeurCase* editeur, PlateauQt* plateau)
      : QAccessibleWidget(editeur, QAccessible::EditableText), ContenuLu(plateau) {}

  int Index() const override { return plateau_->LePlateau().Focus(); }
  QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(plateau_); }
  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }
  using ContenuLu::text;
  QString text(QAccessible::Text quoi) const override {
    if (quoi == QAccessible::Name) return Nom();
    return quoi == QAccessible::Value ? Contenu() : QAccessibleWidget::text(quoi);
  }
  QAccessible::State state() const override {
    QAccessible::State etat = QAccessibleWidget::state();
    etat.editable = !Editeur().isReadOnly();
    etat.readOnly = Editeur().isReadOnly();
    return etat;
  }
};

PlateauLu* LectureDe(PlateauQt& plateau) {
  // Without a reader nothing is made to be announced.
  if (!QAccessible::isActive()) return nullptr;
  return dynamic_cast<PlateauLu*>(QAccessible::queryAccessibleInterface(&plateau));
}

}  // namespace

QAccessibleInterface* LecturePlateau(PlateauQt* plateau) {
  return new PlateauLu(plateau);
}

QAccessibleInterface* LectureEditeur(EditeurCase* editeur) {
  for (QObject* objet = editeur; objet != nullptr; objet = objet->parent()) {
    if (auto* plateau = dynamic_cast<PlateauQt*>(objet)) return new EditeurLu(editeur, plateau);
  }
  return nullptr;
}

void AnnonceFocus(PlateauQt& plateau) {
  const int i = plateau.LePlateau().Focus();
  const PlateauLu* lu = LectureDe(plateau);
  if (lu == nullptr || i == 0) return;
  lu->Lue(i).text(QAccessible::Name);
  QAccessibleEvent annonce(&plateau, QAccessible::Focus);
  annonce.setChild(i - 1);
  QAccessible::updateAccessibility(&annonce);
}

void AnnonceChangement(PlateauQt& plateau, int i) {
  const PlateauLu* lu = LectureDe(plateau);
  CaseLue* lue = lu != nullptr ? lu->Connue(i) : nullptr;
  if (lue != nullptr) lue->AnnonceChangement();
}

}  // namespace sudoku
