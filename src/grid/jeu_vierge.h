#pragma once

#include "grid/game_state.h"

namespace sudoku {

// What the making of a new grid asks of the board and of the engine.
class PlateauVierge {
 public:
  virtual ~PlateauVierge() = default;
  // Asks the user for the symbols of a grid; empty when nothing was given.
  virtual Texte DemandeSymboles() = 0;
  // Takes the boxes and frames of the old grid away and lays out those of VmGrille, window and labels too.
  virtual void MetEnPlace() = 0;
  // Works out the candidates of VmGrille, in one pass.
  virtual void Evalue() = 0;
  virtual void SetInfos() = 0;
};

// Makes an empty grid for the symbols VpValeurs and puts it on the board, in mode 1. Empty symbols: the user
// is asked, the answer is written back, and a game without file, library and scores begins, even when the
// answer is refused afterwards. The solved copy of an earlier grid is forgotten. False when no grid was made:
// the user gave nothing, or the number of symbols is no side of a grid, which shows "Choix incorrect"; the
// board, the mode and VmGrille are then as they were.
bool JeuVierge(GameState& jeu, PlateauVierge& plateau, Texte& VpValeurs);

}  // namespace sudoku
