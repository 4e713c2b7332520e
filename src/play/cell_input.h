#pragma once

#include "engine/evaluation.h"
#include "grid/game_state.h"
#include "platform/plateau.h"
#include "play/board_display.h"
#include "play/chrono.h"
#include "play/saisies.h"
#include "play/voisins.h"

namespace sudoku {

// What the user does on the board.
class CellInput {
 public:
  CellInput(GameState& jeu, Plateau& plateau, Saisies& saisies, Evaluateur& evaluateur,
            BoardDisplay& affichage, Chrono& chrono, Assistant& assistant, Stockage& stockage)
      : jeu_(jeu),
        plateau_(plateau),
        saisies_(saisies),
        evaluateur_(evaluateur),
        affichage_(affichage),
        chrono_(chrono),
        assistant_(assistant),
        stockage_(stockage) {}

  // The text of box Index has changed. One full cycle: the entry is judged, the grid evaluated, the board
  // redrawn, the commands enabled. The entry that completes the grid in play ends the game: mode 4, and the
  // scores if the clock was running, otherwise a message. Does nothing while the board is being redrawn.
  void ChangeCase(int Index);
  // An arrow key (37 to 40: left, up, right, down) moves the focus, within the grid; others do nothing.
  void Deplacement(int KeyCode);
  // Box Index has got the focus.
  void TxtCase_GotFocus(int Index);

 private:
  void FinDuJeu();

  GameState& jeu_;
  Plateau& plateau_;
  Saisies& saisies_;
  Evaluateur& evaluateur_;
  BoardDisplay& affichage_;
  Chrono& chrono_;
  Assistant& assistant_;
  Stockage& stockage_;
};

}  // namespace sudoku
