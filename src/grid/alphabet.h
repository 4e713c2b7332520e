#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "grid/geometrie.h"
#include "text/texte.h"

namespace sudoku {

// What a cell holds, as a number: 0 to N-1 is the symbol at that position of VmValeurs; from N on a text that
// is no symbol as written there (another case, a foreign character, several characters), numbered as it
// comes.
using Code = std::int32_t;
inline constexpr Code kVide = -1;  // the empty text

// The symbols of one grid and the texts met in its cells. Two positions are equal when their symbols are,
// ignoring case ("a" and "A", or the same symbol twice); that is worked out once, here, and every later
// question about case is a look-up. Shared by a grid and its copies; it only ever grows.
class Alphabet {
 public:
  explicit Alphabet(TexteVue VmValeurs);
  Alphabet(const Alphabet&) = delete;
  Alphabet& operator=(const Alphabet&) = delete;

  int Taille() const { return taille_; }
  const Texte& Symboles() const { return symboles_; }

  // The number of a text, made if it is new. kVide for the empty text.
  Code Numero(TexteVue texte);
  // The text of a number. The empty text for kVide.
  const Texte& TexteDe(Code code) const { return code == kVide ? vide_ : *textes_[Rang(code)]; }
  // First position equal to this text; -1 where it is no single symbol.
  int Position(Code code) const { return code == kVide ? -1 : positions_[Rang(code)]; }
  // The text has more than one character.
  bool Long(Code code) const { return code >= taille_ && TexteDe(code).size() > 1; }

  // Ignoring case: the two texts are equal.
  bool Egaux(Code a, Code b) const;

  // Positions equal to position p, in ascending order, p among them.
  const std::vector<std::int16_t>& Egales(int p) const { return egales_[Rang(p)]; }
  // The first of them.
  int Premiere(int p) const { return egales_[Rang(p)].front(); }

 private:
  int taille_;
  Texte symboles_;
  Texte vide_;
  std::unordered_map<Texte, Code> codes_;
  std::vector<const Texte*> textes_;  // the keys of codes_, which stay where they are while it grows
  std::vector<int> positions_;        // of the texts
  std::vector<std::vector<std::int16_t>> egales_;
};

}  // namespace sudoku
