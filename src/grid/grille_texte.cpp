#include "grid/grille_texte.h"

#include <algorithm>

namespace sudoku {

namespace {

enum class Sens { kSymbole, kVide, kBlanc, kCadre, kAutre };
using Ligne = std::vector<Texte>;

Sens SensDe(char32_t c, TexteVue VmValeurs) {
  if (Contient(VmValeurs, TexteVue(&c, 1))) return Sens::kSymbole;
  if (TexteVue(U".0_*").find(c) != TexteVue::npos) return Sens::kVide;
  if (c == U' ' || c == U'\t' || c == U'\u00A0') return Sens::kBlanc;
  if (TexteVue(U"|-+").find(c) != TexteVue::npos) return Sens::kCadre;
  return Sens::kAutre;
}

// The cells of one line; nothing if it holds a character that has no place in a grid, or more cells than one.
std::optional<Ligne> LitLigne(TexteVue texte, TexteVue VmValeurs, bool blancs_vides) {
  Ligne cases;
  for (const char32_t c : texte) {
    const Sens sens = SensDe(c, VmValeurs);
    if (sens == Sens::kAutre) return std::nullopt;
    if (sens == Sens::kSymbole) cases.emplace_back(1, c);
    if (sens == Sens::kVide || (sens == Sens::kBlanc && blancs_vides)) cases.emplace_back();
    if (cases.size() > VmValeurs.size() * VmValeurs.size()) return std::nullopt;
  }
  return cases;
}

// A line of frame alone, such as "------+-------". One of | and blanks is a row of empty cells instead.
bool LigneDeCadre(TexteVue texte, TexteVue VmValeurs) {
  std::size_t cadres = 0;
  for (const char32_t c : texte) {
    const Sens sens = SensDe(c, VmValeurs);
    if (sens != Sens::kCadre && sens != Sens::kBlanc) return false;
    if (sens == Sens::kCadre && c != U'|') ++cadres;
  }
  return cadres > 0;
}

std::vector<TexteVue> Lignes(TexteVue texte) {
  std::vector<TexteVue> lignes;
  while (!texte.empty()) {
    const std::size_t fin = std::min(texte.find_first_of(U"\r\n"), texte.size());
    if (fin > 0) lignes.push_back(texte.substr(0, fin));
    texte.remove_prefix(std::min(fin + 1, texte.size()));
  }
  return lignes;
}

std::optional<std::vector<Texte>> Lit(const std::vector<TexteVue>& lignes, TexteVue VmValeurs,
                                      bool blancs_vides) {
  const std::size_t n = VmValeurs.size();
  std::vector<Texte> cases;
  std::size_t rangees = 0;
  for (const TexteVue texte : lignes) {
    if (LigneDeCadre(texte, VmValeurs)) continue;
    const std::optional<Ligne> ligne = LitLigne(texte, VmValeurs, blancs_vides);
    if (!ligne) return std::nullopt;
    if (ligne->empty()) continue;
    if (ligne->size() != n && ligne->size() != n * n) return std::nullopt;
    cases.insert(cases.end(), ligne->begin(), ligne->end());
    if (++rangees > n) return std::nullopt;
  }
  if (cases.size() != n * n || (rangees != n && rangees != 1)) return std::nullopt;
  return cases;
}

}  // namespace

std::optional<std::vector<Texte>> LitGrilleTexte(TexteVue texte, TexteVue VmValeurs) {
  if (VmValeurs.empty()) return std::nullopt;
  const std::vector<TexteVue> lignes = Lignes(texte);
  if (auto cases = Lit(lignes, VmValeurs, true)) return cases;
  return Lit(lignes, VmValeurs, false);
}

Texte EcritGrilleTexte(const std::vector<Texte>& contenus) {
  Texte ligne;
  for (const Texte& contenu : contenus) ligne.push_back(contenu.empty() ? U'.' : contenu.front());
  return ligne;
}

}  // namespace sudoku
