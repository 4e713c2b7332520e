#include "qt/scene_qt.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolTip>
#include <QWindow>
#include <cstdlib>
#include <ostream>
#include <utility>

#include "qt/editeur_case.h"
#include "qt/fenetre_qt.h"
#include "qt/fidelite.h"
#include "qt/plateau_qt.h"
#include "qt/texte_qt.h"

namespace sudoku {
namespace {

void Remplit(QWidget* champ, TexteVue texte) {
  champ->setFocus();
  QApplication::clipboard()->setText(VersQt(texte));
  QTest::keyClick(champ, Qt::Key_A, Qt::ControlModifier);
  if (texte.empty()) {
    QTest::keyClick(champ, Qt::Key_Delete);
  } else {
    QTest::keyClick(champ, Qt::Key_V, Qt::ControlModifier);
  }
}

void CliqueBouton(QWidget* boite, const QString& texte) {
  for (QPushButton* bouton : boite->findChildren<QPushButton*>()) {
    if (bouton->text().remove(u'&') == texte) return QTest::mouseClick(bouton, Qt::LeftButton);
  }
}

}  // namespace

SceneQt::SceneQt(SystemeSansEcran& papier, std::ostream& sortie) : Scene(papier), sortie_(sortie) {
  papier_.AttendPar([this](Boite& boite) { Attend(boite); });
}

// ---- the session goes on by events, inside whatever loop is innermost

void SceneQt::Joue(const std::function<bool()>& avance) {
  avance_ = avance;
  Planifie();
  QApplication::exec();
}

void SceneQt::Planifie() {
  QTimer::singleShot(0, qApp, [this] { Pas(); });
}

void SceneQt::Pas() {
  // A box that the window manager hasn't put on the screen yet, or that waits for its window to be there, has
  // no size to click on.
  const QWidget* modale = QApplication::activeModalWidget();
  const bool vue = modale != nullptr && modale->windowHandle()->isExposed();
  if (!vue && (modale != nullptr || papier_.Dessus() != nullptr)) return Planifie();
  const Boite* boite = papier_.Dessus();
  if (vue && boite != nullptr && boite->fenetre == nullptr && boite->genre != GenreBoite::kFichier) {
    const auto* texte = modale->findChild<QLabel*>("qt_msgbox_label");
    if (texte == nullptr) texte = modale->findChild<QLabel*>();
    const bool titre = titre_.empty() || modale->windowTitle() == VersQt(titre_);
    const bool tel = texte->textFormat() == Qt::PlainText && texte->text() == VersQt(texte_);
    if (!titre || !tel) sortie_ << "! à l'écran : boîte\n";
  }
  const bool suite = avance_();
  if (!suite) {
    if (papier_.Dessus() == nullptr) return QApplication::exit();
    return Termine(*papier_.Dessus());
  }
  Compare();
  if (papier_.Dessus() != boite) return Planifie();
  if (boite != nullptr && boite->close) return Repond(*boite);
  if (boite == nullptr || boite->fenetre == nullptr || !boite->fenetre->fermee) Planifie();
}

void SceneQt::Attend(Boite& boite) {
  const auto montre = std::exchange(montre_, {});
  Planifie();
  montre(boite);
}

// The answer that the script has given, on the screen.
void SceneQt::Repond(const Boite& boite) {
  QWidget* ecran = QApplication::activeModalWidget();
  const bool annule = boite.texte.empty();
  if (boite.genre == GenreBoite::kQuestion) {
    CliqueBouton(ecran, boite.oui ? QStringLiteral("Oui") : QStringLiteral("Non"));
  } else if (boite.genre == GenreBoite::kFichier) {
    QTest::keyClick(ecran, Qt::Key_Escape);  // paths that no dialog returns are answers too
  } else {
    if (boite.genre == GenreBoite::kSaisie && !annule) Remplit(ecran->findChild<QLineEdit*>(), boite.texte);
    const bool bouton = boite.genre == GenreBoite::kMessage || !annule;
    CliqueBouton(ecran, bouton ? QStringLiteral("OK") : QStringLiteral("Annuler"));
  }
}

void SceneQt::Termine(const Boite& boite) {
  papier_.EcritFinDans(boite);
  if (boite.fenetre != nullptr) {
    Execute([&] { boite.fenetre->Ferme(); });
  } else {
    QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
  }
}

void SceneQt::Compare() {
  for (Fenetre* fenetre : papier_.Fenetres()) {
    FenetreQt* ecran = FenetreDe(*fenetre);
    if (ecran == nullptr && !fenetre->Visible) continue;
    const std::string difference = ecran != nullptr ? Difference(*ecran, *fenetre) : "absente";
    if (!difference.empty()) sortie_ << "! à l'écran : " << difference << '\n';
  }
  Fenetre* modale = papier_.FenetreModale();
  if (modale == nullptr || modale->fermee) return;
  const std::string difference = Difference(*FenetreDe(*modale), *modale);
  if (!difference.empty()) sortie_ << "! à l'écran : " << difference << '\n';
}

// ---- what the user does

QWidget* SceneQt::Trouve(const Fenetre& fenetre, const std::string& nom) {
  return FenetreDe(fenetre)->findChild<QWidget*>(QString::fromStdString(nom));
}

// Into the box that has the focus as a person does it; into another one at once, for the session moves no
// focus by it.
void SceneQt::Saisit(Fenetre& fenetre, int Index, TexteVue texte) {
  const CaseTexte& boite = fenetre.plateau.TxtCase(Index);
  if (Index != fenetre.plateau.Focus() || (texte.empty() && boite.Text.empty())) {
    return Execute([&] { fenetre.plateau.Saisit(Index, texte); });
  }
  Remplit(&FenetreDe(fenetre)->LePlateau()->Editeur(), texte);
}

void SceneQt::Focus(Fenetre& fenetre, int Index) {
  PlateauQt& plateau = *FenetreDe(fenetre)->LePlateau();
  const QRect place = plateau.RectangleCase(Index);
  if (!plateau.viewport()->rect().contains(place)) return Execute([&] { fenetre.plateau.SetFocus(Index); });
  if (Index == fenetre.plateau.Focus()) {
    QTest::mouseClick(&plateau.Editeur(), Qt::LeftButton);
  } else {
    QTest::mouseClick(plateau.viewport(), Qt::LeftButton, {}, place.center());
  }
}

// What a tool tip says then is the answer.
Texte SceneQt::Raccourci(Fenetre& fenetre, Qt::Key touche, bool maj) {
  for (QWidget* bulle : QApplication::topLevelWidgets()) {
    if (bulle->inherits("QTipLabel")) delete bulle;
  }
  PlateauQt* plateau = FenetreDe(fenetre)->LePlateau();
  QTest::keyClick(plateau, touche, maj ? Qt::ControlModifier | Qt::ShiftModifier : Qt::ControlModifier);
  return DepuisQt(QToolTip::text());
}

Texte SceneQt::Annule(Fenetre& fenetre) {
  return Raccourci(fenetre, Qt::Key_Z, false);
}

Texte SceneQt::Retablit(Fenetre& fenetre) {
  return Raccourci(fenetre, Qt::Key_Z, true);
}

Texte SceneQt::Colle(Fenetre& fenetre, TexteVue texte) {
  QApplication::clipboard()->setText(VersQt(texte));
  return Raccourci(fenetre, Qt::Key_V, true);
}

void SceneQt::Touche(Fenetre& fenetre, int KeyCode) {
  const std::pair<int, Qt::Key> touches[] = {{13, Qt::Key_Return}, {27, Qt::Key_Escape}, {37, Qt::Key_Left},
                                             {38, Qt::Key_Up},     {39, Qt::Key_Right},  {40, Qt::Key_Down}};
  FenetreQt* ecran = FenetreDe(fenetre);
  for (const Element& e : fenetre.elements) {
    if (e.Default) Trouve(fenetre, e.Name)->setFocus();
  }
  QWidget* cible = ecran->focusWidget() != nullptr ? ecran->focusWidget() : ecran;
  for (const auto& [code, touche] : touches) {
    if (code == KeyCode) return QTest::keyClick(cible, touche);
  }
  if (fenetre.KeyDown) Execute([&] { fenetre.KeyDown(KeyCode); });
}

void SceneQt::Choisit(Fenetre& fenetre, ArticleMenu& article) {
  FenetreDe(fenetre)->findChild<QAction*>(QString::fromStdString(article.Name))->trigger();
}

void SceneQt::Clique(Fenetre& fenetre, Element& element) {
  QWidget* widget = Trouve(fenetre, element.Name);
  QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(10, widget->height() / 2));
}

