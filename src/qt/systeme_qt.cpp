#include "qt/systeme_qt.h"

#include <QApplication>
#include <QDateTime>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QProcess>
#include <QWindow>
#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "qt/fenetre_qt.h"
#include "qt/texte_qt.h"

namespace sudoku {
namespace {

// The pointer that says "wait" goes while a box is open, and comes back after it.
class SansAttente {
 public:
  SansAttente() : attente_(QApplication::overrideCursor() != nullptr) {
    if (attente_) QApplication::restoreOverrideCursor();
  }
  ~SansAttente() {
    if (attente_) QApplication::setOverrideCursor(Qt::WaitCursor);
  }
  SansAttente(const SansAttente&) = delete;
  SansAttente& operator=(const SansAttente&) = delete;

 private:
  bool attente_;
};

}  // namespace

SystemeQt::SystemeQt() {
  retard_.setSingleShot(true);
  retard_.callOnTimeout([this] { Execute([] {}); });
}

SystemeQt::~SystemeQt() = default;

// ---- handlers

void SystemeQt::Execute(const std::function<void()>& acte) {
  ++profondeur_;
  acte();
  --profondeur_;
  SynchroniseTout();
  FinitHandler();
}

void SystemeQt::Precede(const std::function<void()>& acte) {
  ++profondeur_;
  acte();
  --profondeur_;
  retard_.start(0);
}

void SystemeQt::ExecuteCommande(const std::function<void()>& acte) {
  const bool attente = QApplication::overrideCursor() == nullptr;
  if (attente) QApplication::setOverrideCursor(Qt::WaitCursor);
  Execute(acte);
  if (attente) QApplication::restoreOverrideCursor();
}

void SystemeQt::FinitHandler() {
  if (Occupe()) return;
  for (const Connue& connue : fenetres_) {
    if (connue.qt) connue.qt->RattrapeTics();
  }
  RattrapeFermeture();
}

void SystemeQt::RattrapeFermeture() {
  if (!fermetureDemandee_) return;
  fermetureDemandee_ = false;
  QTimer::singleShot(0, qApp, [this] { DemandeFermeture(); });
}

void SystemeQt::SynchroniseTout() {
  retard_.stop();
  for (Connue& connue : fenetres_) {
    if (!connue.qt && connue.fenetre->Visible) {
      // The later windows belong to the first and come up without taking the focus.
      QWidget* premiere = connue.fenetre == fenetres_.front().fenetre ? nullptr : fenetres_.front().qt.get();
      connue.qt = std::make_unique<FenetreQt>(*connue.fenetre, *this, premiere, FenetreQt::Maniere{});
      connue.qt->setAttribute(Qt::WA_ShowWithoutActivating, premiere != nullptr);
    }
    if (connue.qt) connue.qt->Synchronise();
  }
  for (FenetreQt* modale : modales_) modale->Synchronise();
}

void SystemeQt::DemandeFermeture() {
  if (fermetureEnCours_ || fenetres_.empty() || !fenetres_.front().qt) return;
  if (Occupe() && QApplication::activeModalWidget() == nullptr) {
    fermetureDemandee_ = true;
    return;
  }
  fermetureEnCours_ = true;
  fenetres_.front().qt->close();
  fermetureEnCours_ = false;
}

FenetreQt* SystemeQt::FenetreDe(const Fenetre& fenetre) {
  for (const Connue& connue : fenetres_) {
    if (connue.fenetre == &fenetre) return connue.qt.get();
  }
  for (FenetreQt* modale : modales_) {
    if (&modale->LaFenetre() == &fenetre) return modale;
  }
  return nullptr;
}

// ---- boxes

QWidget* SystemeQt::Devant() const {
  if (QWidget* boite = QApplication::activeModalWidget()) return boite;
  if (!modales_.empty()) return modales_.back();
  return fenetres_.empty() ? nullptr : fenetres_.front().qt.get();
}

bool SystemeQt::Dessus() const {
  return std::ranges::any_of(
      fenetres_, [](const Connue& connue) { return connue.fenetre->Visible && connue.fenetre->TopMost; });
}

// A box is centred on its owner, and where the first window lies is known once it is on the screen.
void SystemeQt::AttendPremiere() {
  constexpr int kPatience = 1000;  // milliseconds; a window manager may not put it there at all
  if (premiereVue_ || fenetres_.empty() || !fenetres_.front().qt || fenetres_.front().qt->isHidden()) return;
  premiereVue_ = true;
  const QWindow& premiere = *fenetres_.front().qt->windowHandle();
  if (premiere.isExposed()) return;
  const QDeadlineTimer patience(kPatience);
  QEventLoop boucle;
  QTimer guet;
  QObject::connect(&guet, &QTimer::timeout, &boucle, [&] {
    if (premiere.isExposed() || patience.hasExpired()) boucle.quit();
  });
  guet.start(1);
  boucle.exec(QEventLoop::ExcludeUserInputEvents);
}

PlaceDeBoite SystemeQt::Place(TexteVue titre) {
  SynchroniseTout();
  RattrapeFermeture();
  AttendPremiere();
  // A box without a title of its own bears the program's.
  if (titre.empty() && !fenetres_.empty()) titre = fenetres_.front().fenetre->Caption;
  return {Devant(), Dessus(), VersQt(titre)};
}

void SystemeQt::Message(TexteVue texte, TexteVue titre) {
  const SansAttente sans;
  MontreMessage(Place(titre), VersQt(texte));
}

bool SystemeQt::Question(TexteVue texte) {
  const SansAttente sans;
  return PoseQuestion(Place({}), VersQt(texte));
}

Texte SystemeQt::Saisie(TexteVue texte, TexteVue titre, TexteVue defaut) {
  const SansAttente sans;
  return SansControles(DepuisQt(DemandeTexte(Place(titre), VersQt(texte), VersQt(defaut))));
}

void SystemeQt::Fichier(DemandeFichier& demande) {
  const SansAttente sans;
  Repond(demande, DepuisQt(DemandeChemin(Place({}), demande)));
}

void SystemeQt::MontreModale(Fenetre& fenetre) {
  const SansAttente sans;
  SynchroniseTout();
  RattrapeFermeture();
  AttendPremiere();
  QWidget* proprietaire = fenetre.proprietaire != nullptr ? FenetreDe(*fenetre.proprietaire) : nullptr;
  FenetreQt modale(fenetre, *this, proprietaire != nullptr ? proprietaire : Devant(),
                   {.modale = true, .dessus = Dessus()});
  modales_.push_back(&modale);
  modale.AttendFermeture();
  modales_.pop_back();
}

void SystemeQt::Ajoute(Fenetre& fenetre) {
  fenetres_.push_back({&fenetre, nullptr});
}

void SystemeQt::Retire(Fenetre& fenetre) {
  const auto place = std::ranges::find(fenetres_, &fenetre, &Connue::fenetre);
  if (place == fenetres_.end()) return;
  fenetre.Visible = false;
  if (place->qt) place->qt->hide();  // what is held in it is let go, and acts a last time
  fenetres_.erase(place);
}

// ---- machine

void SystemeQt::DoEvents() {
  SynchroniseTout();
  QApplication::processEvents();
}

void SystemeQt::Fin() {
  for (const Connue& connue : fenetres_) {
    if (connue.qt) connue.qt->hide();
  }
  // Handlers and boxes are on the stack, and none of them may go on: nothing is unwound.
  std::fflush(nullptr);
  std::_Exit(0);
}

std::int64_t SystemeQt::Maintenant() {
  const QDateTime ici = QDateTime::currentDateTime();
  return ici.toMSecsSinceEpoch() + 1000LL * ici.offsetFromUtc();
}

std::optional<ValeurRegistre> SystemeQt::Registre(std::uint32_t, TexteVue, TexteVue) {
  return std::nullopt;
}

bool SystemeQt::Lance(TexteVue chemin) {
  return QProcess::startDetached(VersQt(chemin), {});
}

}  // namespace sudoku
