#pragma once

#include <cstdint>

#include "text/texte.h"

namespace sudoku {

struct Bloc;

// Etat: the verdict on what a cell holds. Files can bring in 4 to 9 as well; such a cell counts as empty.
enum EtatCase : std::int32_t {
  kDonnee = 0,    // a given, or untouched
  kProuvee = 1,   // empty after an erasure, or proved right
  kPossible = 2,  // the player's, not refuted
  kErronee = 3    // the player's, wrong
};

// One cell of a grid. It is a handle: copies of it, and every grid that holds the same cells, see the same
// contents. Good as long as some Grille holds the block of cells it was taken from.
class ClsPos {
 public:
  ClsPos(Bloc* bloc, int index) : bloc_(bloc), index_(index) {}

  // Place in the grid: numbers from 1, row by row (blocks too).
  std::int16_t Index() const { return static_cast<std::int16_t>(index_); }
  std::int16_t Ligne() const;
  std::int16_t Colonne() const;
  std::int16_t Carre() const;

  // The candidates of the last evaluation, in the order of VmValeurs; the content alone for a cell whose
  // content counted then. Empty: a contradiction, or never evaluated.
  Texte Possible() const;
  // The symbol proved without the player's unproved entries; empty if there is none.
  const Texte& SolutionSure() const;
  // The symbol proved if those entries are right; empty if there is none.
  const Texte& SolutionPoss() const;
  std::int32_t Etat() const;

  // The content that counts for the engine in the present mode: unproved entries only in mode 3, wrong ones
  // never.
  const Texte& Valeur() const;
  // A typed entry: judged against the candidates and SolutionSure. Puts a finished game (mode 4) back into
  // play. In mode 1 a symbol that the candidates refuse shows "Impossible" and changes nothing.
  void Valeur(TexteVue Value);
  // The content as typed or loaded.
  const Texte& ValeurSaisie() const;
  // Puts a stored cell back, unjudged, whatever the mode.
  void Load(TexteVue LoadValue, std::int32_t LoadEtat);

 private:
  Bloc* bloc_;
  int index_;
};

}  // namespace sudoku
