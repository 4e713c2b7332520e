#include "qt/lecture_plateau.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <unordered_map>

#include "qt/editeur_case.h"
#include "qt/etiquette.h"
#include "qt/plateau_qt.h"
#include "qt/texte_qt.h"

namespace sudoku {
namespace {

class CaseLue : public QAccessibleInterface {
 public:
  CaseLue(PlateauQt* plateau, int i) : plateau_(plateau), i_(i) {}

  bool isValid() const override { return i_ <= plateau_->LePlateau().Cases(); }
  QObject* object() const override { return nullptr; }
  QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(plateau_); }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QAccessible::Role role() const override { return QAccessible::EditableText; }

  QString text(QAccessible::Text quoi) const override {
    if (!isValid()) return {};
    const auto& decrit = plateau_->LaFenetre().conforts.DecritCase;
    if (quoi == QAccessible::Name && decrit) return VersQt(decrit(i_));
    if (quoi == QAccessible::Value) return VersQt(Boite().Text);
    return {};
  }
  void setText(QAccessible::Text, const QString&) override {}

  QRect rect() const override {
    if (!isValid()) return {};
    const QRect place = plateau_->RectangleCase(i_);
    return QRect(plateau_->viewport()->mapToGlobal(place.topLeft()), place.size());
  }

  QAccessible::State state() const override {
    QAccessible::State etat;
    if (!isValid()) {
      etat.invalid = true;
      return etat;
    }
    etat.focusable = true;
    etat.focused = i_ == plateau_->LePlateau().Focus() && plateau_->Editeur().hasFocus();
    etat.editable = !Boite().Locked;
    etat.readOnly = Boite().Locked;
    etat.offscreen = !plateau_->viewport()->rect().intersects(plateau_->RectangleCase(i_));
    return etat;
  }

  int Index() const { return i_; }

 private:
  const CaseTexte& Boite() const { return plateau_->LePlateau().TxtCase(i_); }

  PlateauQt* plateau_;  // lives longer: its own interface, which holds this one, goes with it
  int i_;
};

class PlateauLu : public QAccessibleWidget {
 public:
  explicit PlateauLu(PlateauQt* plateau)
      : QAccessibleWidget(plateau, QAccessible::Table), plateau_(plateau) {}
  ~PlateauLu() override {
    for (const auto& [n, numero] : cases_) QAccessible::deleteAccessibleInterface(numero);
  }

  int childCount() const override { return plateau_->LePlateau().Cases(); }
  QAccessibleInterface* child(int n) const override {
    if (n < 0 || n >= childCount()) return nullptr;
    const auto place = cases_.find(n);
    if (place != cases_.end()) return QAccessible::accessibleInterface(place->second);
    auto* lue = new CaseLue(plateau_, n + 1);
    cases_[n] = QAccessible::registerAccessibleInterface(lue);
    return lue;
  }
  int indexOfChild(const QAccessibleInterface* enfant) const override {
    const auto* lue = dynamic_cast<const CaseLue*>(enfant);
    return lue != nullptr ? lue->Index() - 1 : -1;
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    const QPoint ici = plateau_->viewport()->mapFromGlobal(QPoint(x, y));
    const int i = plateau_->CaseSous(ici);
    return child(i - 1);
  }
  QAccessibleInterface* focusChild() const override { return child(plateau_->LePlateau().Focus() - 1); }

 private:
  PlateauQt* plateau_;
  mutable std::unordered_map<int, QAccessible::Id> cases_;
};

// A label's text is its name, asked for and never announced.
class EtiquetteLue : public QAccessibleWidget {
 public:
  explicit EtiquetteLue(Etiquette* etiquette)
      : QAccessibleWidget(etiquette, QAccessible::StaticText), etiquette_(etiquette) {}
  QString text(QAccessible::Text quoi) const override {
    return quoi == QAccessible::Name ? etiquette_->Texte() : QAccessibleWidget::text(quoi);
  }

 private:
  Etiquette* etiquette_;
};

QAccessibleInterface* Fabrique(const QString&, QObject* objet) {
  if (auto* plateau = dynamic_cast<PlateauQt*>(objet)) return new PlateauLu(plateau);
  if (auto* etiquette = dynamic_cast<Etiquette*>(objet)) return new EtiquetteLue(etiquette);
  return nullptr;
}

}  // namespace

void InstalleLecture() {
  QAccessible::installFactory(Fabrique);
}

}  // namespace sudoku
