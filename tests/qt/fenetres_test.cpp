// A person plays: the windows of the game, with keys and mouse.

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <regex>

#include "joueur.h"
#include "qt/capture.h"
#include "qt/editeur_case.h"
#include "qt/joueur_qt.h"
#include "qt/mesure.h"
#include "qt/texte_qt.h"

namespace sudoku {
namespace {

// "TITLE: TEXT", if the text is taken for no markup.
QString DitPar(QWidget& boite) {
  const auto* texte = boite.findChild<QLabel*>("qt_msgbox_label");
  if (texte == nullptr) texte = boite.findChild<QLabel*>();
  EXPECT_EQ(texte->textFormat(), Qt::PlainText);
  return boite.windowTitle() + QStringLiteral(": ") + texte->text();
}

// Symbols 1234, six givens that leave one solution: 1234 3412 2143 4321.
const std::string kGrilleFacile("1234\r\n10 0 04030 010 020 0 030 030 0 0\r\n\0", 41);

TEST(Fenetres, UneGrilleSaisieEtJoueeJusquAuxScores) {
  JoueurQt j;
  j.Demarre();
  QApplication::clipboard()->setText(QStringLiteral("1"));
  j.Touche(Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(j.LePlateau().Cases(), 0) << "a grid can't be pasted where there is none";
  j.NouvelleGrille(QStringLiteral("1234"));
  EXPECT_FALSE(j.Ecran().Editeur().isVisible()) << "no box has the focus after a new grid";
  j.Touche(Qt::Key_Tab);
  j.Tape(QStringLiteral("1"));
  j.Touche(Qt::Key_Right);
  j.Quand("message", [&](QWidget& boite) {
    EXPECT_GE(boite.width(), 200) << "a short text leaves room for the title";
    EXPECT_EQ(DitPar(boite), QStringLiteral("Solver de Sudoku: Impossible"));
    j.Touche(Qt::Key_Escape);
  });
  j.Tape(QStringLiteral("1"));
  EXPECT_TRUE(j.ToutEstVenu());
  EXPECT_EQ(j.Grille(), "1...............") << "the refused text is gone";
  j.Menu(Qt::Key_J, Qt::Key_D);
  EXPECT_TRUE(j.LePlateau().TxtCase(1).Locked);
  j.Quand("saisie", [&](QWidget& boite) {
    EXPECT_EQ(DitPar(boite), QStringLiteral("Meilleur score !: Veuillez saisir votre nom"));
    j.Tape(QStringLiteral("Élise <b>"));
    j.Touche(Qt::Key_Return);
  });
  j.Quand("message", [&](QWidget& boite) {
    EXPECT_TRUE(DitPar(boite).startsWith(QStringLiteral("Meilleurs scores: 1 - Élise <b> - 00:00:0")));
    j.Touche(Qt::Key_Return);
  });
  const QString solution = QStringLiteral("1234341221434321");
  for (int i = 2; i <= 16; ++i) {
    j.Ecrit(i, solution.mid(i - 1, 1));
  }
  EXPECT_TRUE(j.ToutEstVenu());
  EXPECT_EQ(j.Grille(), solution.toStdString());
}

// Plays a little, saves under a name and leaves by the menu; comes back only if the program doesn't end.
void SauveEtQuitte(const std::string& fichier) {
  JoueurQt j;
  j.Demarre(fichier);
  j.Ecrit(2, QStringLiteral("2"));
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
  const std::string fichier = FichierDEssai("reprise");
  EcritOctets(fichier, kGrilleFacile);
  EXPECT_EXIT(SauveEtQuitte(fichier), testing::ExitedWithCode(0), "");
  JoueurQt j;
  j.Quand("FRMParties", [&](QWidget& boite) {
    auto* liste = boite.findChild<QListView*>("LstLoad");
    ASSERT_EQ(liste->model()->rowCount(), 2);
    const QModelIndex ligne = liste->model()->index(1, 0);
    EXPECT_EQ(ligne.data().toString(), QStringLiteral("Essai"));
    const QPoint essai = liste->visualRect(ligne).center();
    QTest::mouseClick(liste->viewport(), Qt::LeftButton, {}, essai);
    QTest::mouseDClick(liste->viewport(), Qt::LeftButton, {}, essai);
  });
  j.Demarre(fichier);
  EXPECT_TRUE(j.ToutEstVenu());
  EXPECT_EQ(j.Grille(), "12.43.1.2..3.3..");
  j.Quand("question", [&](QWidget&) { j.Touche(Qt::Key_O); });
  j.Menu(Qt::Key_J, Qt::Key_R);
  j.Ecrit(2, QStringLiteral("2"));
  j.Quand("FRMParties", [&](QWidget& boite) {
    j.Touche(Qt::Key_Down);
    const auto* champ = boite.findChild<QLineEdit*>("LstSave.champ");
    EXPECT_EQ(champ->text(), QStringLiteral("Essai"));
    j.Tape(QStringLiteral("Deux"));
    EXPECT_EQ(champ->text(), QStringLiteral("Deux")) << "typing replaces the choice";
    j.Touche(Qt::Key_Return);
  });
  j.Menu(Qt::Key_J, Qt::Key_S);
  EXPECT_TRUE(j.ToutEstVenu());
  EXPECT_TRUE(std::filesystem::remove(fichier));
}

// So many that a window which is slower than in proportion to them isn't there in time for this test.
TEST(Fenetres, UneBibliothequeTresLongueSOuvre) {
  constexpr int kParties = 500'000;
  const std::string fichier = FichierDEssai("longue");
  std::string octets = "5\r\n 0\r\n";
  for (int n = 1; n <= kParties; ++n) octets += "g-50\r\n";
  EcritOctets(fichier, octets + '\0');
  JoueurQt j;
  j.Quand("FRMParties", [&](QWidget& boite) {
    EXPECT_EQ(boite.findChild<QListView*>("LstLoad")->model()->rowCount(), kParties + 1);
    j.Touche(Qt::Key_Down);
    j.Touche(Qt::Key_Down);
    j.Touche(Qt::Key_Return);
  });
  j.Demarre(fichier);
  EXPECT_TRUE(j.ToutEstVenu());
  EXPECT_EQ(j.Grille(), "5");
  EXPECT_TRUE(std::filesystem::remove(fichier));
}

TEST(Fenetres, LeDialogueDeFichierSauveEtCharge) {
  const std::string fichier = FichierDEssai("dialogue");
  std::filesystem::remove(fichier);
  const QString sans = QString::fromStdString(fichier).chopped(4);
  JoueurQt j;
  j.Demarre();
  j.NouvelleGrille(QStringLiteral("1234"));
  j.Quand("fichier", [&](QWidget& boite) {
    EXPECT_EQ(boite.windowTitle(), QStringLiteral("Sauvegarde du jeu"));
    EXPECT_EQ(dynamic_cast<QFileDialog&>(boite).nameFilters(), QStringList{"Sudoku Files (*.sud)"});
    j.Tape(sans);
    j.Touche(Qt::Key_Return);
  });
  j.Menu(Qt::Key_J, Qt::Key_S);
  EXPECT_TRUE(std::filesystem::exists(fichier)) << "the program adds .sud";
  j.Quand("question", [&](QWidget&) { j.Touche(Qt::Key_O, Qt::AltModifier); });
  j.Quand("fichier", [&](QWidget& boite) {
    EXPECT_EQ(boite.windowTitle(), QStringLiteral("Chargement du jeu"));
    j.Touche(Qt::Key_Escape);
  });
  j.Menu(Qt::Key_J, Qt::Key_C);
  EXPECT_TRUE(j.ToutEstVenu());
  EXPECT_TRUE(std::filesystem::remove(fichier));
}

TEST(Fenetres, LApercuTientAussiLongtempsQueLeBouton) {
  const std::string fichier = FichierDEssai("assistant");
  EcritOctets(fichier, kGrilleFacile);
  JoueurQt j;
  j.Demarre(fichier);
  j.CliqueCase(3);
  j.Menu(Qt::Key_Question, Qt::Key_A);
  EXPECT_TRUE(j.Assistant().isVisible());
  EXPECT_TRUE(j.Fenetre().isActiveWindow()) << "it comes up without taking the focus";
  EXPECT_FALSE(j.Assistant().frameGeometry().intersects(j.Fenetre().frameGeometry()))
      << "and beside the board";
  auto* bouton = j.Assistant().findChild<QPushButton*>("BtViewSolution");
  const std::string avant = j.Grille();
  const std::string solution = "1234341221434321";
  QTest::mousePress(bouton, Qt::RightButton);
  EXPECT_EQ(j.Grille(), solution);
  QTest::mouseRelease(bouton, Qt::RightButton);
  EXPECT_EQ(j.Grille(), avant);

  bouton->setFocus();
  QTest::keyPress(bouton, Qt::Key_Space);
  QKeyEvent repetition(QEvent::KeyRelease, Qt::Key_Space, {}, QStringLiteral(" "), true);
  QApplication::sendEvent(bouton, &repetition);
  EXPECT_EQ(j.Grille(), solution) << "a held key repeats its release";
  QTest::keyRelease(bouton, Qt::Key_Space);
  EXPECT_EQ(j.Grille(), avant);
  QTest::keyPress(bouton, Qt::Key_Space);
  QTest::mouseClick(bouton, Qt::LeftButton);
  EXPECT_EQ(j.Grille(), avant) << "held with one and let go with the other";
  QTest::keyRelease(bouton, Qt::Key_Space);

  QTest::mousePress(bouton, Qt::LeftButton);
  EXPECT_EQ(j.Grille(), solution);
  QEvent quitte(QEvent::WindowDeactivate);
  QApplication::sendEvent(bouton, &quitte);
  EXPECT_EQ(j.Grille(), avant) << "a window that is active no more ends it";
  QTest::mousePress(bouton, Qt::LeftButton);
  j.Assistant().close();
  EXPECT_FALSE(j.Assistant().isVisible());
  EXPECT_EQ(j.Grille(), avant) << "hiding ends it";
  QTest::mousePress(bouton, Qt::LeftButton);  // and the game may end while it is held
  EXPECT_TRUE(std::filesystem::remove(fichier));
}

TEST(Fenetres, DesValeursTropNombreusesDefilentEtRestentLisibles) {
  JoueurQt j;
  j.Demarre();
  j.NouvelleGrille(QStringLiteral("1234"));
  j.Menu(Qt::Key_Question, Qt::Key_A);
  auto* champ = j.Assistant().findChild<QLineEdit*>("TxtListPoss");
  const QString valeurs = QStringLiteral("A-B-C-D-E-F-G-H-I-J-K-L-M-N-O-P-Q-R-S-T-U-V-W-X-Y");
  j.LeSysteme().Execute([&] { j.Aide().Trouve("TxtListPoss")->Text = DepuisQt(valeurs); });
  EXPECT_LE(champ->font().stretch(), 100);
  EXPECT_NE(champ->font().stretch(), 50);
  EXPECT_EQ(champ->toolTip(), valeurs);
  champ->setFocus();
  QTest::keyClick(champ, Qt::Key_End);
  EXPECT_EQ(champ->cursorPosition(), valeurs.size());
  EXPECT_TRUE(champ->focusPolicy() & Qt::TabFocus);
  EXPECT_EQ(j.Assistant().findChild<QLineEdit*>("TxtLightSur")->focusPolicy(), Qt::NoFocus)
      << "only a colour";
}

TEST(Fenetres, LaPoliceDuBureauAgranditTout) {
  QApplication::setFont(PoliceQt({}, 2));
  JoueurQt j;
  j.Demarre();
  j.NouvelleGrille(QStringLiteral("1234"));
  j.CliqueCase(1);
  j.Touche(Qt::Key_Space, Qt::ControlModifier);
  EXPECT_EQ(QApplication::activePopupWidget()->findChild<QToolButton*>()->size(), QSize(52, 52));
  EXPECT_EQ(QApplication::activePopupWidget()->findChild<QToolButton*>()->font().pixelSize(), 22);
  QApplication::activePopupWidget()->close();
  j.Menu(Qt::Key_Question, Qt::Key_A);
  QApplication::setFont(PoliceQt({}));
  EXPECT_EQ(j.Ecran().RectangleCase(1).size(), QSize(50, 50));
  EXPECT_EQ(j.Assistant().size(), QSize(578, 730));
  for (const QCheckBox* boite : j.Assistant().findChildren<QCheckBox*>()) {
    EXPECT_EQ(boite->font().pixelSize(), 22);
    EXPECT_LE(boite->sizeHint().width(), boite->width()) << boite->text().toStdString();
  }
}

TEST(Fenetres, SurPapierLeTitreEtLaGrilleEnNoirSurBlanc) {
  JoueurQt j;
  j.Demarre();
  j.NouvelleGrille(QStringLiteral("1234"));
  const std::string chemin = FichierDEssai("papier") + ".svg";
  ASSERT_TRUE(DessineDansFichier(j.Fenetre(), QString::fromStdString(chemin)));
  const std::string dessin = LitOctets(chemin);
  EXPECT_NE(dessin.find("(Nouvelle grille)"), std::string::npos);
  EXPECT_NE(dessin.find("width=\"170mm\""), std::string::npos) << "as wide as A4 allows";
  EXPECT_EQ(dessin.find(">Jeu<"), std::string::npos);
  const std::regex couleur("#[0-9a-f]{6}");
  for (std::sregex_iterator c(dessin.begin(), dessin.end(), couleur); c != std::sregex_iterator(); ++c) {
    EXPECT_TRUE(c->str() == "#000000" || c->str() == "#ffffff") << c->str();
  }
  EXPECT_TRUE(std::filesystem::remove(chemin));
}

TEST(Fenetres, LaBoiteAProposSeFermeParEchappement) {
  JoueurQt j;
  j.Demarre();
  j.Quand("FRMNRVAbout", [&](QWidget& boite) {
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

TEST(Fenetres, CeQuiChangeSeMontreAvantUneBoite) {
  JoueurQt j;
  j.Demarre();
  j.Quand("message", [&](QWidget&) {
    EXPECT_EQ(j.Fenetre().windowTitle(), QStringLiteral("vue"));
    j.Touche(Qt::Key_Return);
  });
  j.LeSysteme().Execute([&] {
    j.Principale().Caption = U"vue";
    j.Jeu().Message(U"boîte");
  });
}

// Comes back only if the program doesn't end.
void QuitteDessusUneBoite() {
  JoueurQt j;
  j.Demarre();
  j.NouvelleGrille(QStringLiteral("1234"));
  j.Quand("message", [&](QWidget&) { j.LeSysteme().DemandeFermeture(); });
  j.Quand("question", [&](QWidget&) { j.Touche(Qt::Key_O); });
  j.Jeu().Message(U"Retour arrière ! Procédure à vérifier");
}

TEST(Fenetres, UneDemandeDeFinPasseAuDessusDesBoites) {
  EXPECT_EXIT(QuitteDessusUneBoite(), testing::ExitedWithCode(0), "");
}

// A box opened by a tick's neighbours must not be run over by the next tick.
TEST(Fenetres, LesTicsAttendentPendantUneBoite) {
  JoueurQt j;
  int tics = 0;
  j.Tmr().Interval = 1;
  j.Tmr().Timer = [&] { ++tics; };
  j.Demarre();
  j.NouvelleGrille(QStringLiteral("1234"));
  j.Menu(Qt::Key_J, Qt::Key_D);
  Attends([&] { return tics > 2; }, "the clock ticks");
  j.Quand("question", [&](QWidget&) {
    EXPECT_TRUE(qobject_cast<QPushButton*>(QApplication::focusWidget())->isDefault());
    const int avant = tics;
    QTest::qWait(20);
    EXPECT_EQ(tics, avant);
    j.Touche(Qt::Key_Escape);
  });
  j.Menu(Qt::Key_J, Qt::Key_R);
  const int apres = tics;
  Attends([&] { return tics > apres; }, "the clock goes on");
  EXPECT_EQ(j.Jeu().VgEtat, kJeu) << "Escape is no";
  int arretee = 0;
  j.Quand("question", [&](QWidget&) {
    QTest::qWait(20);
    arretee = tics;
    j.Tmr().Interval = 86'400'000;
    j.Touche(Qt::Key_O, Qt::AltModifier);
  });
  j.Menu(Qt::Key_J, Qt::Key_R);
  EXPECT_EQ(tics, arretee) << "a tick that waited belongs to the clock that was started before";
  EXPECT_EQ(j.Fenetre().findChild<QTimer*>("Tmr")->timerType(), Qt::PreciseTimer)
      << "any other comes up to a twentieth too early";
}

}  // namespace
}  // namespace sudoku
