#include "qt/elements.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

#include "qt/bouton_tenu.h"
#include "qt/champs.h"
#include "qt/etiquette.h"
#include "qt/icone.h"
#include "qt/listes.h"
#include "qt/mesure.h"
#include "qt/texte_qt.h"

namespace sudoku {

ElementQt::ElementQt(Element& element, QWidget* widget) : element_(element), widget_(widget) {
  widget->setObjectName(QString::fromStdString(element.Name));
}

void ElementQt::Synchronise() {
  // A text box that only displays stays readable: it takes no focus, but isn't greyed.
  if (element_.genre != Genre::kTexte && widget_->isEnabled() != element_.Enabled) {
    widget_->setEnabled(element_.Enabled);
  }
  QRect place = Rectangle(echelle_);
  if (milieu_ && element_.Centre) {
    place.setWidth(std::min(place.width(), largeur_));
    place.moveLeft((largeur_ - place.width()) / 2);
  }
  if (widget_->geometry() != place) widget_->setGeometry(place);
  MontreContenu();
  if (widget_->isHidden() == element_.Visible) widget_->setVisible(element_.Visible);
}

void ElementQt::Place(double echelle, int largeurVisible, bool milieu) {
  echelle_ = echelle;
  largeur_ = largeurVisible;
  milieu_ = milieu;
  Dimensionne(echelle);
  Synchronise();
}

QRect ElementQt::Rectangle(double echelle) const {
  const int gauche = Pixels(element_.Left, echelle);
  const int haut = Pixels(element_.Top, echelle);
  return QRect(gauche, haut, Pixels(element_.Left + element_.Width, echelle) - gauche,
               Pixels(element_.Top + element_.Height, echelle) - haut);
}

namespace {

// A widget in the colours that the table gives it.
void Colore(QWidget* widget, const Element& element) {
  if (element.ForeColor == kCouleurSysteme) return;
  QPalette palette = widget->palette();
  palette.setColor(QPalette::WindowText, CouleurQt(element.ForeColor));
  widget->setPalette(palette);
}

class EtiquetteElement : public ElementQt {
 public:
  EtiquetteElement(Element& element, QWidget* parent) : EtiquetteElement(element, new Etiquette(parent)) {}

 private:
  EtiquetteElement(Element& element, Etiquette* widget) : ElementQt(element, widget), etiquette_(widget) {
    Colore(widget, element);
  }
  void MontreContenu() override { etiquette_->Montre(VersQt(element_.Caption)); }
  void Dimensionne(double echelle) override {
    etiquette_->PrendApparence(PoliceQt(element_.police, echelle), element_.Centre, element_.Bordure);
  }

  Etiquette* etiquette_;
};

class CaseACocherElement : public ElementQt {
 public:
  CaseACocherElement(Element& element, QWidget* parent, Pilote& pilote)
      : CaseACocherElement(element, new QCheckBox(parent), pilote) {}

 private:
  CaseACocherElement(Element& element, QCheckBox* widget, Pilote& pilote)
      : ElementQt(element, widget), case_(widget) {
    Colore(widget, element);
    QObject::connect(widget, &QCheckBox::clicked, widget,
                     [&] { pilote.Execute([&] { element_.Clique(); }); });
  }
  void MontreContenu() override {
    const QString texte = VersQt(element_.Caption);
    if (case_->text() != texte) {
      case_->setText(texte);
      Dimensionne(Echelle());
    }
    if (case_->isChecked() != (element_.Value != 0)) case_->setChecked(element_.Value != 0);
  }
  void Dimensionne(double echelle) override {
    constexpr double kMarque = 24;  // the box itself and the gap behind it
    case_->setFont(Condensee(PoliceQt(element_.police, echelle), case_->text(),
                             Rectangle(echelle).width() - static_cast<int>(kMarque * echelle)));
  }

  QCheckBox* case_;
};

// A frame whose caption interrupts its upper line.
class CadreTitre : public QGroupBox {
 public:
  using QGroupBox::QGroupBox;