void SceneQt::Presse(Fenetre& fenetre, Element& bouton, bool souris) {
  QWidget* widget = Trouve(fenetre, bouton.Name);
  widget->setFocus();
  souris ? QTest::mousePress(widget, Qt::LeftButton) : QTest::keyPress(widget, Qt::Key_Space);
}

void SceneQt::Relache(Fenetre& fenetre, Element& bouton, bool souris) {
  QWidget* widget = Trouve(fenetre, bouton.Name);
  souris ? QTest::mouseRelease(widget, Qt::LeftButton) : QTest::keyRelease(widget, Qt::Key_Space);
}

void SceneQt::Selectionne(Fenetre& fenetre, Element& liste, int position) {
  auto* ecran = dynamic_cast<QListView*>(Trouve(fenetre, liste.Name));
  if (ecran == nullptr) ecran = &dynamic_cast<QListView&>(*Trouve(fenetre, liste.Name + ".liste"));
  if (position < 0) return ecran->clearSelection();
  const QModelIndex ligne = ecran->model()->index(position, 0);
  ecran->scrollTo(ligne);
  QTest::mouseClick(ecran->viewport(), Qt::LeftButton, {}, ecran->visualRect(ligne).center());
}

void SceneQt::Edite(Fenetre& fenetre, Element& champ, TexteVue texte) {
  auto* ecran = Trouve(fenetre, champ.Name + ".champ");
  if (champ.Text.empty() && texte.empty()) return Execute([&] { champ.Edite(texte); });
  Remplit(ecran, texte);
}

