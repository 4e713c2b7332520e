#include "qt/palette_symboles.h"

#include <QCursor>
#include <QGridLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QToolButton>
#include <algorithm>
#include <cmath>
#include <utility>

#include "qt/mesure.h"
#include "qt/texte_qt.h"

namespace sudoku {
namespace {

int CoteBouton() {
  return AuBureau(26);
}

// A flat button that is marked while it would be the choice: a mouse that moves brings it the focus. All its
// keys but the space bar are the palette's.
class BoutonPalette : public QToolButton {
 public:
  BoutonPalette(const QString& texte, PaletteSymboles& palette) : QToolButton(&palette), palette_(palette) {
    setText(texte);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
  }

 protected:
  void enterEvent(QEnterEvent* evenement) override {
    palette_.Pointe(*this, evenement->globalPosition().toPoint());
  }
  void mouseMoveEvent(QMouseEvent* evenement) override {
    palette_.Pointe(*this, evenement->globalPosition().toPoint());
    QToolButton::mouseMoveEvent(evenement);
  }
  void keyPressEvent(QKeyEvent* evenement) override {
    if (evenement->key() == Qt::Key_Space) return QToolButton::keyPressEvent(evenement);
    evenement->ignore();
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

 private:
  PaletteSymboles& palette_;
};

}  // namespace

PaletteSymboles::PaletteSymboles(Texte symboles, bool libre, Texte ici, QWidget* parent)
    : QWidget(parent, Qt::Popup), symboles_(std::move(symboles)), contenu_(std::move(ici)) {
  setObjectName(QStringLiteral("PaletteSymboles"));
  setAttribute(Qt::WA_DeleteOnClose);
  setFont(PoliceQt({}, EchelleDuBureau()));
  auto* pile = new QVBoxLayout(this);
  const int bord = AuBureau(5);
  pile->setContentsMargins(bord, bord, bord, bord);
  pile->setSpacing(AuBureau(4));
  auto* grille = new QGridLayout;
  grille->setSpacing(0);
  grille->setAlignment(Qt::AlignHCenter);
  AjouteSymboles(grille, libre);
  pile->addLayout(grille);
}

void PaletteSymboles::AjouteSymboles(QGridLayout* grille, bool libre) {
  const double cote = std::sqrt(static_cast<double>(symboles_.size()));
  const std::size_t colonnes = std::max<std::size_t>(1, static_cast<std::size_t>(std::lround(cote)));
  for (std::size_t n = 0; n < symboles_.size(); ++n) {
    const Texte texte(1, symboles_[n]);
    auto* bouton = new BoutonPalette(VersQt(texte), *this);
    bouton->setFont(PoliceQt({.Gras = true}, EchelleDuBureau()));
    bouton->setFixedSize(CoteBouton(), CoteBouton());
    bouton->setEnabled(libre);
    connect(bouton, &QToolButton::clicked, this, [this, texte] {
      const auto choisi = Choisi;
      close();
      choisi(texte);
    });
    grille->addWidget(bouton, static_cast<int>(n / colonnes), static_cast<int>(n % colonnes));
    if (n % colonnes == 0) rangees_.emplace_back();
    rangees_.back().push_back(bouton);
  }
}

void PaletteSymboles::Ajoute(const std::vector<Commande>& commandes) {
  auto* rangee = new QHBoxLayout;
  rangee->setSpacing(AuBureau(2));
  rangees_.emplace_back();
  for (const Commande& commande : commandes) {
    auto* bouton = new BoutonPalette(commande.texte, *this);
    bouton->setEnabled(commande.permise);
    bouton->setFixedSize(bouton->fontMetrics().horizontalAdvance(commande.texte) + AuBureau(14),
                         CoteBouton());
    connect(bouton, &QToolButton::clicked, this, [this, acte = commande.acte] {
      const auto aFaire = acte;
      close();
      aFaire();
    });
    rangee->addWidget(bouton);
    rangees_.back().push_back(bouton);
  }
  static_cast<QVBoxLayout*>(layout())->addLayout(rangee);
}

void PaletteSymboles::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setPen(palette().color(QPalette::Dark));
  p.drawRect(rect().adjusted(0, 0, -1, -1));
}

void PaletteSymboles::Montre(const QRect& ici) {
  adjustSize();
  const QRect ecran = parentWidget()->screen()->availableGeometry();
  QPoint coin = ici.bottomLeft() + QPoint(0, 2);
  if (coin.y() + height() > ecran.bottom()) coin.setY(ici.top() - height() - 2);
  coin.setX(std::clamp(coin.x(), ecran.left(), std::max(ecran.left(), ecran.right() - width())));
  coin.setY(std::clamp(coin.y(), ecran.top(), std::max(ecran.top(), ecran.bottom() - height())));
  move(coin);
  pointeur_ = QCursor::pos();
  show();
  // The symbol that stands there, otherwise the first that can be chosen.
  const std::size_t place = contenu_.size() == 1 ? symboles_.find(contenu_[0]) : Texte::npos;
  QWidget* premier = nullptr;
  std::size_t n = 0;
  for (const auto& rangee : rangees_) {
    for (QWidget* bouton : rangee) {
      if (bouton->isEnabled() && (premier == nullptr || n == place)) premier = bouton;
      ++n;
    }
  }
  if (premier != nullptr) premier->setFocus(Qt::TabFocusReason);
}

void PaletteSymboles::Pointe(QWidget& bouton, QPoint ou) {
  if (ou == pointeur_ || !bouton.isEnabled()) return;
  pointeur_ = ou;
  bouton.setFocus();
}

std::pair<std::size_t, std::size_t> PaletteSymboles::Ici() const {
  for (std::size_t y = 0; y < rangees_.size(); ++y) {
    const auto place = std::ranges::find(rangees_[y], focusWidget());
    if (place != rangees_[y].end()) return {y, static_cast<std::size_t>(place - rangees_[y].begin())};
  }
  return {};
}

// Round the square, over what can't be chosen.
void PaletteSymboles::Deplace(int colonnes, int lignes) {
  const auto tourne = [](std::size_t ici, int pas, std::size_t nombre) {
    return (ici + nombre + static_cast<std::size_t>(pas + 1) - 1) % nombre;
  };
  auto [y, x] = Ici();
  for (std::size_t essai = 0; essai < rangees_.size(); ++essai) {
    y = tourne(y, lignes, rangees_.size());
    const std::size_t largeur = rangees_[y].size();
    x = tourne(std::min(x, largeur - 1), colonnes, largeur);
    for (std::size_t n = 0; n < largeur; ++n) {
      if (rangees_[y][x]->isEnabled()) return rangees_[y][x]->setFocus(Qt::TabFocusReason);
      x = tourne(x, colonnes != 0 ? colonnes : 1, largeur);
    }
  }
}

void PaletteSymboles::VaAuBout(bool debut) {
  const auto& rangee = rangees_[Ici().first];
  QWidget* bouton = debut ? rangee.front() : rangee.back();
  if (bouton->isEnabled()) bouton->setFocus(Qt::TabFocusReason);
}

// The symbol as it is typed, or as it is written in the other case.
bool PaletteSymboles::ChoisitTape(const QString& texte) {
  const Texte tape = DepuisQt(texte);
  if (tape.size() != 1) return false;
  std::size_t n = symboles_.find(tape[0]);
  for (std::size_t m = 0; m < symboles_.size() && n == Texte::npos; ++m) {
    if (Minuscule(symboles_[m]) == Minuscule(tape[0])) n = m;
  }
  if (n == Texte::npos) return false;
  const std::size_t colonnes = rangees_.front().size();
  static_cast<QToolButton*>(rangees_[n / colonnes][n % colonnes])->click();
  return true;
}

void PaletteSymboles::keyPressEvent(QKeyEvent* evenement) {
  switch (evenement->key()) {
    case Qt::Key_Left:
      return Deplace(-1, 0);
    case Qt::Key_Right:
      return Deplace(1, 0);
    case Qt::Key_Up:
      return Deplace(0, -1);
    case Qt::Key_Down:
      return Deplace(0, 1);
    case Qt::Key_Home:
    case Qt::Key_End:
      return VaAuBout(evenement->key() == Qt::Key_Home);
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (auto* bouton = qobject_cast<QToolButton*>(focusWidget())) bouton->click();
      return;
    case Qt::Key_Escape:
      close();
      return;
    default:
      if (!ChoisitTape(evenement->text())) QWidget::keyPressEvent(evenement);
  }
}

}  // namespace sudoku
