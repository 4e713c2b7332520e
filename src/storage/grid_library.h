#pragma once

#include "grid/game_state.h"
#include "platform/systeme.h"
#include "play/board_display.h"
#include "play/game_flow.h"
#include "text/texte.h"

namespace sudoku {

// What became of a game that was to come onto the board.
enum class Chargement {
  kRien,  // there was none to load: the board goes on
  kEntier,
  kRompu  // it was refused, or broke off
};

// The library of named games, which all stand on the grid of their file.
class GridLibrary {
 public:
  GridLibrary(GameState& jeu, Systeme& systeme, Fenetre& principale, GameFlow& deroulement,
              BoardDisplay& affichage)
      : jeu_(jeu),
        systeme_(systeme),
        principale_(principale),
        deroulement_(deroulement),
        affichage_(affichage) {}

  // Has the user choose a game, in mode kChargePartie, or name one, in kSauvePartie. Leaves the choice in
  // VmPartie; the mode is what it was.
  void ShowParties(Mode mode);

  // Makes a running game of a state string: the user may choose one of the library instead, the board is
  // rebuilt for VmValeurs, the cells are loaded, play starts. An empty string touches nothing but VmPartie.
  // Symbols that no grid can have leave the board too: VmValeurs is that of the board again, and VmPartie 0.
  // A string that breaks off is reported; the board then holds the cells before the break, in entry. So is
  // one that there isn't the memory for, and the board goes on.
  Chargement JeuLoadPartie(Texte VpPartie);

 private:
  GameState& jeu_;
  Systeme& systeme_;
  Fenetre& principale_;
  GameFlow& deroulement_;
  BoardDisplay& affichage_;
};

}  // namespace sudoku
