// A person plays: the windows of the game, with keys and mouse.

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include "qt/editeur_case.h"
#include "qt/joueur_qt.h"
#include "qt/mesure.h"

namespace sudoku {
namespace {

QString TexteDe(QWidget& boite) {
  return boite.findChild<QLabel*>()->text();
}

// Tests on two platforms may run at once.
std::string Fichier(const char* nom) {
  return testing::TempDir() + nom + "-" + QGuiApplication::platformName().toStdString() + ".sud";
}

void EcritFichier(const std::string& chemin, const std::string& octets) {
  QFile fichier(QString::fromStdString(chemin));
  ASSERT_TRUE(fichier.open(QIODevice::WriteOnly));
  fichier.write(QByteArray::fromStdString(octets));
}

// Symbols 1234, six givens that leave one solution: 1234 3412 2143 4321.
std::string GrilleFacile(const std::string& suite = {}) {
  std::string ligne;
  for (const char c : std::string("1..43.1.2..3.3..")) ligne += std::string(1, c == '.' ? ' ' : c) + "0";
  return "1234\r\n" + ligne + "\r\n" + suite + std::string(1, '\0');
}

TEST(Fenetres, UneGrilleSaisieEtJoueeJusquAuxScores) {
  JoueurQt j;
  j.Demarre();
  j.NouvelleGrille(QStringLiteral("1234"));
  EXPECT_EQ(j.Fenetre().size(), QSize(144, 202)) << "2165 by 3025 twips";
  EXPECT_FALSE(j.Ecran().Editeur().isVisible()) << "no box has the focus after a new grid";
  j.Touche(Qt::Key_Tab);
  j.Tape(QStringLiteral("1"));
  j.Touche(Qt::Key_Right);
  j.Quand("message", [&](QWidget& boite) {
    EXPECT_EQ(TexteDe(boite), QStringLiteral("Impossible"));
    j.Touche(Qt::Key_Escape);
  });
  j.Tape(QStringLiteral("1"));
  EXPECT_TRUE(j.ToutEstVenu());
  EXPECT_EQ(j.Grille(), "1...............") << "the refused text is gone";
  for (const auto& [i, symbole] : {std::pair{4, '4'}, {5, '3'}, {7, '1'}, {9, '2'}, {12, '3'}, {14, '3'}}) {
    j.CliqueCase(i);
    j.Tape(QString(QLatin1Char(symbole)));
  }
  j.Menu(Qt::Key_J, Qt::Key_D);
  EXPECT_EQ(j.Grille(), "1..43.1.2..3.3..");
  EXPECT_TRUE(j.LePlateau().TxtCase(4).Locked);
  j.Quand("saisie", [&](QWidget&) {
    j.Tape(QStringLiteral("Élise"));
    j.Touche(Qt::Key_Return);
  });
  j.Quand("message", [&](QWidget& boite) {
    EXPECT_EQ(boite.windowTitle(), QStringLiteral("Meilleurs scores"));
    EXPECT_TRUE(TexteDe(boite).startsWith(QStringLiteral("1 - Élise - 00:00:0")))
        << TexteDe(boite).toStdString();
    j.Touche(Qt::Key_Return);
  });
  const std::string solution = "1234341221434321";
  for (int i = 1; i <= 16; ++i) {
    if (j.LePlateau().TxtCase(i).Locked) continue;
    j.CliqueCase(i);
    j.Tape(QString(QLatin1Char(solution[static_cast<std::size_t>(i - 1)])));
  }
  EXPECT_TRUE(j.ToutEstVenu());
  EXPECT_EQ(j.Grille(), solution);
  EXPECT_TRUE(j.Fenetre().findChild<QAction*>("MnuScores")->isEnabled());
}

// Plays a little, saves under a name and leaves by the menu; comes back only if the program doesn't end.
void SauveEtQuitte(const std::string& fichier) {
  JoueurQt j;
  j.Demarre(fichier);
  j.CliqueCase(2);
  j.Tape(QStringLiteral("2"));
  j.Quand("FRMParties", [&](QWidget& boite) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    boite.close();
    EXPECT_TRUE(boite.isVisible()) << "no way out but OK";
    j.Tape(QStringLiteral("Essai"));
    j.Touche(Qt::Key_Return);
  });
  j.Menu(Qt::Key_J, Qt::Key_S);
  j.Quand("question", [&](QWidget&) { j.Touche(Qt::Key_N, Qt::AltModifier); });
  j.Menu(Qt::Key_J, Qt::Key_Q);
  j.Quand("question", [&](QWidget&) { j.Touche(Qt::Key_O); });
  j.Fenetre().close();
}

TEST(Fenetres, SauveQuitteEtRouvreParLaLigneDeCommande) {
  const std::string fichier = Fichier("reprise");
  EcritFichier(fichier, GrilleFacile());
  EXPECT_EXIT(SauveEtQuitte(fichier), testing::ExitedWithCode(0), "");
  JoueurQt j;
  j.Quand("FRMParties", [&](QWidget& boite) {
    auto* liste = boite.findChild<QListWidget*>("LstLoad");
    ASSERT_EQ(liste->count(), 2);
    EXPECT_EQ(liste->item(1)->text(), QStringLiteral("Essai"));
    const QPoint essai = liste->visualItemRect(liste->item(1)).center();
    QTest::mouseClick(liste->viewport(), Qt::LeftButton, {}, essai);
    QTest::mouseDClick(liste->viewport(), Qt::LeftButton, {}, essai);
  });
  j.Demarre(fichier);
  EXPECT_TRUE(j.ToutEstVenu());
  EXPECT_EQ(j.Grille(), "12.43.1.2..3.3..");
  EXPECT_TRUE(QFile::remove(QString::fromStdString(fichier)));
}

TEST(Fenetres, UnFichierAbsentEstRapporteEtLaFenetreSert) {
  JoueurQt j;
  j.Quand("message", [&](QWidget& boite) {
    EXPECT_EQ(TexteDe(boite), QStringLiteral("FRMSudoku.JeuLoad : 53 - Fichier introuvable"));
    j.Touche(Qt::Key_Return);
  });
  j.Demarre("/nulle/part.sud");
  EXPECT_TRUE(j.ToutEstVenu());
  j.NouvelleGrille(QStringLiteral("1234"));
  EXPECT_EQ(j.LePlateau().Cases(), 16);
}

TEST(Fenetres, LeDialogueDeFichierSauveEtCharge) {
  const std::string fichier = Fichier("dialogue");
  QFile::remove(QString::fromStdString(fichier));
  const QString sans = QString::fromStdString(fichier).chopped(4);
  JoueurQt j;
  j.Demarre();
  j.NouvelleGrille(QStringLiteral("1234"));
  j.Quand("fichier", [&](QWidget& boite) {
    EXPECT_EQ(boite.windowTitle(), QStringLiteral("Sauvegarde du jeu"));
    j.Tape(sans);
    j.Touche(Qt::Key_Return);
  });
  j.Menu(Qt::Key_J, Qt::Key_S);
  EXPECT_TRUE(QFile::exists(QString::fromStdString(fichier))) << "the program adds .sud";
  j.Quand("question", [&](QWidget&) { j.Touche(Qt::Key_O, Qt::AltModifier); });
  j.Quand("fichier", [&](QWidget& boite) {
    EXPECT_EQ(boite.windowTitle(), QStringLiteral("Chargement du jeu"));
    j.Touche(Qt::Key_Escape);
  });
  j.Menu(Qt::Key_J, Qt::Key_C);
  EXPECT_TRUE(j.ToutEstVenu());
  EXPECT_TRUE(QFile::remove(QString::fromStdString(fichier)));
}

class AssistantOuvert : public testing::Test {
 protected:
  void SetUp() override {
    EcritFichier(fichier_, GrilleFacile());
    j.Demarre(fichier_);
    j.CliqueCase(3);
    j.Menu(Qt::Key_Question, Qt::Key_A);
    EXPECT_TRUE(j.Assistant().isVisible());
    EXPECT_TRUE(j.Fenetre().isActiveWindow()) << "it comes up without taking the focus";
  }
  void TearDown() override { QFile::remove(QString::fromStdString(fichier_)); }

