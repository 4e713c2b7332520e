#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "text/texte.h"

namespace sudoku::plain {

// A number as an index.
inline std::size_t At(int i) {
  return static_cast<std::size_t>(i);
}

// Random numbers that are the same with every compiler and library.
class Hasard {
 public:
  explicit Hasard(std::uint64_t graine) : moteur_(graine) {}
  // 0 to n-1; n is at least 1.
  int Entier(int n) { return static_cast<int>(moteur_() % static_cast<std::uint64_t>(n)); }
  bool UneFoisSur(int n) { return Entier(n) == 0; }
  bool Pourcent(int p) { return Entier(100) < p; }
  template <class T>
  void Melange(T& liste) {
    for (std::size_t i = liste.size(); i > 1; --i) std::swap(liste[i - 1], liste[moteur_() % i]);
  }

 private:
  std::mt19937_64 moteur_;
};

struct Contenu {
  Texte valeur;
  int etat = 0;
  bool operator==(const Contenu&) const = default;
};

// A grid to start from. Contents and states are what Load may put there, possible in a game or not.
struct Plateau {
  Texte symboles;
  int mode = 2;                // 1 or 2
  std::vector<Contenu> cases;  // cell i at position i - 1
};

// A full grid without a symbol twice in a unit: positions of symbols, from 0, row by row.
std::vector<int> GrillePleine(Hasard& hasard, int n);

// N symbols: plain ones mostly; else letters that differ by case alone, repeated symbols, foreign ones.
Texte SymbolesAuHasard(Hasard& hasard, int n);

// Givens alone (a full grid with cells blanked, the same with mistakes, scattered symbols, nothing at all,
// nearly everything), entries in every Etat, contents of several symbols or of none that the grid has.
Plateau PlateauAuHasard(Hasard& hasard, int n);

// What the solver is made for: givens of a full grid, few mistakes, few entries.
Plateau PlateauAResoudre(Hasard& hasard, int n);

// What a player could type or paste into a cell, given what is possible there.
Texte SaisieAuHasard(Hasard& hasard, TexteVue symboles, TexteVue possible);

}  // namespace sudoku::plain
