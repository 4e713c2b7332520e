#include "platform/element.h"

namespace sudoku {

void Element::Clear() {
  items.clear();
  ListIndex = -1;
  Text.clear();
}

void Element::Selectionne(int p) {
  ListIndex = p;
  Text = p < 0 ? Texte() : items[static_cast<std::size_t>(p)];
}

void Element::Edite(TexteVue texte) {
  ListIndex = -1;
  Text = SansControles(texte);
}

void Element::Clique() {
  if (genre == Genre::kCaseACocher) Value = 1 - Value;
  Lance(MouseDown);
  Lance(MouseUp);
  Lance(Click);
}

Texte SansControles(TexteVue texte) {
  Texte resultat;
  for (const char32_t c : texte) {
    if (c >= 0x20 && c != 0x7F) resultat += c;
  }
  return resultat;
}

}  // namespace sudoku
