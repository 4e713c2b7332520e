#pragma once

#include <cstdint>

#include "engine/evaluation.h"
#include "grid/game_state.h"
#include "solver/suppositions.h"

namespace sudoku {

// What automatic play asks of the board.
class PlateauAuto {
 public:
  virtual ~PlateauAuto() = default;
  // Redraws the board from VmGrille, or from VmGrilleEtat while VgSilence is True.
  virtual void Affiche() = 0;
  // A message box with an OK button; comes back when it is answered.
  virtual void Message(TexteVue texte) = 0;
};

// Automatic play, the one entry to the solver. Works on the live grid with messages (VgSilence False) or
// silently on a copy, VmGrilleEtat (VgSilence True). Every run ends, whatever the grid; VgEtat is 2 after it.
class AutoDriver {
 public:
  AutoDriver(GameState& jeu, Evaluateur& moteur, PlateauAuto& plateau);

  // VpReset: forget that VmGrilleEtat is complete (otherwise a complete one is simply shown, without a
  // message). VpGuess: suppose symbols where deduction stops.
  void JeuAuto(bool VpReset, bool VpGuess);

 private:
  std::int16_t Cherche(Grille& VlTravail, bool VpGuess);
  std::int16_t JeuSolve(Grille& VpGrille);
  bool GuessResult(std::int16_t VpResultat);
  bool Guess(Grille& VpGrille);
  std::int16_t Acheve(Grille& VlTravail);
  Texte MessageFinal(std::int16_t VlVerdict) const;

  GameState& jeu_;
  Evaluateur& moteur_;
  PlateauAuto& plateau_;
  // Of the run: the base grid of the suppositions (kept between runs, so that a run allocates nothing), and
  // the open levels.
  Grille VlBase_;
  Suppositions VlSupp_;
};

}  // namespace sudoku
