#include "qt/lecture.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include "qt/champs.h"
#include "qt/editeur_case.h"
#include "qt/etiquette.h"
#include "qt/fenetre_qt.h"
#include "qt/lecture_plateau.h"
#include "qt/plateau_qt.h"
#include "qt/texte_lu.h"

namespace sudoku {
namespace {

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

// A field that only displays: the toolkit calls it editable whatever it is.
class ChampLu : public QAccessibleWidget, public TexteLu {
 public:
  explicit ChampLu(ChampQt* champ) : QAccessibleWidget(champ, QAccessible::EditableText), champ_(champ) {}

  QString Contenu() const override { return champ_->text(); }
  QRect Place() const override { return rect(); }
  QLineEdit* Champ() const override { return champ_; }
  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }
  using TexteLu::text;
  QString text(QAccessible::Text quoi) const override {
    return quoi == QAccessible::Value ? Contenu() : QAccessibleWidget::text(quoi);
  }
  QAccessible::State state() const override {
    QAccessible::State etat = QAccessibleWidget::state();
    etat.editable = !champ_->isReadOnly();
    etat.readOnly = champ_->isReadOnly();
    etat.selectableText = true;
    return etat;
  }

 private:
  ChampQt* champ_;
};

QAccessibleInterface* Fabrique(const QString&, QObject* objet) {
  if (auto* plateau = dynamic_cast<PlateauQt*>(objet)) return LecturePlateau(plateau);
  if (auto* editeur = dynamic_cast<EditeurCase*>(objet)) return LectureEditeur(editeur);
  if (auto* champ = dynamic_cast<ChampQt*>(objet)) return new ChampLu(champ);
  if (auto* etiquette = dynamic_cast<Etiquette*>(objet)) return new EtiquetteLue(etiquette);
  if (auto* fenetre = dynamic_cast<FenetreQt*>(objet)) {
    const bool seconde = fenetre->windowType() != Qt::Window;
    return new QAccessibleWidget(fenetre, seconde ? QAccessible::Dialog : QAccessible::Window);
  }
  return nullptr;
}

}  // namespace

void InstalleLecture() {
  QAccessible::installFactory(Fabrique);
}

}  // namespace sudoku