// A real double click would select what is under the mouse first, and the session selects nothing.
void SceneQt::DoubleClique(Fenetre& fenetre, Element& liste) {
  auto* ecran = dynamic_cast<QListView*>(Trouve(fenetre, liste.Name));
  if (ecran != nullptr) {
    emit ecran->doubleClicked({});
  } else {
    ExecuteCommande([&] { liste.DoubleClique(); });
  }
}

// ---- what opens: printed on paper, shown on the screen

void SceneQt::Message(TexteVue texte, TexteVue titre) {
  Note(texte, titre);
  montre_ = [&](Boite&) { SystemeQt::Message(texte, titre); };
  papier_.Message(texte, titre);
}

bool SceneQt::Question(TexteVue texte) {
  Note(texte, {});
  montre_ = [&](Boite& boite) { boite.oui = SystemeQt::Question(texte); };
  return papier_.Question(texte);
}

Texte SceneQt::Saisie(TexteVue texte, TexteVue titre, TexteVue defaut) {
  Note(texte, titre);
  montre_ = [&](Boite& boite) { boite.texte = SystemeQt::Saisie(texte, titre, defaut); };
  return papier_.Saisie(texte, titre, defaut);
}

void SceneQt::Fichier(DemandeFichier& demande) {
  montre_ = [&](Boite&) {
    DemandeFichier copie = demande;
    SystemeQt::Fichier(copie);
  };
  papier_.Fichier(demande);
}

void SceneQt::MontreModale(Fenetre& fenetre) {
  montre_ = [&](Boite&) { SystemeQt::MontreModale(fenetre); };
  papier_.MontreModale(fenetre);
}

void SceneQt::Ajoute(Fenetre& fenetre) {
  // Ticks come from the script alone.
  constexpr int kJour = 86'400'000;
  for (Minuterie& minuterie : fenetre.minuteries) minuterie.Interval = kJour;
  papier_.Ajoute(fenetre);
  SystemeQt::Ajoute(fenetre);
}

void SceneQt::Fin() {
  try {
    papier_.Fin();
  } catch (const FinDuProgramme&) {
    sortie_.flush();
  }
  std::_Exit(0);
}

}  // namespace sudoku
