#include "qt/champs.h"

#include <QLineEdit>
#include <QPlainTextEdit>

#include "qt/mesure.h"
#include "qt/texte_qt.h"

namespace sudoku {
namespace {

void PrendFond(QWidget* widget, const Element& element) {
  if (element.BackColor == kCouleurSysteme) return;
  QPalette palette = widget->palette();
  palette.setColor(QPalette::Base, CouleurQt(element.BackColor));
  widget->setPalette(palette);
}

class ChampElement : public ElementQt {
 public:
  ChampElement(Element& element, QWidget* parent, Pilote& pilote)
      : ChampElement(element, new ChampQt(parent), pilote) {}

 private:
  ChampElement(Element& element, QLineEdit* widget, Pilote& pilote)
      : ElementQt(element, widget), champ_(widget) {
    PrendFond(widget, element);
    QObject::connect(widget, &QLineEdit::textEdited, widget,
                     [&](const QString& texte) { pilote.Execute([&] { element_.Edite(DepuisQt(texte)); }); });
  }
  void MontreContenu() override {
    if (champ_->isReadOnly() == element_.Enabled) {
      champ_->setReadOnly(!element_.Enabled);
      champ_->setFocusPolicy(element_.Enabled || !Echantillon() ? Qt::StrongFocus : Qt::NoFocus);
    }
    const QString texte = VersQt(element_.Text);
    if (champ_->text() == texte) return;
    champ_->setText(texte);
    champ_->setCursorPosition(0);
    Ajuste();
  }
  void Dimensionne(double echelle) override {
    police_ = PoliceQt(element_.police, echelle);
    Ajuste();
  }
  // A field that shows a colour and never a text.
  bool Echantillon() const { return element_.BackColor != kCouleurSysteme; }
  // A little too long a text is condensed. One that would be unreadable so goes on beyond the edge: the
  // arrows go there, and the tooltip has the whole.
  void Ajuste() {
    constexpr int kBord = 8;
    constexpr int kLisible = 80;
    const int largeur = champ_->width() - kBord;
    const QString texte = champ_->text();
    const QFont condensee = Condensee(police_, texte, largeur, kLisible);
    const bool coupe = QFontMetrics(condensee).horizontalAdvance(texte) > largeur;
    champ_->setFont(coupe || element_.Enabled ? police_ : condensee);
    champ_->setToolTip(coupe ? texte.toHtmlEscaped() : QString());
  }

  QLineEdit* champ_;
  QFont police_;
};

class ChampLongElement : public ElementQt {
 public:
  ChampLongElement(Element& element, QWidget* parent)
      : ChampLongElement(element, new QPlainTextEdit(parent)) {}

 private:
  ChampLongElement(Element& element, QPlainTextEdit* widget) : ElementQt(element, widget), champ_(widget) {
    PrendFond(widget, element);
    widget->setReadOnly(true);
    widget->setUndoRedoEnabled(false);
    widget->setTabChangesFocus(true);
  }
  void MontreContenu() override {
    if (montre_ == element_.Text) return;
    montre_ = element_.Text;
    champ_->setPlainText(VersQt(montre_).remove(u'\r').trimmed());
  }
  void Dimensionne(double echelle) override { champ_->setFont(PoliceQt(element_.police, echelle)); }

  QPlainTextEdit* champ_;
  Texte montre_;
};

}  // namespace

std::unique_ptr<ElementQt> FabriqueChamp(Element& element, QWidget* parent, Pilote& pilote) {
  if (element.MultiLine) return std::make_unique<ChampLongElement>(element, parent);
  return std::make_unique<ChampElement>(element, parent, pilote);
}

}  // namespace sudoku
