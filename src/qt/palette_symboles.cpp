#include "qt/palette_symboles.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QToolButton>
#include <cmath>

#include "qt/editeur_case.h"
#include "qt/mesure.h"
#include "qt/texte_qt.h"

namespace sudoku {
namespace {

constexpr int kCote = 26;

// A flat button that is marked while it would be the choice: the mouse brings it the focus.
class BoutonPalette : public QToolButton {
 public:
  using QToolButton::QToolButton;

 protected:
  void enterEvent(QEnterEvent*) override {
    if (isEnabled()) setFocus();
  }
  void paintEvent(QPaintEvent*) override {
    QPainter p(this);
    const QPalette::ColorGroup groupe = isEnabled() ? QPalette::Active : QPalette::Disabled;
    p.fillRect(rect(), palette().color(groupe, hasFocus() ? QPalette::Highlight : QPalette::Base));
    p.setPen(palette().color(QPalette::Mid));
    p.drawRect(rect().adjusted(0, 0, -1, -1));
    p.setPen(palette().color(groupe, hasFocus() ? QPalette::HighlightedText : QPalette::Text));
    p.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, text());
  }
};

QToolButton* Bouton(const QString& texte, QWidget* parent) {
  auto* bouton = new BoutonPalette(parent);
  bouton->setText(texte);
  bouton->setFocusPolicy(Qt::StrongFocus);
  return bouton;
}

}  // namespace

PaletteSymboles::PaletteSymboles(const Texte& symboles, EditeurCase& editeur, QWidget* parent)
    : QWidget(parent, Qt::Popup), editeur_(editeur) {
  setObjectName(QStringLiteral("PaletteSymboles"));
  setAttribute(Qt::WA_DeleteOnClose);
  setFont(PoliceQt({}));
  auto* pile = new QVBoxLayout(this);
  pile->setContentsMargins(5, 5, 5, 5);
  pile->setSpacing(4);
  auto* grille = new QGridLayout;
  grille->setSpacing(0);
  grille->setAlignment(Qt::AlignHCenter);
  AjouteSymboles(grille, symboles);
  pile->addLayout(grille);
  auto* commandes = new QHBoxLayout;
  commandes->setSpacing(2);
  const bool libre = !editeur.isReadOnly();
  AjouteCommande(commandes, QStringLiteral("Couper"), libre, [&editeur] { editeur.cut(); });
  AjouteCommande(commandes, QStringLiteral("Copier"), true, [&editeur] { editeur.copy(); });
  AjouteCommande(commandes, QStringLiteral("Coller"), libre, [&editeur] { editeur.paste(); });
  pile->addLayout(commandes);
}

void PaletteSymboles::AjouteSymboles(QGridLayout* grille, const Texte& symboles) {
  colonnes_ = std::max(1, static_cast<int>(std::lround(std::sqrt(static_cast<double>(symboles.size())))));
  for (const char32_t symbole : symboles) {
    const Texte texte(1, symbole);
    QToolButton* bouton = Bouton(VersQt(texte), this);
    bouton->setFont(PoliceQt({.Gras = true}));
    bouton->setFixedSize(kCote, kCote);
    bouton->setEnabled(!editeur_.isReadOnly());
    connect(bouton, &QToolButton::clicked, this, [this, texte] {
      const auto choisi = Choisi;
      close();
      choisi(texte);
    });
    const int n = static_cast<int>(boutons_.size());
    grille->addWidget(bouton, n / colonnes_, n % colonnes_);
    boutons_.push_back(bouton);
  }
}

void PaletteSymboles::AjouteCommande(QLayout* rangee, const QString& texte, bool permise,
                                     const std::function<void()>& acte) {
  QToolButton* bouton = Bouton(texte, this);
  bouton->setEnabled(permise);
  bouton->setFixedSize(bouton->fontMetrics().horizontalAdvance(texte) + 14, kCote);
  connect(bouton, &QToolButton::clicked, this, [this, acte] {
    const auto aFaire = acte;
    close();
    aFaire();
  });
  rangee->addWidget(bouton);
  boutons_.push_back(bouton);
}

void PaletteSymboles::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setPen(palette().color(QPalette::Dark));
  p.drawRect(rect().adjusted(0, 0, -1, -1));
}

void PaletteSymboles::Montre(const QRect& boite) {
  adjustSize();
  const QRect ecran = parentWidget()->screen()->availableGeometry();
  QPoint coin = boite.bottomLeft() + QPoint(0, 2);
  if (coin.y() + height() > ecran.bottom()) coin.setY(boite.top() - height() - 2);
  coin.setX(std::clamp(coin.x(), ecran.left(), std::max(ecran.left(), ecran.right() - width())));
  coin.setY(std::clamp(coin.y(), ecran.top(), std::max(ecran.top(), ecran.bottom() - height())));
  move(coin);
  show();
  for (QWidget* bouton : boutons_) {
    if (!bouton->isEnabled()) continue;
    bouton->setFocus(Qt::TabFocusReason);
    break;
  }
}

void PaletteSymboles::Deplace(int colonnes, int lignes) {
  const int symboles = static_cast<int>(boutons_.size()) - 3;
  int ici = 0;
  for (int n = 0; n < static_cast<int>(boutons_.size()); ++n) {
    if (boutons_[static_cast<std::size_t>(n)]->hasFocus()) ici = n;
  }
  // The commands are one more row, of three.
  int la = ici + colonnes;
  if (lignes > 0)
    la = ici < symboles ? std::min(ici + colonnes_, symboles + std::min(ici % colonnes_, 2)) : ici;
  if (lignes < 0)
    la = ici < symboles ? ici - colonnes_ : symboles - colonnes_ + std::min(ici - symboles, colonnes_ - 1);
  if (la < 0 || la >= static_cast<int>(boutons_.size())) return;
  QWidget* bouton = boutons_[static_cast<std::size_t>(la)];
  if (bouton->isEnabled()) bouton->setFocus(Qt::TabFocusReason);
}

void PaletteSymboles::keyPressEvent(QKeyEvent* evenement) {
  switch (evenement->key()) {
    case Qt::Key_Left:
      Deplace(-1, 0);
      break;
    case Qt::Key_Right:
      Deplace(1, 0);
      break;
    case Qt::Key_Up:
      Deplace(0, -1);
      break;
    case Qt::Key_Down:
      Deplace(0, 1);
      break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (auto* bouton = qobject_cast<QToolButton*>(focusWidget())) bouton->click();
      break;
    case Qt::Key_Escape:
      close();
      break;
    default:
      QWidget::keyPressEvent(evenement);
  }
}

}  // namespace sudoku
