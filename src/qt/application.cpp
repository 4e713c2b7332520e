#include "qt/application.h"

#include <fontconfig/fontconfig.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QDialogButtonBox>
#include <QLibraryInfo>
#include <QLocale>
#include <QPainter>
#include <QProxyStyle>
#include <QSessionManager>
#include <QSocketNotifier>
#include <QStyleOption>
#include <QTimer>
#include <QTranslator>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <system_error>
#include <thread>

#include "qt/icone.h"
#include "qt/lecture.h"
#include "qt/mesure.h"
#include "qt/systeme_qt.h"

// The resources of a library are linked in only where they are named, outside any namespace.
static void ChargeIcones() {
  Q_INIT_RESOURCE(icones);
}

namespace sudoku {
namespace {

bool avecEcran = true;

int tubeDeSignal[2] = {-1, -1};

void NoteSignal(int) {
  const char octet = 1;
  // Nothing can be done in a signal handler about a pipe that is full: a request is in it already.
  [[maybe_unused]] const auto ecrits = write(tubeDeSignal[1], &octet, 1);
}

void EcouteSignaux(SystemeQt& systeme) {
  if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, tubeDeSignal) != 0) return;
  auto* oreille = new QSocketNotifier(tubeDeSignal[0], QSocketNotifier::Read, qApp);
  QObject::connect(oreille, &QSocketNotifier::activated, qApp, [&systeme] {
    char octets[16];
    while (read(tubeDeSignal[0], octets, sizeof octets) > 0) {
    }
    systeme.DemandeFermeture();
  });
  struct sigaction action = {};
  action.sa_handler = NoteSignal;
  action.sa_flags = SA_RESTART;
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) sigaction(signal, &action, nullptr);
}

// Of a display that can't be reached the toolkit says so and aborts, with a core dump: there is nothing in it
// for whoever has no display. Of one that goes away it says so and ends the program.
void NoteMessage(QtMsgType type, const QMessageLogContext&, const QString& texte) {
  const bool perdu = texte.contains(QStringLiteral("connection broke"));
  // Without a screen the toolkit complains about what it can't do, which nobody wanted.
  if (!perdu && (avecEcran || type == QtFatalMsg)) std::fprintf(stderr, "%s\n", qPrintable(texte));
  if (!perdu && type != QtFatalMsg) return;
  std::fprintf(stderr, "Sudoku : l'affichage n'est %s accessible, le programme s'arrête.\n",
               perdu ? "plus" : "pas");
  std::_Exit(1);
}

// The toolkit's own style, on every desktop. The mark of what a menu bar has no room for, which ours never
// needs, is not drawn at every start.
class Style : public QProxyStyle {
 public:
  explicit Style(double echelle) : QProxyStyle(QStringLiteral("Fusion")), echelle_(echelle) {}
  int pixelMetric(PixelMetric quoi, const QStyleOption* option, const QWidget* widget) const override {
    const int mesure = QProxyStyle::pixelMetric(quoi, option, widget);
    const bool suit = quoi == PM_IndicatorWidth || quoi == PM_IndicatorHeight || quoi == PM_ScrollBarExtent;
    return suit ? static_cast<int>(std::lround(mesure * echelle_)) : mesure;
  }
  QIcon standardIcon(StandardPixmap quoi, const QStyleOption* option, const QWidget* widget) const override {
    if (quoi == SP_ToolBarHorizontalExtensionButton) return {};
    return QProxyStyle::standardIcon(quoi, option, widget);
  }
  // Of the buttons of boxes Yes stands before No, OK before Annuler, and none has a picture.
  int styleHint(StyleHint quoi, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* retour) const override {
    if (quoi == SH_DialogButtonLayout) return QDialogButtonBox::WinLayout;
    if (quoi == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    return QProxyStyle::styleHint(quoi, option, widget, retour);
  }
  // The bar's ground is that of the window. It is filled last, with its entries left out by a clipping that a
  // picture of lines (SVG) doesn't know: only the line below it is drawn.
  void drawControl(ControlElement quoi, const QStyleOption* option, QPainter* p,
                   const QWidget* widget) const override {
    if (quoi != CE_MenuBarEmptyArea) return QProxyStyle::drawControl(quoi, option, p, widget);
    p->setPen(option->palette.window().color().darker(112));
    p->drawLine(option->rect.bottomLeft(), option->rect.bottomRight());
  }

 private:
  double echelle_;
};

// The window icon, which is drawn in five sizes: it waits until the first window has been painted, however
// events come by until then, so that this one is on the screen sooner.
class IconeApresDessin : public QObject {
 public:
  using QObject::QObject;
  bool eventFilter(QObject* objet, QEvent* evenement) override {
    if (evenement->type() == QEvent::Paint && objet->isWidgetType()) {
      QTimer::singleShot(0, qApp, [] { QGuiApplication::setWindowIcon(IconeDuJeu()); });
      deleteLater();
      qApp->removeEventFilter(this);
    }
    return false;
  }
};

// Fonts of up to 11 points are what desktops come with, and the tables' own size stands for them; one that
// somebody has made larger makes all larger.
double EchellePour(const QFont& duBureau) {
  constexpr double kOrdinaire = 11;
  constexpr double kMoyenne = 10;
  const double points =
      duBureau.pointSizeF() > 0 ? duBureau.pointSizeF() : duBureau.pixelSize() / kPixelsParPoint;
  return points <= kOrdinaire ? 1 : std::min(points / kMoyenne, 3.0);
}

}  // namespace

void PrepareAffichage(bool ecran) {
  avecEcran = ecran;
  if (!ecran) qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler(NoteMessage);
}

std::unique_ptr<QApplication> FabriqueApplication(int& argc, char** argv) {
  // Dozens of files, which take as long as it takes to reach the display.
  std::jthread polices;
  try {
    polices = std::jthread(FcInit);
  } catch (const std::system_error&) {
    // No thread to be had: the toolkit reads them when it needs them.
  }
  return std::make_unique<QApplication>(argc, argv);
}

void PrepareApplication(QApplication& application) {
  ChargeIcones();
  QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
  auto* francais = new QTranslator(&application);
  if (francais->load(QStringLiteral("qtbase_fr"), QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QCoreApplication::installTranslator(francais);
  }
  const double echelle = EchellePour(QApplication::font());
  QApplication::setStyle(new Style(echelle));
  QApplication::setPalette(QApplication::style()->standardPalette());
  QApplication::setFont(PoliceQt({}, echelle));
  QApplication::setQuitOnLastWindowClosed(false);
  QGuiApplication::setDesktopFileName(QStringLiteral("solver-de-sudoku"));  // as installed: icon and group
  InstalleLecture();
  application.installEventFilter(new IconeApresDessin(&application));
}

void EcouteLesFins(SystemeQt& systeme) {
  EcouteSignaux(systeme);
  QObject::connect(
      qApp, &QGuiApplication::commitDataRequest, qApp,
      [&systeme](QSessionManager& session) {
        if (session.allowsInteraction()) systeme.DemandeFermeture();
        session.cancel();  // still here: the user wants to stay
      },
      Qt::DirectConnection);
}

}  // namespace sudoku
