// The board: one edit field over the focused box, what makes typing easier, sizes, and what a screen reader
// is told.

#include <gtest/gtest.h>

#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QHelpEvent>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QToolButton>
#include <QToolTip>

#include "joueur.h"
#include "qt/editeur_case.h"
#include "qt/etiquette.h"
#include "qt/joueur_qt.h"
#include "qt/mesure.h"
#include "qt/texte_qt.h"

namespace sudoku {
namespace {

class UnPlateau : public testing::Test {
 protected:
  void Ouvre(const QString& symboles = QStringLiteral("1234")) {
    j.Demarre();
    j.NouvelleGrille(symboles);
    const auto change = j.LePlateau().Change;
    j.LePlateau().Change = [this, change](int i) {
      if (j.Jeu().VgEtat != kAffichage) changements.emplace_back(i, j.LePlateau().TxtCase(i).Text);
      change(i);
    };
  }
  EditeurCase& Editeur() { return j.Ecran().Editeur(); }
  void Compose(const char32_t* enCours, const char32_t* valide) {
    QInputMethodEvent evenement(VersQt(enCours), {});
    evenement.setCommitString(VersQt(valide));
    QApplication::sendEvent(&Editeur(), &evenement);
  }

  JoueurQt j;
  std::vector<std::pair<int, Texte>> changements;  // events of the user's typing
};
using Liste = std::vector<std::pair<int, Texte>>;

TEST_F(UnPlateau, UneFrappeSeMontreUneFois) {
  Ouvre();
  j.CliqueCase(1);
  Fenetre& fenetre = j.Principale();
  int touches = 0;
  fenetre.KeyDown = [&](int) { fenetre.Caption = U"vue " + Decimal(++touches); };
  QString pendant;
  j.LePlateau().Change = [&](int) { pendant = j.Fenetre().windowTitle(); };
  j.Tape(QStringLiteral("1"));
  EXPECT_EQ(pendant, QStringLiteral("Solver de Sudoku")) << "the key and its text are shown together";
  EXPECT_EQ(j.Fenetre().windowTitle(), QStringLiteral("vue 1"));
  j.Touche(Qt::Key_F, Qt::AltModifier);
  Attends([&] { return j.Fenetre().windowTitle() == QStringLiteral("vue 2"); }, "a key without a text");
}

TEST_F(UnPlateau, ChaqueFrappeEtChaqueCollageFaitUnChangement) {
  Ouvre(QStringLiteral("123456789"));
  j.Ecrit(1, QStringLiteral("5"));
  EXPECT_EQ(Editeur().selectedText(), QStringLiteral("5")) << "the first character is selected again";
  j.Touche(Qt::Key_Delete);
  j.CliqueCase(2);
  j.Colle(QStringLiteral("1\r\n\t2"));
  EXPECT_EQ(changements, (Liste{{1, U"5"}, {1, U""}, {2, U"12"}}));
  EXPECT_EQ(j.LePlateau().TxtCase(2).Text, U"12");
}

TEST_F(UnPlateau, UneCompositionNeRapporteQueSonTexteFinal) {
  Ouvre(QStringLiteral("aeêi"));
  j.CliqueCase(3);
  Compose(U"^", U"");
  EXPECT_TRUE(changements.empty());
  Compose(U"", U"ê");
  EXPECT_EQ(changements, (Liste{{3, U"ê"}}));
  Compose(U"^", U"");
  Compose(U"", U"");
  EXPECT_EQ(Editeur().text(), QStringLiteral("ê")) << "a composition given up leaves what was there";
  EXPECT_EQ(changements.size(), 1U);
}

TEST_F(UnPlateau, LaSelectionCompteDesCaracteres) {
  Ouvre(QStringLiteral("12\U0001D7D93"));
  j.CliqueCase(1);
  j.Colle(QStringLiteral("\U0001D7D9"));
  EXPECT_EQ(j.LePlateau().TxtCase(1).Text, U"\U0001D7D9");
  EXPECT_EQ(Editeur().selectedText(), QStringLiteral("\U0001D7D9"));
  EXPECT_EQ(changements.size(), 1U);
}

TEST_F(UnPlateau, TabulationFlechesEtCasesVerrouillees) {
  Ouvre();
  EXPECT_FALSE(Editeur().isVisible());
  j.Touche(Qt::Key_Right);
  EXPECT_EQ(j.LePlateau().Focus(), 0) << "no cell has had the focus";
  j.Touche(Qt::Key_Backtab);
  EXPECT_EQ(j.LePlateau().Focus(), 16);
  j.Touche(Qt::Key_Tab);
  EXPECT_EQ(j.LePlateau().Focus(), 1) << "in a circle, and nowhere else";
  j.Tape(QStringLiteral("1"));
  j.Menu(Qt::Key_J, Qt::Key_D);
  j.Touche(Qt::Key_Backtab);
  j.Touche(Qt::Key_Tab);
  EXPECT_EQ(j.LePlateau().Focus(), 2) << "a given is no stop";
  j.Touche(Qt::Key_Left);
  EXPECT_EQ(j.LePlateau().Focus(), 1) << "but the arrows go there";
  changements.clear();
  j.Tape(QStringLiteral("2"));
  j.Colle(QStringLiteral("3"));
  EXPECT_TRUE(changements.empty());
  j.Touche(Qt::Key_Percent);
  EXPECT_EQ(j.LePlateau().Focus(), 1) << "% is no arrow";
  j.Touche(Qt::Key_Down);
  EXPECT_EQ(j.LePlateau().Focus(), 5);
}

TEST_F(UnPlateau, UnClicACoteDesCasesLaisseLeClavierAuPlateau) {
  Ouvre();
  j.CliqueCase(3);
  const QRect case1 = j.Ecran().RectangleCase(1);
  QTest::mouseClick(j.Ecran().viewport(), Qt::LeftButton, {}, QPoint(case1.left() - 6, case1.center().y()));
  j.Tape(QStringLiteral("1"));
  EXPECT_EQ(changements, (Liste{{3, U"1"}})) << "beside the grid: the box that has the focus keeps it";
  const QPoint trait(case1.right() + 1, case1.center().y());
  ASSERT_EQ(j.Ecran().CaseSous(trait), 0);
  QTest::mouseClick(j.Ecran().viewport(), Qt::LeftButton, {}, trait);
  EXPECT_EQ(j.LePlateau().Focus(), 1) << "on a line: the nearest box";
}

TEST_F(UnPlateau, LeClavierRevenuRemplaceLeSymbole) {
  Ouvre();
  j.Ecrit(1, QStringLiteral("3"));
  j.Touche(Qt::Key_J, Qt::AltModifier);
  j.Touche(Qt::Key_Escape);
  j.Fenetre().findChild<QMenuBar*>()->setFocus();
  Editeur().setFocus();
  EXPECT_EQ(Editeur().selectedText(), QStringLiteral("3"));
  j.Touche(Qt::Key_Delete);
  EXPECT_EQ(changements, (Liste{{1, U"3"}, {1, U""}}));
}

TEST_F(UnPlateau, UneFrappeSansCaseVaALaPremiereLibre) {
  Ouvre();
  j.Touche(Qt::Key_Space);
  EXPECT_EQ(j.LePlateau().Focus(), 0) << "a blank that is no symbol types nothing";
  j.Tape(QStringLiteral("1"));
  EXPECT_EQ(changements, (Liste{{1, U"1"}}));
  j.Quand("question", [&](QWidget&) { j.Touche(Qt::Key_O); });
  j.NouvelleGrille(QStringLiteral("12'4"));
  changements.clear();
  j.Tape(QStringLiteral("&"));
  j.Ecrit(6, QStringLiteral("'"));
  EXPECT_EQ(changements, (Liste{{1, U"1"}, {6, U"'"}})) << "its digit, unless the character is a symbol";
}

TEST_F(UnPlateau, LesTouchesDeTousLesBureaux) {
  Ouvre();
  j.Ecrit(6, QStringLiteral("1"));
  const auto va = [&](Qt::Key touche, Qt::KeyboardModifiers avec, int i) {
    j.Touche(touche, avec);
    EXPECT_EQ(j.LePlateau().Focus(), i);
  };
  va(Qt::Key_End, Qt::NoModifier, 8);
  va(Qt::Key_Home, Qt::NoModifier, 5);
  va(Qt::Key_PageDown, Qt::NoModifier, 13);
  va(Qt::Key_PageUp, Qt::NoModifier, 1);
  va(Qt::Key_End, Qt::ControlModifier, 16);
  va(Qt::Key_Home, Qt::ControlModifier, 1);
  j.Touche(Qt::Key_Z, Qt::ControlModifier);
  j.Touche(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(j.Grille(), ".....1..........");
  j.Quand("message", [&](QWidget& boite) {
    EXPECT_GT(boite.findChild<QLabel*>("qt_msgbox_label")->width(), 300) << "long lines are whole";
    j.Touche(Qt::Key_Return);
  });
  j.Touche(Qt::Key_F1);
  j.Quand("fichier", [&](QWidget&) { j.Touche(Qt::Key_Escape); });
  j.Touche(Qt::Key_S, Qt::ControlModifier);
  j.Quand("question", [&](QWidget&) { j.Touche(Qt::Key_Escape); });
  j.Touche(Qt::Key_O, Qt::ControlModifier);
  EXPECT_TRUE(j.ToutEstVenu());
}

TEST_F(UnPlateau, UnCollageImpossibleDitPourquoi) {
  Ouvre();
  j.Colle(QStringLiteral("1..43.1.2..3.3.."));
  EXPECT_EQ(j.Grille(), "1..43.1.2..3.3..") << "a text that is a grid";
  j.Menu(Qt::Key_J, Qt::Key_D);
  j.CliqueCase(1);
  j.Colle(QStringLiteral("2"));
  EXPECT_EQ(QToolTip::text(), QStringLiteral("La case 1 est donnée et ne change plus"));
}

TEST_F(UnPlateau, LaCopieEcritUnCaractereParCase) {
  Ouvre();
  j.CliqueCase(3);
  j.Colle(QStringLiteral("23"));
  j.Touche(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("..2............."));
}

TEST_F(UnPlateau, LAnneauResteEntierQuandUneAutreCaseEstRepeinte) {
  Ouvre(QStringLiteral("1234"));
  j.CliqueCase(3);
  QTest::qWait(0);
  j.CliqueCase(1);
  QTest::qWait(0);
  const QWidget& vue = *j.Ecran().viewport();
  const QRect voisine = j.Ecran().RectangleCase(2);
  const QPoint bord = vue.mapTo(vue.window(), QPoint(voisine.left(), voisine.center().y()));
  const QImage ecran = vue.screen()->grabWindow(vue.window()->winId()).toImage();
  EXPECT_EQ(ecran.pixelColor(bord).name(), QStringLiteral("#e07000"));
}

TEST_F(UnPlateau, LaPaletteDonneTousLesSymboles) {
  Ouvre(QStringLiteral("♠♥♦♣"));
  j.CliqueCase(3);
  j.Touche(Qt::Key_Space, Qt::ControlModifier);
  QWidget* palette = QApplication::activePopupWidget();
  ASSERT_NE(palette, nullptr);
  QStringList textes;
  for (const QToolButton* bouton : palette->findChildren<QToolButton*>()) textes << bouton->text();
  EXPECT_EQ(textes.join(u' '), QStringLiteral("♠ ♥ ♦ ♣ Couper Copier Coller Effacer"));
  QTest::keyClick(palette, Qt::Key_Right);
  QTest::keyClick(palette, Qt::Key_Down);
  QTest::keyClick(palette, Qt::Key_Return);
  EXPECT_EQ(changements, (Liste{{3, U"♣"}}));
  const auto choisit = [&](const QList<Qt::Key>& touches) {
    j.Touche(Qt::Key_Space, Qt::ControlModifier);
    for (const Qt::Key touche : touches) j.Touche(touche);
  };
  choisit({Qt::Key_Down, Qt::Key_Return});  // from the symbol that stands there to Copier below it
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("♣"));
  choisit({Qt::Key_Down, Qt::Key_Right, Qt::Key_Right, Qt::Key_Return});
  EXPECT_EQ(changements.back(), std::pair(3, Texte())) << "Effacer";
  choisit({Qt::Key_Up, Qt::Key_Return});
  EXPECT_EQ(changements.back(), std::pair(3, Texte(U"♣"))) << "Coller, for what is empty can't be copied";
  changements.resize(1);
  j.Touche(Qt::Key_Space, Qt::ControlModifier);
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
  EXPECT_EQ(changements.size(), 1U);
  // With the mouse, on a box and on the editor over it.
  const QPoint ici = j.Ecran().RectangleCase(6).center();
  QTest::mouseClick(j.Ecran().viewport(), Qt::RightButton, {}, ici);
  for (QWidget* cible : {j.Ecran().viewport(), static_cast<QWidget*>(&Editeur())}) {
    const QPoint la = cible->mapFrom(j.Ecran().viewport(), ici);
    QContextMenuEvent clic(QContextMenuEvent::Mouse, la, cible->mapToGlobal(la));
    QApplication::sendEvent(cible, &clic);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    QTest::mouseClick(QApplication::activePopupWidget()->findChild<QToolButton*>(), Qt::LeftButton);
    EXPECT_EQ(changements.back(), std::pair(6, Texte(U"♠")));
    changements.clear();
  }
}

TEST_F(UnPlateau, UnFichierDeposeSeChargeApresLaQuestion) {
  const std::string fichier = FichierDEssai("depose");
  EcritOctets(fichier, std::string("1\r\n10\r\n\0", 8));
  Ouvre();
  QMimeData donnees;
  donnees.setUrls({QUrl::fromLocalFile(QString::fromStdString(fichier))});
  QDragEnterEvent entre(QPoint(10, 10), Qt::CopyAction, &donnees, Qt::LeftButton, {});
  QDropEvent depose(QPointF(10, 10), Qt::CopyAction, &donnees, Qt::LeftButton, {});
  j.Quand("question", [&](QWidget&) { j.Touche(Qt::Key_O); });
  QApplication::sendEvent(&j.Fenetre(), &entre);
  EXPECT_TRUE(entre.isAccepted());
  QApplication::sendEvent(&j.Fenetre(), &depose);
  Attends([&] { return j.Grille() == "1"; }, "the grid of the file");
  EXPECT_TRUE(std::filesystem::remove(fichier));
}

TEST_F(UnPlateau, ZoomDe25A400EtRetour) {
  Ouvre(QStringLiteral("123456789"));
  const QSize normale(274, 332);  // 4115 by 4975 twips
  EXPECT_EQ(j.Fenetre().size(), normale);
  EXPECT_EQ(j.Ecran().RectangleCase(1).size(), QSize(25, 25));
  j.CliqueCase(81);
  for (const auto& [touche, avec] : {std::pair{Qt::Key_Plus, Qt::KeypadModifier},
                                     {Qt::Key_Equal, Qt::NoModifier},
                                     {Qt::Key_Plus, Qt::ShiftModifier}}) {
    j.Touche(touche, Qt::ControlModifier | avec);
  }
  EXPECT_EQ(j.Ecran().RectangleCase(1).width(), 37) << "150 %, of which a line of 2";
  EXPECT_GT(j.Fenetre().width(), normale.width());
  for (int n = 0; n < 20; ++n) j.Touche(Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_EQ(j.Ecran().RectangleCase(1).width(), 100) << "400 %, and no more";
  EXPECT_LE(j.Fenetre().height(), j.Fenetre().screen()->availableSize().height());
  EXPECT_TRUE(j.Ecran().viewport()->rect().contains(j.Ecran().RectangleCase(81)))
      << "the focused box is in view";
  for (int n = 0; n < 40; ++n) j.Touche(Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_LE(j.Ecran().RectangleCase(1).width(), 7) << "25 %";
  j.Touche(Qt::Key_0, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(j.Fenetre().size(), normale);
  EXPECT_FALSE(j.Ecran().verticalScrollBar()->isVisible() || j.Ecran().horizontalScrollBar()->isVisible());
}

TEST_F(UnPlateau, UnPlateauPlusGrandQueLEcranDefile) {
  QString symboles;
  for (int n = 0; n < 169; ++n) symboles += QChar(0x4E00 + n);
  Ouvre(symboles);
  EXPECT_EQ(j.LePlateau().Cases(), 28561);
  const QRect ecran = j.Fenetre().screen()->availableGeometry();
  EXPECT_LE(j.Fenetre().width(), ecran.width());
  EXPECT_LE(j.Fenetre().height(), ecran.height());
  j.Touche(Qt::Key_Backtab);
  EXPECT_EQ(j.LePlateau().Focus(), 28561);
  EXPECT_TRUE(j.Ecran().viewport()->rect().contains(j.Ecran().RectangleCase(28561)));
  EXPECT_TRUE(j.Ecran().viewport()->rect().contains(Editeur().geometry()));
  const auto* titre = static_cast<Etiquette*>(j.Fenetre().findChild<QWidget*>("LblInfos"));
  EXPECT_EQ(titre->mapTo(&j.Fenetre(), titre->rect().center()).x(), j.Fenetre().rect().center().x());
  // Back to a board that fits: nothing of the large one is left.
  j.Quand("question", [&](QWidget&) { j.Touche(Qt::Key_O); });
  j.NouvelleGrille(QStringLiteral("1234"));
  Attends([&] { return j.LePlateau().Cases() == 16; }, "the small grid");
  EXPECT_EQ(j.Fenetre().size(), QSize(144, 202));
}

TEST_F(UnPlateau, ChaqueMarqueADesFormesASoi) {
  Ouvre();
  std::vector<QImage> images;
  for (const Marque marque :
       {Marque::kAucune, Marque::kCertaine, Marque::kPossible, Marque::kHypothetique, Marque::kErronee}) {
    j.LeSysteme().Execute([&] { j.LePlateau().Signe(6, marque); });
    images.push_back(j.Ecran().viewport()->grab(j.Ecran().RectangleCase(6)).toImage());
    for (std::size_t n = 0; n + 1 < images.size(); ++n) EXPECT_NE(images[n], images.back()) << n;
  }
}

TEST_F(UnPlateau, LaBulleDitLeNumeroDeLaCase) {
  Ouvre();
  j.CliqueCase(1);
  for (const int i : {15, 1}) {  // the editor lies over the second one
    const QPoint ici = j.Ecran().RectangleCase(i).center();
    QWidget* dessous = j.Ecran().viewport()->childAt(ici);
    QWidget* cible = dessous != nullptr ? dessous : j.Ecran().viewport();
    QHelpEvent survol(QEvent::ToolTip, cible->mapFrom(j.Ecran().viewport(), ici), QCursor::pos());
    QApplication::sendEvent(cible, &survol);
    EXPECT_EQ(QToolTip::text(), i == 1 ? QStringLiteral("case 1, ligne 1, colonne 1, carré 1")
                                       : QStringLiteral("case 15, ligne 4, colonne 3, carré 4"));
  }
}

// Announcements reach nobody before a reader has switched them on, and only the toolkit's own interface to
// the desktop can do that.
class LecteurDEcran {
 public:
  LecteurDEcran() {
    Allume(true);
    avant_ = QAccessible::installUpdateHandler(Note);
  }
  ~LecteurDEcran() {
    QAccessible::installUpdateHandler(avant_);
    Allume(false);
  }
  LecteurDEcran(const LecteurDEcran&) = delete;
  LecteurDEcran& operator=(const LecteurDEcran&) = delete;

  // What has been announced since the last question: the names of what got the focus, or of whatever changed.
  static QStringList Entendu(bool focus) {
    QStringList noms;
    for (const auto& [type, nom] : annonces) {
      if ((type == QAccessible::Focus) == focus) noms << nom;
    }
    return noms;
  }
  static void Oublie() { annonces.clear(); }

 private:
  static void Allume(bool oui) {
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(oui);
  }
  static void Note(QAccessibleEvent* evenement) {
    QAccessibleInterface* interface = evenement->accessibleInterface();
    if (interface != nullptr) annonces.emplace_back(evenement->type(), interface->text(QAccessible::Name));
  }

  static inline std::vector<std::pair<QAccessible::Event, QString>> annonces;
  QAccessible::UpdateHandler avant_;
};

TEST_F(UnPlateau, UnLecteurDEcranEntendChaqueCase) {
  Ouvre();
  j.Ecrit(1, QStringLiteral("3"));
  const LecteurDEcran lecteur;
  j.Touche(Qt::Key_Down);
  j.Touche(Qt::Key_Up);
  EXPECT_EQ(lecteur.Entendu(true).join(u'\n').toStdString(),
            "vide, case 5, ligne 2, colonne 1, carré 1\n3, donnée, case 1, ligne 1, colonne 1, carré 1");
  // The clock changes every second, and says nothing.
  j.Menu(Qt::Key_J, Qt::Key_D);
  LecteurDEcran::Oublie();
  j.LeSysteme().Execute([&] { j.Tmr().Timer(); });
  EXPECT_EQ(lecteur.Entendu(false).join(u'\n').toStdString(), "");
  const auto* horloge = QAccessible::queryAccessibleInterface(j.Fenetre().findChild<QWidget*>("LblChrono"));
  EXPECT_EQ(horloge->text(QAccessible::Name), QStringLiteral("00:00:00"));

  const QAccessibleInterface* plateau = QAccessible::queryAccessibleInterface(&j.Ecran());
  EXPECT_EQ(plateau->text(QAccessible::Name), QStringLiteral("Plateau"));
  EXPECT_EQ(plateau->parent()->parent()->role(), QAccessible::Window);
  EXPECT_EQ(plateau->childCount(), 17) << "the editor stands behind the boxes";
  EXPECT_EQ(plateau->child(15)->text(QAccessible::Name),
            QStringLiteral("vide, case 16, ligne 4, colonne 4, carré 4"));
  EXPECT_TRUE(plateau->child(0)->state().readOnly);
  EXPECT_EQ(plateau->child(0)->textInterface()->text(0, 1), QStringLiteral("3"));
  auto* editeur = QAccessible::queryAccessibleInterface(&Editeur());
  EXPECT_EQ(editeur->parent(), plateau);
  EXPECT_EQ(plateau->indexOfChild(editeur), 16);
  EXPECT_EQ(editeur->text(QAccessible::Name), plateau->child(0)->text(QAccessible::Name));
}

// What the assistant shows of an entry is said when it comes to be shown, and not before.
TEST_F(UnPlateau, UnLecteurDEcranEntendCeQueMontreLAssistant) {
  Ouvre();
  j.Ecrit(1, QStringLiteral("3"));
  j.Menu(Qt::Key_J, Qt::Key_D);
  j.Menu(Qt::Key_Question, Qt::Key_A);
  const LecteurDEcran lecteur;
  j.CliqueCase(2);
  LecteurDEcran::Oublie();
  j.Tape(QStringLiteral("3"));
  const QString place = QStringLiteral(", case 2, ligne 1, colonne 2, carré 1");
  EXPECT_TRUE(lecteur.Entendu(false).contains(QStringLiteral("3") + place));
  LecteurDEcran::Oublie();
  auto& erronees = *j.Aide().Trouve("ChkForeRed");
  j.LeSysteme().Execute([&] { erronees.Clique(); });
  EXPECT_TRUE(lecteur.Entendu(false).contains(QStringLiteral("3, saisie erronée") + place));

  const auto* reponse = QAccessible::queryAccessibleInterface(j.Assistant().findChild<QLineEdit*>("TxtRep"));
  EXPECT_EQ(reponse->text(QAccessible::Name), QStringLiteral("Réponse :"));
  EXPECT_TRUE(reponse->state().focusable && reponse->state().readOnly && !reponse->state().editable);
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&j.Assistant())->role(), QAccessible::Dialog);
}

}  // namespace
}  // namespace sudoku
