#include "qt/joueur_qt.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include "qt/editeur_case.h"
#include "qt/texte_qt.h"

namespace sudoku {

namespace {

// Off screen nobody gives the focus to a window that comes up, or back when a box closes.
bool SansGestionnaire() {
  return QGuiApplication::platformName() == QStringLiteral("offscreen");
}

}  // namespace

void Attends(const std::function<bool()>& condition, const char* quoi) {
  constexpr int kPatience = 20'000;  // a machine under load; nobody waits that long otherwise
  QElapsedTimer depuis;
  depuis.start();
  while (!condition()) {
    ASSERT_LT(depuis.elapsed(), kPatience) << quoi;
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
  }
}

std::string FichierDEssai(const char* nom) {
  return testing::TempDir() + nom + "-" + QGuiApplication::platformName().toStdString() + ".sud";
}

JoueurQt::JoueurQt() : programme_(systeme_) {}

void JoueurQt::Demarre(const std::string& fichier) {
  const Texte ligne = fichier.empty() ? Texte() : DepuisUtf8("\"" + fichier + "\"");
  systeme_.Execute([&] { programme_.Demarre(ligne); });
  Fenetre().activateWindow();
  Attends([&] { return Fenetre().isActiveWindow(); }, "the window becomes active");
}

void JoueurQt::Quand(const char* boite, const std::function<void(QWidget&)>& acte) {
  attendues_.push_back({QString::fromLatin1(boite), acte});
  if (attendues_.size() == 1) Guette();
}

void JoueurQt::Guette() {
  QTimer::singleShot(1, qApp, [this] {
    QWidget* ici = QApplication::activeModalWidget();
    const bool la = ici != nullptr && ici->objectName() == attendues_.front().nom && ici->isActiveWindow() &&
                    ici->windowHandle()->isExposed();
    if (!la) {
      if (SansGestionnaire() && ici != nullptr) ici->activateWindow();
      return Guette();
    }
    const auto acte = attendues_.front().acte;
    attendues_.pop_front();
    if (!attendues_.empty()) Guette();
    acte(*ici);
  });
}

// What keys go to, once a window that has just come up or come back has the focus.
QWidget* JoueurQt::Cible() {
  const auto ici = [] {
    QWidget* menu = QApplication::activePopupWidget();
    return menu != nullptr ? menu : QApplication::focusWidget();
  };
  // A window manager that is slow may miss a box that comes and goes at once, and give the focus to nobody: a
  // person would click on the window.
  constexpr int kHesite = 500;
  QElapsedTimer depuis;
  depuis.start();
  Attends(
      [&] {
        QWidget* devant = QApplication::activeModalWidget();
        if (ici() == nullptr && (SansGestionnaire() || depuis.hasExpired(kHesite))) {
          (devant != nullptr ? devant : &Fenetre())->activateWindow();
          depuis.restart();
        }
        return ici() != nullptr;
      },
      "something has the focus");
  return ici();
}

void JoueurQt::Touche(Qt::Key touche, Qt::KeyboardModifiers modificateurs) {
  QTest::keyClick(Cible(), touche, modificateurs);
}

void JoueurQt::Tape(const QString& texte) {
  QTest::keyClicks(Cible(), texte);
}

void JoueurQt::Colle(const QString& texte) {
  QApplication::clipboard()->setText(texte);
  Touche(Qt::Key_V, Qt::ControlModifier);
}

void JoueurQt::Menu(Qt::Key menu, Qt::Key article) {
  Touche(menu, Qt::AltModifier);
  Attends([] { return qobject_cast<QMenu*>(QApplication::activePopupWidget()) != nullptr; }, "a menu opens");
  Touche(article);
}

void JoueurQt::CliqueCase(int i) {
  QTest::mouseClick(Ecran().viewport(), Qt::LeftButton, {}, Ecran().RectangleCase(i).center());
}

void JoueurQt::NouvelleGrille(const QString& symboles) {
  Quand("saisie", [&](QWidget&) {
    Touche(Qt::Key_A, Qt::ControlModifier);
    Colle(symboles);
    Touche(Qt::Key_Return);
  });
  Menu(Qt::Key_J, Qt::Key_G);
}

std::string JoueurQt::Grille() {
  std::string grille;
  for (int i = 1; i <= LePlateau().Cases(); ++i) {
    const Texte& texte = LePlateau().TxtCase(i).Text;
    grille += texte.empty() ? "." : VersUtf8(texte);
  }
  return grille;
}

}  // namespace sudoku
