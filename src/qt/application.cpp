#include "qt/application.h"

#include <sys/socket.h>
#include <unistd.h>

#include <QLibraryInfo>
#include <QLocale>
#include <QSessionManager>
#include <QSocketNotifier>
#include <QStyle>
#include <QStyleFactory>
#include <QTranslator>
#include <csignal>

#include "qt/lecture_plateau.h"
#include "qt/mesure.h"
#include "qt/systeme_qt.h"

namespace sudoku {
namespace {

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

}  // namespace

void PrepareApplication(QApplication& application) {
  QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
  auto* francais = new QTranslator(&application);
  if (francais->load(QStringLiteral("qtbase_fr"), QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QCoreApplication::installTranslator(francais);
  }
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  QApplication::setPalette(QApplication::style()->standardPalette());
  QApplication::setFont(PoliceQt({}));
  QApplication::setQuitOnLastWindowClosed(false);
  InstalleLecture();
}

void EcouteLesFins(SystemeQt& systeme) {
  EcouteSignaux(systeme);
  QObject::connect(
      qApp, &QGuiApplication::commitDataRequest, qApp,
      [&systeme](QSessionManager& session) {
        systeme.DemandeFermeture();
        session.cancel();  // still here: the user wants to stay
      },
      Qt::DirectConnection);
}

}  // namespace sudoku
