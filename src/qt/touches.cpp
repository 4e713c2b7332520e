#include "qt/touches.h"

#include <QKeyEvent>

#include <algorithm>

#include "platform/element.h"
#include "qt/texte_qt.h"

namespace sudoku {
namespace {

// The digit of a key of the row of digits, 0 for any other key: by its place, which systems number alike, or
// where no place is told, by what it types on a French keyboard.
char32_t ChiffreDeLaTouche(const QKeyEvent& evenement, char32_t caractere) {
  constexpr TexteVue kChiffres = U"1234567890";
  constexpr quint32 kPremiere = 10;
  if (evenement.modifiers() & Qt::ShiftModifier) return 0;
  const quint32 place = evenement.nativeScanCode();
  const std::size_t n =
      place != 0 ? static_cast<std::size_t>(place - kPremiere) : TexteVue(U"&é\"'(-è_çà").find(caractere);
  return n < kChiffres.size() ? kChiffres[n] : 0;
}

}  // namespace

QString TexteTape(const QKeyEvent& evenement, const Texte& symboles) {
  const Qt::KeyboardModifiers autres = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  const Texte texte = DepuisQt(evenement.text());
  if (texte.empty() || SansControles(texte) != texte || (evenement.modifiers() & autres)) return {};
  const auto connu = [&](char32_t c) {
    return std::ranges::any_of(symboles, [&](char32_t s) { return Minuscule(s) == Minuscule(c); });
  };
  if (texte.size() > 1 || connu(texte[0])) return evenement.text();
  if (evenement.text()[0].isSpace()) return {};
  const char32_t chiffre = ChiffreDeLaTouche(evenement, texte[0]);
  return chiffre != 0 && connu(chiffre) ? VersQt(Texte(1, chiffre)) : evenement.text();
}

int CodeTouche(const QKeyEvent& evenement) {
  const int touche = evenement.key();
  // Digits and capital letters are their own codes. Other characters are not: % is 37 here, which is an arrow
  // among key codes.
  if ((touche >= Qt::Key_0 && touche <= Qt::Key_9) || (touche >= Qt::Key_A && touche <= Qt::Key_Z))
    return touche;
  switch (touche) {
    case Qt::Key_Backspace:
      return 8;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      return 9;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return kToucheEntree;
    case Qt::Key_Escape:
      return kToucheEchappe;
    case Qt::Key_Space:
      return kToucheEspace;
    case Qt::Key_PageUp:
      return 33;
    case Qt::Key_PageDown:
      return 34;
    case Qt::Key_End:
      return 35;
    case Qt::Key_Home:
      return 36;
    case Qt::Key_Left:
      return 37;
    case Qt::Key_Up:
      return 38;
    case Qt::Key_Right:
      return 39;
    case Qt::Key_Down:
      return 40;
    case Qt::Key_Insert:
      return 45;
    case Qt::Key_Delete:
      return 46;
    default:
      return 0;
  }
}

}  // namespace sudoku
