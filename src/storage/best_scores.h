#pragma once

#include <vector>

#include "grid/game_state.h"
#include "platform/systeme.h"

namespace sudoku {

// A new time would not enter the table of the ten best: it is full, and its last time is no longer.
bool HorsClassement(const std::vector<TypScore>& VgScores, double temps);
// The table with one entry more, behind those of the same time, cut to ten.
std::vector<TypScore> AvecScore(const std::vector<TypScore>& VgScores, TypScore score);

// The ten best times on the grid. They reach the disk with the next save.
class BestScores {
 public:
  BestScores(GameState& jeu, Systeme& systeme) : jeu_(jeu), systeme_(systeme) {}

  // Enters the time VmFin - VmDebut if it is good enough, under a name that it asks for; then shows the
  // table. The name may be empty.
  void SetScores();
  void ShowScores();

 private:
  GameState& jeu_;
  Systeme& systeme_;
};

}  // namespace sudoku