 protected:
  void paintEvent(QPaintEvent*) override {
    constexpr int kRetrait = 8;
    constexpr int kMarge = 3;
    const QFontMetrics mesure = fontMetrics();
    const QString texte = mesure.elidedText(title(), Qt::ElideRight, width() - 2 * kRetrait);
    const int haut = mesure.height() / 2;
    const QRect titre(kRetrait, 0, mesure.horizontalAdvance(texte), mesure.height());
    QPainter p(this);
    p.setPen(palette().color(QPalette::Mid));
    p.setClipRegion(QRegion(rect()) - titre.adjusted(-kMarge, 0, kMarge, 0));
    p.drawRect(0, haut, width() - 1, height() - 1 - haut);
    p.setClipping(false);
    p.setPen(palette().color(QPalette::WindowText));
    p.drawText(titre, Qt::AlignLeft | Qt::AlignTop | Qt::TextSingleLine, texte);
  }
};

class CadreElement : public ElementQt {
 public:
  CadreElement(Element& element, QWidget* parent) : CadreElement(element, new CadreTitre(parent)) {}

 private:
  CadreElement(Element& element, QGroupBox* widget) : ElementQt(element, widget), cadre_(widget) {}
  void MontreContenu() override {
    const QString texte = VersQt(element_.Caption);
    if (cadre_->title() != texte) cadre_->setTitle(texte);
  }
  void Dimensionne(double echelle) override { cadre_->setFont(PoliceQt(element_.police, echelle)); }

  QGroupBox* cadre_;
};

class BoutonElement : public ElementQt {
 public:
  BoutonElement(Element& element, QWidget* parent, Pilote& pilote)
      : BoutonElement(element,
                      element.MouseDown ? new BoutonTenu(element, pilote, parent) : new QPushButton(parent),
                      pilote) {}

 private:
  BoutonElement(Element& element, QPushButton* widget, Pilote& pilote)
      : ElementQt(element, widget), bouton_(widget) {
    widget->setDefault(element.Default);
    QObject::connect(widget, &QPushButton::clicked, widget, [&] {
      if (element_.Click) pilote.ExecuteCommande(element_.Click);
    });
  }
  void MontreContenu() override {
    const QString texte = VersQt(element_.Caption);
    if (bouton_->text() == texte) return;
    bouton_->setText(texte);
    Dimensionne(Echelle());
  }
  void Dimensionne(double echelle) override {
    constexpr int kMarge = 8;
    bouton_->setFont(Condensee(PoliceQt(element_.police, echelle), bouton_->text().remove(u'&'),
                               Rectangle(echelle).width() - kMarge));
  }

  QPushButton* bouton_;
};

class ImageElement : public ElementQt {
 public:
  ImageElement(Element& element, QWidget* parent) : ImageElement(element, new QLabel(parent)) {}

 private:
  ImageElement(Element& element, QLabel* widget) : ElementQt(element, widget), image_(widget) {
    widget->setAlignment(Qt::AlignCenter);
  }
  void MontreContenu() override {}
  void Dimensionne(double echelle) override {
    const int cote = static_cast<int>(std::lround(32 * echelle));
    image_->setPixmap(IconeDuJeu().pixmap(QSize(cote, cote), image_->devicePixelRatioF()));
  }

  QLabel* image_;
};

class TraitElement : public ElementQt {
 public:
  TraitElement(Element& element, QWidget* parent) : ElementQt(element, new QWidget(parent)) {
    QPalette palette = Widget()->palette();
    palette.setColor(QPalette::Window, CouleurQt(element.ForeColor));
    Widget()->setPalette(palette);
    Widget()->setAutoFillBackground(true);
  }

 private:
  void MontreContenu() override {}
  void Dimensionne(double) override {}
  QRect Rectangle(double echelle) const override {
    const QRect axe = ElementQt::Rectangle(echelle);
    return QRect(axe.topLeft(), axe.size().expandedTo(QSize(element_.BorderWidth, element_.BorderWidth)));
  }
};

}  // namespace

std::unique_ptr<ElementQt> FabriqueElement(Element& element, QWidget* parent, Pilote& pilote) {
  switch (element.genre) {
    case Genre::kEtiquette:
      return std::make_unique<EtiquetteElement>(element, parent);
    case Genre::kTexte:
      return FabriqueChamp(element, parent, pilote);
    case Genre::kCaseACocher:
      return std::make_unique<CaseACocherElement>(element, parent, pilote);
    case Genre::kCadre:
      return std::make_unique<CadreElement>(element, parent);
    case Genre::kBouton:
      return std::make_unique<BoutonElement>(element, parent, pilote);
    case Genre::kListe:
      return FabriqueListe(element, parent, pilote);
    case Genre::kChampListe:
      return FabriqueChampListe(element, parent, pilote);
    case Genre::kImage:
      return std::make_unique<ImageElement>(element, parent);
    case Genre::kTrait:
      return std::make_unique<TraitElement>(element, parent);
  }
  return nullptr;
}

}  // namespace sudoku
