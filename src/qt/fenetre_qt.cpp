#include "qt/fenetre_qt.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QStyle>
#include <QWindow>
#include <algorithm>

#include "qt/plateau_qt.h"
#include "qt/texte_qt.h"
#include "qt/touches.h"

namespace sudoku {
namespace {

// A window beside the first is a tool: the window manager keeps it above its owner, and doesn't lay it over
// it.
Qt::WindowFlags Drapeaux(const Fenetre& fenetre, bool modale, bool outil) {
  Qt::WindowFlags drapeaux = fenetre.Dialogue || modale ? Qt::Dialog : outil ? Qt::Tool : Qt::Window;
  drapeaux |= Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint;
  if (fenetre.ControlBox) drapeaux |= Qt::WindowCloseButtonHint;
  if (fenetre.TopMost) drapeaux |= Qt::WindowStaysOnTopHint;
  return drapeaux;
}

}  // namespace

FenetreQt::FenetreQt(Fenetre& fenetre, Pilote& pilote, QWidget* proprietaire, Maniere maniere)
    : QWidget(proprietaire, Drapeaux(fenetre, maniere.modale, proprietaire != nullptr)),
      fenetre_(fenetre),
      pilote_(pilote),
      fond_(new QWidget(this)),
      dessus_(maniere.dessus) {
  if (maniere.modale) setWindowModality(Qt::ApplicationModal);
  setObjectName(QString::fromStdString(fenetre.Name));
  setFont(PoliceQt({}, bureau_));
  if (fenetre_.avecPlateau) {
    plateau_ = new PlateauQt(fenetre_, pilote_, fond_);
    plateau_->ToucheDeFenetre = [this](const QKeyEvent& evenement) {
      return ToucheDeZoom(evenement) || ToucheDArticle(evenement);
    };
    setAcceptDrops(true);
  }
  FabriqueElements();
  FabriqueMenus();
  FabriqueMinuteries();
  OrdonneTabulation();
}

FenetreQt::~FenetreQt() = default;

// ---- making

void FenetreQt::FabriqueElements() {
  for (Element& element : fenetre_.elements) {
    QWidget* parent = fond_;
    for (const auto& autre : elements_) {
      if (!element.Parent.empty() && autre->LElement().Name == element.Parent) parent = autre->Widget();
    }
    elements_.push_back(FabriqueElement(element, parent, pilote_));
    if (element.genre == Genre::kCadre) elements_.back()->Widget()->lower();
  }
  if (plateau_ != nullptr) plateau_->lower();
  for (const auto& element : elements_) Nomme(*element);
}

// For readers: a field by its label, a list without one by what the window asks.
void FenetreQt::Nomme(const ElementQt& element) {
  const Element& e = element.LElement();
  const bool liste = e.genre == Genre::kListe || e.genre == Genre::kChampListe;
  if (e.Libelle.empty() && !liste) return;
  const QString nom = VersQt(e.Libelle.empty() ? fenetre_.Caption : fenetre_.Trouve(e.Libelle)->Caption);
  element.Widget()->setAccessibleName(nom);
  for (QWidget* partie :
       element.Widget()->findChildren<QWidget*>(QRegularExpression(QStringLiteral("\\.")))) {
    partie->setAccessibleName(nom);
  }
}

void FenetreQt::FabriqueMenus() {
  if (fenetre_.menus.empty()) return;
  barre_ = new QMenuBar(this);
  barre_->setNativeMenuBar(false);
  for (Menu& menu : fenetre_.menus) {
    QMenu* liste = barre_->addMenu(VersQt(menu.Caption));
    liste->setObjectName(QString::fromStdString(menu.Name));
    for (ArticleMenu& article : menu.articles) {
      if (article.Caption == U"-") {
        liste->addSeparator();
        continue;
      }
      QAction* action = liste->addAction(VersQt(article.Caption));
      action->setObjectName(QString::fromStdString(article.Name));
      connect(action, &QAction::triggered, this, [this, &article] {
        if (article.Click) pilote_.ExecuteCommande(article.Click);
      });
      articles_.push_back({&article, action});
    }
  }
}

void FenetreQt::FabriqueMinuteries() {
  for (Minuterie& minuterie : fenetre_.minuteries) {
    auto* horloge = new QTimer(this);
    horloge->setObjectName(QString::fromStdString(minuterie.Name));
    horloge->setTimerType(Qt::PreciseTimer);  // any other comes up to a twentieth too early
    const std::size_t n = tics_.size();
    connect(horloge, &QTimer::timeout, this, [this, n] { Sonne(tics_[n]); });
    tics_.push_back({&minuterie, horloge});
  }
}

void FenetreQt::OrdonneTabulation() {
  std::vector<ElementQt*> ordre;
  for (const auto& element : elements_) {
    if (element->LElement().TabIndex >= 0) ordre.push_back(element.get());
  }
  std::ranges::sort(ordre, {}, [](const ElementQt* e) { return e->LElement().TabIndex; });
  for (std::size_t n = 1; n < ordre.size(); ++n) setTabOrder(ordre[n - 1]->Widget(), ordre[n]->Widget());
}

// ---- timers

void FenetreQt::Sonne(Tic& tic) {
  tic.attend = pilote_.Occupe();
  if (!tic.attend && tic.minuterie->Timer) pilote_.Execute(tic.minuterie->Timer);
}

void FenetreQt::RattrapeTics() {
  for (Tic& tic : tics_) {
    if (tic.attend) Sonne(tic);
  }
}

// A tick that waits goes with the clock that is stopped or started over.
void FenetreQt::Suit(Tic& tic) {
  const Minuterie& minuterie = *tic.minuterie;
  if (tic.horloge->isActive() == minuterie.Enabled && tic.departs == minuterie.departs) return;
  tic.departs = minuterie.departs;
  tic.attend = false;
  minuterie.Enabled ? tic.horloge->start(minuterie.Interval) : tic.horloge->stop();
}

// ---- what the record holds

void FenetreQt::Synchronise() {
  if (titre_ != fenetre_.Caption) {
    titre_ = fenetre_.Caption;
    setWindowTitle(VersQt(titre_));
  }
  if (plateau_ != nullptr) plateau_->Relit();
  if (voulue_ != QSize(fenetre_.Width, fenetre_.Height)) Dispose();
  for (const auto& element : elements_) element->Synchronise();
  for (const Article& a : articles_) {
    if (a.action->isEnabled() != a.article->Enabled) a.action->setEnabled(a.article->Enabled);
  }
  for (Tic& tic : tics_) Suit(tic);
  if (plateau_ != nullptr) plateau_->Synchronise();
  SuitPile();
  if (isHidden() == fenetre_.Visible) setVisible(fenetre_.Visible);
  if (fenetre_.fermee) boucle_.quit();
}

// Above the windows of other programs, or no longer: a request about the window that is there.
void FenetreQt::SuitPile() {
  const bool voulu = dessus_ || fenetre_.TopMost;
  if (windowFlags().testFlag(Qt::WindowStaysOnTopHint) == voulu) return;
  overrideWindowFlags(windowFlags().setFlag(Qt::WindowStaysOnTopHint, voulu));
  if (QWindow* fenetre = windowHandle()) fenetre->setFlag(Qt::WindowStaysOnTopHint, voulu);
}

void FenetreQt::AttendFermeture() {
  fenetre_.Visible = true;
  Synchronise();
  activateWindow();
  if (!fenetre_.fermee) boucle_.exec();
}

// ---- size and place

void FenetreQt::MetSansEcran() {
  sansEcran_ = true;
  Dispose();
}

QSize FenetreQt::Disponible() const {
  if (sansEcran_) return QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
  // A window manager tells how thick its frame is only once the window is there, and some never do.
  QSize bords(8, 34);
  if (windowHandle() != nullptr)
    bords = bords.expandedTo(QSize(0, 0).grownBy(windowHandle()->frameMargins()));
  return screen()->availableSize() - bords;
}

// From top to bottom: menu bar; labels, at a scale at which they can be read; the board, at the zoom. Without
// a board the window has the record's size. With one it grows and shrinks with the zoom, as far as the screen
// allows: then the board scrolls, and the bar of one direction takes its room from the other.
void FenetreQt::Dispose() {
  voulue_ = QSize(fenetre_.Width, fenetre_.Height);
  const int menu = barre_ != nullptr ? barre_->sizeHint().height() : 0;
  const QSize disponible = Disponible();
  const QSize table(Pixels(fenetre_.Width), Pixels(fenetre_.Height));
  double echelle = bureau_;
  if (plateau_ == nullptr && bureau_ > 1) {
    echelle = std::clamp(
        std::min(1.0 * disponible.width() / table.width(), 1.0 * disponible.height() / table.height()), 1.0,
        bureau_);
  }
  QSize taille = (QSizeF(table) * echelle).toSize();
  if (plateau_ != nullptr) {
    Twips haut = 0;
    for (const Element& element : fenetre_.elements) haut = std::max(haut, element.Top + element.Height);
    echelle = bureau_ * std::clamp(zoom_, 1.0, 2.0);
    const double zoom = bureau_ * zoom_;
    const int entete = Pixels(haut, echelle);
    const QSize contenu(
        Pixels(fenetre_.Width, zoom),
        static_cast<int>(std::lround((table.height() - menu / bureau_ - Pixels(haut)) * zoom)));
    const int barre = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    taille = QSize(contenu.width(), menu + entete + contenu.height());
    if (taille.height() > disponible.height()) taille.rwidth() += barre;
    if (taille.width() > disponible.width()) taille.rheight() += barre;
    if (barre_ != nullptr) taille.setWidth(std::max(taille.width(), barre_->sizeHint().width()));
    taille = taille.boundedTo(disponible);
    plateau_->setGeometry(0, entete, taille.width(), taille.height() - menu - entete);
    plateau_->Dimensionne(zoom, haut, contenu);
  }
  setFixedSize(taille);
  if (barre_ != nullptr) barre_->setGeometry(0, 0, taille.width(), menu);
  fond_->setGeometry(0, menu, taille.width(), taille.height() - menu);
  for (const auto& element : elements_) element->Place(echelle, taille.width(), plateau_ != nullptr);
  if (isVisible()) RentreDansLEcran();
}

void FenetreQt::RentreDansLEcran() {
  if (plateau_ == nullptr || sansEcran_) return;
  const QRect ecran = screen()->availableGeometry();
  const QRect cadre = frameGeometry();
  const int x = std::max(ecran.left(), std::min(cadre.left(), ecran.right() + 1 - cadre.width()));
  const int y = std::max(ecran.top(), std::min(cadre.top(), ecran.bottom() + 1 - cadre.height()));
  if (cadre.topLeft() != QPoint(x, y)) move(x, y);
}

void FenetreQt::CentreSurProprietaire() {
  const QWidget* proprietaire = parentWidget();
  if (!fenetre_.CentreSurProprietaire || proprietaire == nullptr) return;
  const QRect ecran = screen()->availableGeometry();
  QRect cadre(QPoint(), size());
  cadre.moveCenter(proprietaire->frameGeometry().center());
  cadre.moveTopLeft(
      QPoint(std::clamp(cadre.left(), ecran.left(), std::max(ecran.left(), ecran.right() - width())),
             std::clamp(cadre.top(), ecran.top(), std::max(ecran.top(), ecran.bottom() - height()))));
  move(cadre.topLeft());
}

// A tool comes up beside its owner. Where the screen has no room there, it comes to the edge of the screen
// and leaves menus and labels free.
void FenetreQt::PlaceACote() {
  const auto* voisine = dynamic_cast<const FenetreQt*>(parentWidget());
  if (placee_ || voisine == nullptr || windowType() != Qt::Tool) return;
  placee_ = true;
  const QRect ecran = voisine->screen()->availableGeometry();
  const QRect place = voisine->frameGeometry();
  // Its frame will be as thick, and as long as that isn't there the place is that of what it holds.
  const QSize cadre = size() + place.size() - voisine->size();
  const QPoint dedans = voisine->geometry().topLeft() - place.topLeft();
  QPoint coin(place.right() + 1, place.top());
  if (coin.x() + cadre.width() > ecran.right() + 1) coin.setX(place.left() - cadre.width());
  if (coin.x() < ecran.left()) {
    coin.setX(ecran.right() + 1 - cadre.width());
    if (voisine->plateau_ != nullptr) coin.setY(voisine->plateau_->mapToGlobal(QPoint()).y());
  }
  const int bas = std::max(ecran.top(), ecran.bottom() + 1 - cadre.height());
  move(QPoint(coin.x(), std::clamp(coin.y(), ecran.top(), bas)) + dedans);
}

void FenetreQt::showEvent(QShowEvent* evenement) {
  CentreSurProprietaire();
  PlaceACote();
  QWidget::showEvent(evenement);
  if (focusWidget() != nullptr || plateau_ != nullptr) return;
  // The first stop in the order of the Tab key.
  QWidget* premier = nullptr;
  int rang = 0;
  for (const auto& element : elements_) {
    const Element& e = element->LElement();
    if (e.TabIndex < 0 || !e.TabStop || !e.Visible || element->Widget()->focusPolicy() == Qt::NoFocus)
      continue;
    if (e.genre == Genre::kCadre || (premier != nullptr && e.TabIndex > rang)) continue;
    premier = element->Widget();
    rang = e.TabIndex;
  }
  if (premier != nullptr) premier->setFocus();
}

// The real frame is known, or the window is on another screen.
bool FenetreQt::event(QEvent* evenement) {
  const bool resultat = QWidget::event(evenement);
  if (evenement->type() == QEvent::ScreenChangeInternal && plateau_ != nullptr) Dispose();
  return resultat;
}

// ---- larger and smaller

void FenetreQt::ChangeZoom(int pas) {
  constexpr int kPourcents[] = {25, 33, 50, 67, 80, 90, 100, 110, 125, 150, 175, 200, 250, 300, 350, 400};
  constexpr int kCent = 6;
  const int ici = static_cast<int>(std::lround(zoom_ * 100));
  int n = static_cast<int>(std::ranges::lower_bound(kPourcents, ici) - std::begin(kPourcents));
  n = pas == 0 ? kCent : std::clamp(n + pas, 0, static_cast<int>(std::size(kPourcents)) - 1);
  zoom_ = kPourcents[n] / 100.0;
  Dispose();
  update();
}

bool FenetreQt::ToucheDeZoom(const QKeyEvent& evenement) {
  if (plateau_ == nullptr || !(evenement.modifiers() & Qt::ControlModifier)) return false;
  const bool maj = evenement.modifiers() & Qt::ShiftModifier;
  switch (evenement.key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
      ChangeZoom(1);
      return true;
    case Qt::Key_Minus:
    case Qt::Key_Underscore:
      ChangeZoom(-1);
      return true;
    case Qt::Key_0:
    case Qt::Key_Agrave:
      ChangeZoom(0);
      return true;
    case Qt::Key_6:  // the shifted form of a French keyboard's minus
      if (maj) ChangeZoom(-1);
      return maj;
    default:
      return false;
  }
}

void FenetreQt::wheelEvent(QWheelEvent* evenement) {
  if (plateau_ == nullptr || !(evenement->modifiers() & Qt::ControlModifier)) return;
  constexpr int kCran = 120;
  roue_ += evenement->angleDelta().y();
  const int crans = roue_ / kCran;
  roue_ -= crans * kCran;
  if (crans != 0) ChangeZoom(crans);
}

// ---- events

bool FenetreQt::ToucheDArticle(const QKeyEvent& evenement) {
  if (evenement.modifiers() != Qt::ControlModifier) return false;
  for (const Article& a : articles_) {
    if (a.article->Touche == 0 || a.article->Touche != evenement.key()) continue;
    a.action->trigger();  // which does nothing while it is disabled
    return true;
  }
  return false;
}

bool FenetreQt::Appuie(bool Element::*role) {
  for (const auto& element : elements_) {
    if (element->LElement().genre != Genre::kBouton || !(element->LElement().*role)) continue;
    static_cast<QPushButton*>(element->Widget())->click();
    return true;
  }
  return false;
}

bool FenetreQt::ToucheDeBouton(const QKeyEvent& evenement) {
  const int code = CodeTouche(evenement);
  if (code == kToucheEchappe) return Appuie(&Element::Cancel);
  if (code != kToucheEntree) return false;
  // Enter presses the button that has the focus, if one has it.
  if (auto* bouton = qobject_cast<QPushButton*>(focusWidget())) {
    bouton->click();
    return true;
  }
  return Appuie(&Element::Default);
}

void FenetreQt::keyPressEvent(QKeyEvent* evenement) {
  if (ToucheDeBouton(*evenement)) return;
  const int code = CodeTouche(*evenement);
  if (plateau_ == nullptr && code != 0 && fenetre_.KeyDown) pilote_.Execute([&] { fenetre_.KeyDown(code); });
}

void FenetreQt::closeEvent(QCloseEvent* evenement) {
  evenement->ignore();  // the record says whether the window goes
  if (!fenetre_.ControlBox) return;
  pilote_.Execute([&] {
    if (fenetre_.QueryUnload && fenetre_.QueryUnload(kFermeParUtilisateur)) return;
    fenetre_.Visible = false;
    fenetre_.Ferme();
  });
}

void FenetreQt::dragEnterEvent(QDragEnterEvent* evenement) {
  const QMimeData* donnees = evenement->mimeData();
  if (donnees->hasUrls() || donnees->hasText()) evenement->acceptProposedAction();
}

void FenetreQt::dropEvent(QDropEvent* evenement) {
  evenement->acceptProposedAction();
  const QMimeData* donnees = evenement->mimeData();
  const QList<QUrl> adresses = donnees->urls();
  if (!adresses.isEmpty()) {
    if (!adresses.first().isLocalFile() || !fenetre_.conforts.OuvreFichier) return QApplication::beep();
    const Texte chemin = DepuisQt(adresses.first().toLocalFile());
    // The drop ends before boxes open: the program that it came from waits for it.
    QTimer::singleShot(0, this, [this, chemin] {
      if (!pilote_.Occupe()) pilote_.ExecuteCommande([&] { fenetre_.conforts.OuvreFichier(chemin); });
    });
    return;
  }
  const QString texte = donnees->text();
  QTimer::singleShot(0, this, [this, texte] {
    if (!pilote_.Occupe()) plateau_->DeposeTexte(texte);
  });
}

}  // namespace sudoku
