// The board under the player's hands: keys, clipboard, palette of symbols.

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QToolTip>

#include "qt/editeur_case.h"
#include "qt/palette_symboles.h"
#include "qt/plateau_qt.h"
#include "qt/texte_qt.h"
#include "qt/touches.h"

namespace sudoku {

void PlateauQt::BrancheEditeur() {
  editeur_->Saisi = [this](const QString& texte) { Tape(DepuisQt(texte)); };
  editeur_->Touche = [this](QKeyEvent& evenement) { return Touche(evenement); };
  editeur_->Revenu = [this] { SelectionneEncore(); };
  editeur_->Clic = [this] { Focalise(focus_); };
  editeur_->Menu = [this] { OuvrePalette(); };
}

bool PlateauQt::Touche(QKeyEvent& evenement) {
  if (ToucheDeFenetre(evenement) || ToucheDeConfort(evenement) || ToucheDeLieu(evenement)) return true;
  if (Frappe(evenement)) return true;
  if (evenement.key() == Qt::Key_Tab || evenement.key() == Qt::Key_Backtab) {
    Tabule(evenement.key() == Qt::Key_Tab);
    return true;
  }
  const int code = CodeTouche(evenement);
  const int avant = fenetre_.plateau.Focus();
  if (code == 0 || !fenetre_.KeyDown) return false;
  pilote_.Precede([&] { fenetre_.KeyDown(code); });
  if (fenetre_.plateau.Focus() == avant) return false;  // the box gets it
  pilote_.Execute([] {});
  return true;
}

bool PlateauQt::ToucheDeConfort(const QKeyEvent& evenement) {
  if (evenement.key() == Qt::Key_F1 && fenetre_.conforts.MontreTouches) {
    pilote_.Execute(fenetre_.conforts.MontreTouches);
    return true;
  }
  if (evenement.matches(QKeySequence::Paste)) {
    Colle(false);
    return true;
  }
  if (!(evenement.modifiers() & Qt::ControlModifier)) return false;
  const bool maj = evenement.modifiers() & Qt::ShiftModifier;
  switch (evenement.key()) {
    case Qt::Key_Y:
      Execute(fenetre_.conforts.Retablit);
      return true;
    case Qt::Key_Z:
      Execute(maj ? fenetre_.conforts.Retablit : fenetre_.conforts.Annule);
      return true;
    case Qt::Key_V:
      if (maj) DeposeTexte(QApplication::clipboard()->text());
      return maj;
    case Qt::Key_C:
      if (maj) CopieGrille();
      return maj;
    case Qt::Key_Space:
      OuvrePalette();
      return true;
    default:
      return false;
  }
}

// To an end of the row or of the board, or a page up or down. Without a box to start from only to the ends of
// the board.
bool PlateauQt::ToucheDeLieu(const QKeyEvent& evenement) {
  const Qt::KeyboardModifiers avec = evenement.modifiers() & ~Qt::KeypadModifier;
  const bool tout = avec == Qt::ControlModifier;
  const int n = fenetre_.plateau.Cases();
  if (n == 0 || (tout ? false : avec != Qt::NoModifier || focus_ == 0)) return false;
  const auto [premiere, derniere] = geometrie_.RangeeDe(std::max(focus_, 1));
  const int largeur = derniere - premiere + 1;
  const int page = largeur * std::max(1, viewport()->height() / RectangleCase(1).height() - 1);
  const int colonne = focus_ - premiere;
  int cible = 0;
  switch (evenement.key()) {
    case Qt::Key_Home:
      cible = tout ? 1 : premiere;
      break;
    case Qt::Key_End:
      cible = tout ? n : derniere;
      break;
    case Qt::Key_PageUp:
      cible = tout ? 0 : std::max(focus_ - page, 1 + colonne);
      break;
    case Qt::Key_PageDown:
      cible = tout ? 0 : std::min(focus_ + page, n - largeur + 1 + colonne);
      break;
    default:
      break;
  }
  Focalise(cible);
  return cible != 0;
}

// A symbol that is typed while no box has the focus goes to the first that takes one, an empty one if there
// is any. True: a box has the focus.
bool PlateauQt::AUneCase() {
  int libre = 0;
  for (int i = fenetre_.plateau.Cases(); i > 0 && focus_ == 0; --i) {
    const CaseTexte& caseTexte = fenetre_.plateau.TxtCase(i);
    const bool meilleure =
        libre == 0 || caseTexte.Text.empty() || !fenetre_.plateau.TxtCase(libre).Text.empty();
    if (!caseTexte.Locked && meilleure) libre = i;
  }
  if (focus_ == 0) Focalise(libre);
  return focus_ != 0;
}

// True: used up, because the key types nothing or something else than the field would take.
bool PlateauQt::Frappe(const QKeyEvent& evenement) {
  const Qt::KeyboardModifiers autres = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  const QString brut = evenement.text();
  if (fenetre_.plateau.Cases() == 0 || brut.isEmpty() || !brut[0].isPrint()) return false;
  if (evenement.modifiers() & autres) return false;
  const QString texte = TexteTape(evenement, fenetre_.conforts.Symboles());
  if (focus_ != 0 && texte == brut) return false;
  if (texte.isEmpty() || !AUneCase()) return true;
  QKeyEvent frappe(QEvent::KeyPress, 0, Qt::NoModifier, texte);
  QApplication::sendEvent(editeur_, &frappe);
  return true;
}

bool PlateauQt::event(QEvent* evenement) {
  if (evenement->type() == QEvent::KeyPress && Touche(*static_cast<QKeyEvent*>(evenement))) return true;
  return QAbstractScrollArea::event(evenement);
}

void PlateauQt::keyPressEvent(QKeyEvent* evenement) {
  if (evenement->key() == Qt::Key_PageUp || evenement->key() == Qt::Key_PageDown) {
    QAbstractScrollArea::keyPressEvent(evenement);
  } else {
    evenement->ignore();
  }
}

// ---- what is typed, pasted, copied

void PlateauQt::Execute(const std::function<Texte()>& acte) {
  Texte raison;
  if (acte) pilote_.Execute([&] { raison = acte(); });
  if (!raison.empty()) Dit(VersQt(raison));
}

void PlateauQt::Dit(const QString& raison) {
  constexpr int kDuree = 4000;  // milliseconds
  const QRect ici = focus_ != 0 ? RectangleCase(focus_) : viewport()->rect();
  const QPoint coin = focus_ != 0 ? ici.bottomLeft() : ici.center();
  QToolTip::showText(viewport()->mapToGlobal(coin), raison.toHtmlEscaped(), viewport(), {}, kDuree);
}

// The user makes this the text of the box with the focus.
void PlateauQt::Tape(const Texte& texte) {
  if (!fenetre_.plateau.TxtCase(focus_).Locked)
    pilote_.Execute([&] { fenetre_.plateau.Saisit(focus_, texte); });
}

void PlateauQt::OuvrePalette() {
  if (!AUneCase() || !fenetre_.conforts.Symboles) return;
  const CaseTexte& caseTexte = fenetre_.plateau.TxtCase(focus_);
  const Texte contenu = caseTexte.Text;
  const bool libre = !caseTexte.Locked;
  const auto copie = [contenu] { QApplication::clipboard()->setText(VersQt(contenu)); };
  auto* palette = new PaletteSymboles(fenetre_.conforts.Symboles(), libre, contenu, this);
  palette->Choisi = [this](const Texte& symbole) { Tape(symbole); };
  palette->Ajoute({{QStringLiteral("Couper"), libre && !contenu.empty(),
                    [this, copie] {
                      copie();
                      Tape({});
                    }},
                   {QStringLiteral("Copier"), !contenu.empty(), copie},
                   {QStringLiteral("Coller"), true, [this] { Colle(true); }},
                   {QStringLiteral("Effacer"), libre && !contenu.empty(), [this] { Tape({}); }}});
  palette->Montre(
      QRect(viewport()->mapToGlobal(RectangleCase(focus_).topLeft()), RectangleCase(focus_).size()));
}

void PlateauQt::DeposeTexte(const QString& texte) {
  Execute([&] { return fenetre_.conforts.Colle(DepuisQt(texte)); });
}

// A grid goes to the board, any other text into the box with the focus, in place of all that it holds or of
// what is selected there.
void PlateauQt::Colle(bool remplace) {
  const QString texte = QApplication::clipboard()->text();
  if (fenetre_.plateau.Cases() == 0 || fenetre_.conforts.EstGrille(DepuisQt(texte)))
    return DeposeTexte(texte);
  if (texte.isEmpty())
    return Dit(QStringLiteral("Rien à coller : le presse-papiers ne contient pas de texte"));
  if (!AUneCase()) return;
  const Texte verrou = fenetre_.conforts.Verrou(focus_);
  if (!verrou.empty()) return Dit(VersQt(verrou));
  remplace ? Tape(DepuisQt(texte)) : editeur_->paste();
}

void PlateauQt::CopieGrille() {
  if (fenetre_.plateau.Cases() == 0 || !fenetre_.conforts.EcritGrille) return;
  QApplication::clipboard()->setText(VersQt(fenetre_.conforts.EcritGrille()));
}

}  // namespace sudoku
