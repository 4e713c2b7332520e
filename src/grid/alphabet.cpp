#include "grid/alphabet.h"

namespace sudoku {

Alphabet::Alphabet(TexteVue VmValeurs) : taille_(static_cast<int>(VmValeurs.size())), symboles_(VmValeurs) {
  std::unordered_map<char32_t, int> premieres;
  egales_.resize(symboles_.size());
  for (int p = 0; p < taille_; ++p) {
    const char32_t symbole = symboles_[Rang(p)];
    const int premiere = premieres.try_emplace(Minuscule(symbole), p).first->second;
    egales_[Rang(premiere)].push_back(static_cast<std::int16_t>(p));
    positions_.push_back(premiere);
    // The same symbol twice has two numbers and one text.
    textes_.push_back(&codes_.try_emplace(Texte(1, symbole), p).first->first);
  }
  for (int p = 0; p < taille_; ++p) {
    const int premiere = positions_[Rang(p)];
    if (premiere != p) egales_[Rang(p)] = egales_[Rang(premiere)];
  }
}

Code Alphabet::Numero(TexteVue texte) {
  if (texte.empty()) return kVide;
  const auto [lieu, nouveau] = codes_.try_emplace(Texte(texte), static_cast<Code>(textes_.size()));
  if (nouveau) {
    const std::size_t position = texte.size() == 1 ? Cherche(symboles_, texte) : Texte::npos;
    textes_.push_back(&lieu->first);
    positions_.push_back(position == Texte::npos ? -1 : static_cast<int>(position));
  }
  return lieu->second;
}

bool Alphabet::Egaux(Code a, Code b) const {
  if (a == b) return true;
  if (a == kVide || b == kVide) return false;
  const int position = Position(a);
  if (position >= 0 || Position(b) >= 0) return position == Position(b);
  return Egal(TexteDe(a), TexteDe(b));
}

}  // namespace sudoku