  void Coche(const char* nom) {
    auto* boite = j.Assistant().findChild<QCheckBox*>(nom);
    QTest::mouseClick(boite, Qt::LeftButton, {}, QPoint(8, boite->height() / 2));
    EXPECT_TRUE(boite->isChecked()) << nom;
  }
  QString Champ(const char* nom) { return j.Assistant().findChild<QLineEdit*>(nom)->text(); }

  std::string fichier_ = Fichier("assistant");
  JoueurQt j;
};

TEST_F(AssistantOuvert, LesMarquesEtLeSurlignageSuiventLeFocus) {
  EXPECT_EQ(j.Fond(3), CouleurQt(kNoir)) << "the cell under study is highlighted";
  EXPECT_EQ(j.Fond(2), CouleurQt(kBlanc));
  for (const char* nom :
       {"ChkLightSur", "ChkLightPoss", "ChkForeBlue", "ChkForeRed", "ChkListPoss", "ChkRep", "ChkTips"}) {
    Coche(nom);
  }
  EXPECT_EQ(j.Fond(2), CouleurQt(kVert));
  EXPECT_EQ(Champ("TxtListPoss"), QStringLiteral("2-3"));
  j.CliqueCase(2);
  EXPECT_EQ(j.Fond(3), CouleurQt(kBlanc)) << "the earlier cell has its own colours back";
  EXPECT_EQ(j.Fond(2), CouleurQt(kNoir));
  EXPECT_EQ(Champ("TxtRep"), QStringLiteral("2"));
  j.Tape(QStringLiteral("3"));
  EXPECT_EQ(j.Fond(2), CouleurQt(kRouge)) << "a wrong entry, its colours exchanged";
}

TEST_F(AssistantOuvert, LApercuTientAussiLongtempsQueLeBouton) {
  auto* bouton = j.Assistant().findChild<QPushButton*>("BtViewSolution");
  const std::string avant = j.Grille();
  const std::string solution = "1234341221434321";
  QTest::mousePress(bouton, Qt::RightButton);
  EXPECT_EQ(j.Grille(), solution);
  QTest::mouseRelease(bouton, Qt::RightButton);
  EXPECT_EQ(j.Grille(), avant);

  bouton->setFocus();
  QTest::keyPress(bouton, Qt::Key_Space);
  EXPECT_EQ(j.Grille(), solution);
  QKeyEvent repetition(QEvent::KeyRelease, Qt::Key_Space, {}, QStringLiteral(" "), true);
  QApplication::sendEvent(bouton, &repetition);
  EXPECT_EQ(j.Grille(), solution) << "a held key repeats its release";
  QTest::keyRelease(bouton, Qt::Key_Space);
  EXPECT_EQ(j.Grille(), avant);

  QTest::mousePress(bouton, Qt::LeftButton);
  EXPECT_EQ(j.Grille(), solution);
  j.Assistant().close();
  EXPECT_FALSE(j.Assistant().isVisible());
  EXPECT_EQ(j.Grille(), avant) << "hiding ends it";
  QTest::mouseRelease(bouton, Qt::LeftButton);
  EXPECT_EQ(j.Grille(), avant);
}

TEST_F(AssistantOuvert, UneFenetreQuiNEstPlusActiveFinitLApercu) {
  auto* bouton = j.Assistant().findChild<QPushButton*>("BtViewSolution");
  QTest::mousePress(bouton, Qt::LeftButton);
  QEvent quitte(QEvent::WindowDeactivate);
  QApplication::sendEvent(bouton, &quitte);
  EXPECT_EQ(j.Grille(), "1..43.1.2..3.3..");
  QTest::mousePress(bouton, Qt::LeftButton);  // and the game may end while it is held
}

TEST(Fenetres, LaBibliothequeSupprimeApresQuestion) {
  const std::string fichier = Fichier("bibliotheque");
  const std::string etat = "1021 04030 010 020 0 030 030 0 0";
  EcritFichier(fichier, GrilleFacile("Un-" + etat + "\r\nDeux & <b>-" + etat + "\r\n"));
  JoueurQt j;
  j.Quand("FRMParties", [&](QWidget& boite) {
    auto* liste = boite.findChild<QListWidget*>("LstLoad");
    QTest::mouseClick(liste->viewport(), Qt::LeftButton, {}, liste->visualItemRect(liste->item(2)).center());
    QTest::mouseClick(boite.findChild<QPushButton*>("BtDel"), Qt::LeftButton);
    EXPECT_EQ(liste->count(), 2);
    QTest::mouseClick(boite.findChild<QPushButton*>("BtOK"), Qt::LeftButton);
  });
  j.Quand("question", [&](QWidget& boite) {
    EXPECT_EQ(TexteDe(boite), QStringLiteral("Etes-vous sûr de vouloir supprimer la partie Deux & <b> ?"));
    j.Touche(Qt::Key_O);
  });
  j.Demarre(fichier);
  EXPECT_TRUE(j.ToutEstVenu());
  EXPECT_EQ(j.Jeu().Jeu().VgParties.size(), 2U);
  EXPECT_TRUE(QFile::remove(QString::fromStdString(fichier)));
}

TEST(Fenetres, LaBoiteAProposSeFermeParEchappement) {
  JoueurQt j;
  j.Demarre();
  j.Quand("FRMNRVAbout", [&](QWidget& boite) {
    EXPECT_EQ(boite.windowTitle(), QStringLiteral("À propos de Sudoku"));
    EXPECT_EQ(boite.size(), QSize(382, 255));
    EXPECT_EQ(QApplication::focusWidget()->objectName(), QStringLiteral("BtOK"));
    EXPECT_FALSE(boite.findChild<QLabel*>("PicIco")->pixmap().isNull());
    QTest::mouseClick(boite.findChild<QPushButton*>("BtSysInfo"), Qt::LeftButton);
    j.Touche(Qt::Key_Escape);
  });
  j.Quand("message", [&](QWidget&) { j.Touche(Qt::Key_Return); });
  j.Menu(Qt::Key_Question, Qt::Key_P);
  EXPECT_TRUE(j.ToutEstVenu());
}

TEST(Fenetres, EchappementDansUneQuestionEstNon) {
  JoueurQt j;
  j.Demarre();
  j.NouvelleGrille(QStringLiteral("1234"));
  j.Quand("question", [&](QWidget& boite) {
    EXPECT_TRUE(qobject_cast<QPushButton*>(QApplication::focusWidget())->isDefault());
    EXPECT_EQ(TexteDe(boite), QStringLiteral("Etes-vous certain de vouloir quitter le jeu ?"));
    j.Touche(Qt::Key_Escape);
  });
  j.Fenetre().close();
  EXPECT_TRUE(j.ToutEstVenu());
  EXPECT_TRUE(j.Fenetre().isVisible());
}

// A box opened by a tick's neighbours must not be run over by the next tick.
TEST(Fenetres, LesTicsAttendentPendantUneBoite) {
  JoueurQt j;
  int tics = 0;
  j.Jeu().Tmr().Interval = 1;
  j.Jeu().Tmr().Timer = [&] { ++tics; };
  j.Demarre();
  j.NouvelleGrille(QStringLiteral("1234"));
  j.Menu(Qt::Key_J, Qt::Key_D);
  Attends([&] { return tics > 2; }, "the clock ticks");
  j.Quand("question", [&](QWidget&) {
    const int avant = tics;
    QTest::qWait(20);
    EXPECT_EQ(tics, avant);
    j.Touche(Qt::Key_Escape);
  });
  j.Menu(Qt::Key_J, Qt::Key_R);
  const int apres = tics;
  Attends([&] { return tics > apres; }, "the clock goes on");
}

}  // namespace
}  // namespace sudoku
