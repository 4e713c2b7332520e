#pragma once

#include "engine/evaluation.h"
#include "grid/game_state.h"
#include "grid/jeu_vierge.h"
#include "platform/systeme.h"
#include "play/board_display.h"
#include "play/chrono.h"
#include "play/saisies.h"
#include "solver/auto_driver.h"

namespace sudoku {

// From an empty grid to play, back to the start of a game, and to its solution.
class GameFlow : private PlateauVierge {
 public:
  GameFlow(GameState& jeu, Systeme& systeme, Saisies& saisies, Evaluateur& evaluateur, AutoDriver& solveur,
           BoardDisplay& affichage, Chrono& chrono)
      : jeu_(jeu),
        systeme_(systeme),
        saisies_(saisies),
        evaluateur_(evaluateur),
        solveur_(solveur),
        affichage_(affichage),
        chrono_(chrono) {}

  // As sudoku::JeuVierge, on this board. False: no grid was made.
  bool JeuVierge(Texte& VpValeurs) { return sudoku::JeuVierge(jeu_, *this, VpValeurs); }
  // The user asks for a new grid.
  void NouvelleGrille();
  // Begins play on the grid as it stands, whatever it holds: a silent solve, mode 2, board, menus, clock.
  void JeuStart();
  // Erases the player's entries, with VpValide True only those that no proof confirmed, and starts anew.
  void JeuReinit(bool VpValide);
  // The solver plays to the end, VpGuess True with suppositions.
  void Resout(bool VpGuess);

 private:
  Texte DemandeSymboles() override;
  void MetEnPlace() override;
  void Evalue() override { evaluateur_.Evaluation(jeu_.VmGrille, 1); }
  void SetInfos() override { affichage_.SetInfos(); }

  GameState& jeu_;
  Systeme& systeme_;
  Saisies& saisies_;
  Evaluateur& evaluateur_;
  AutoDriver& solveur_;
  BoardDisplay& affichage_;
  Chrono& chrono_;
};

}  // namespace sudoku
