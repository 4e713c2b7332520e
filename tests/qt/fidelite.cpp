#include "qt/fidelite.h"

#include <QAction>
#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>

#include "qt/editeur_case.h"
#include "qt/etiquette.h"
#include "qt/mesure.h"
#include "qt/plateau_qt.h"
#include "qt/texte_qt.h"

namespace sudoku {
namespace {

template <class T>
T* Fils(FenetreQt& ecran, const std::string& nom) {
  return ecran.findChild<T*>(QString::fromStdString(nom));
}

bool ListeFidele(const QListView* liste, const Element& e) {
  if (liste == nullptr || liste->model()->rowCount() != static_cast<int>(e.items.size())) return false;
  for (int n = 0; n < liste->model()->rowCount(); ++n) {
    const QModelIndex ligne = liste->model()->index(n, 0);
    if (ligne.data().toString() != VersQt(e.items[static_cast<std::size_t>(n)])) return false;
    if (liste->selectionModel()->isSelected(ligne) != (n == e.ListIndex)) return false;
  }
  return true;
}

// The widget of an element says what the record says.
bool ContenuFidele(FenetreQt& ecran, const Element& e) {
  const QString caption = VersQt(e.Caption);
  const QString texte = VersQt(e.Text);
  switch (e.genre) {
    case Genre::kEtiquette:
      return static_cast<Etiquette*>(Fils<QWidget>(ecran, e.Name))->Texte() == caption;
    case Genre::kTexte:
      if (e.MultiLine) {
        return Fils<QPlainTextEdit>(ecran, e.Name)->toPlainText() == QString(texte).remove(u'\r').trimmed();
      }
      return Fils<QLineEdit>(ecran, e.Name)->text() == texte;
    case Genre::kCaseACocher: {
      const auto* boite = Fils<QCheckBox>(ecran, e.Name);
      return boite->text() == caption && boite->isChecked() == (e.Value != 0);
    }
    case Genre::kCadre:
      return Fils<QGroupBox>(ecran, e.Name)->title() == caption;
    case Genre::kBouton:
      return Fils<QPushButton>(ecran, e.Name)->text() == caption;
    case Genre::kListe:
      return ListeFidele(Fils<QListView>(ecran, e.Name), e);
    case Genre::kChampListe:
      return ListeFidele(Fils<QListView>(ecran, e.Name + ".liste"), e) &&
             Fils<QLineEdit>(ecran, e.Name + ".champ")->text() == texte;
    default:
      return true;
  }
}

// A box's background near its corner, and its ink somewhere in it unless the editor shows the text.
bool CaseFidele(const QImage& image, const QRect& place, const CaseTexte& boite, bool focus) {
  if (image.pixelColor(place.topLeft() + QPoint(3, 3)) != CouleurQt(boite.BackColor)) return false;
  if (boite.Text.empty() || focus) return true;
  const QRgb encre = CouleurQt(boite.ForeColor).rgb();
  for (int y = place.top(); y <= place.bottom(); ++y) {
    for (int x = place.left(); x <= place.right(); ++x) {
      if (image.pixel(x, y) == encre) return true;
    }
  }
  return false;
}

bool EditeurFidele(const EditeurCase& editeur, const CaseTexte& boite) {
  const int debut = PositionQt(boite.Text, boite.SelStart);
  const int fin = PositionQt(boite.Text, boite.SelStart + boite.SelLength);
  return editeur.text() == VersQt(boite.Text) && editeur.isReadOnly() == boite.Locked &&
         editeur.selectedText() == VersQt(boite.Text).mid(debut, fin - debut);
}

std::string PlateauFidele(PlateauQt& ecran, const Plateau& plateau) {
  if (plateau.Focus() != 0 && !EditeurFidele(ecran.Editeur(), plateau.TxtCase(plateau.Focus())))
    return "editeur";
  if ((plateau.Focus() != 0) != ecran.Editeur().isVisible()) return "focus";
  const QImage image = ecran.viewport()->grab().toImage();
  for (int i = 1; i <= plateau.Cases(); ++i) {
    const QRect place = ecran.RectangleCase(i);
    if (!ecran.viewport()->rect().contains(place)) continue;
    if (!CaseFidele(image, place, plateau.TxtCase(i), i == plateau.Focus()))
      return "case " + std::to_string(i);
  }
  return {};
}

}  // namespace

std::string Difference(FenetreQt& ecran, const Fenetre& fenetre) {
  if (ecran.isVisible() != fenetre.Visible) return fenetre.Name + " visible";
  if (!fenetre.Visible) return {};
  if (ecran.windowTitle() != VersQt(fenetre.Caption)) return fenetre.Name + " titre";
  for (const Element& e : fenetre.elements) {
    const auto* widget = Fils<QWidget>(ecran, e.Name);
    if (widget == nullptr || widget->isVisibleTo(&ecran) != e.Visible) return e.Name + " visible";
    if (!ContenuFidele(ecran, e)) return e.Name;
  }
  for (const Menu& menu : fenetre.menus) {
    for (const ArticleMenu& article : menu.articles) {
      const auto* action = Fils<QAction>(ecran, article.Name);
      if (action != nullptr && action->isEnabled() != article.Enabled) return article.Name;
    }
  }
  return ecran.LePlateau() != nullptr ? PlateauFidele(*ecran.LePlateau(), fenetre.plateau) : std::string();
}

}  // namespace sudoku
