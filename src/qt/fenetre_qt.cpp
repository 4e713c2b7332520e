#include "qt/fenetre_qt.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QRegularExpression>
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
