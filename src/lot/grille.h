#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "grid/game_state.h"

namespace sudoku::lot {

// Puts the first field of a line into the cells of VmGrille: N*N characters, one a cell (a given, Etat 0), or
// 2*N*N, value and state. The cells are used again for every line: an evaluation works out anew everything
// but content and Etat, so that nothing of the line before is left.
class LecteurGrille {
 public:
  // Makes VmGrille for these symbols, whose number a grid can have.
  LecteurGrille(GameState& jeu, TexteVue symboles);

  // Nothing: the cells are loaded. Otherwise what is wrong with the field, in French, and the cells are in no
  // particular state.
  std::optional<std::string> Lit(std::string_view champ);

 private:
  // What a character means: a Code, kVide for an empty cell, or kFaux.
  static constexpr Code kFaux = -2;
  using Sens = std::array<Code, 128>;

  bool LitOctets(std::string_view champ);
  std::optional<std::string> LitTexte(TexteVue texte);
  Code SensDe(char32_t c, bool avecEtats);
  Code CodeDuSymbole(char32_t c);
  std::string Attendu(bool avecEtats) const;
  std::string Longueurs() const;

  GameState& jeu_;
  std::size_t cases_;
  Sens seul_{};                               // ASCII characters in a line of one character a cell
  Sens avecEtat_{};                           // in a line with states
  std::unordered_map<char32_t, Code> codes_;  // the others met so far
};

}  // namespace sudoku::lot
