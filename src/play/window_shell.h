#pragma once

#include "grid/game_state.h"
#include "platform/fenetre.h"

namespace sudoku {

// The table of the main window: elements, timer, menu tree, template of the board. No handlers yet.
Fenetre TableFRMSudoku();

// The menu items whose state depends on the game, looked up once.
class MenusDuJeu {
 public:
  explicit MenusDuJeu(Fenetre& fenetre);

  // Enables exactly the commands that the game's mode, its library and the assistant's visibility allow.
  void SetMenus(const GameState& jeu, bool assistantVisible);

 private:
  ArticleMenu& MnuStart;
  ArticleMenu& MnuRestart;
  ArticleMenu& MnuReinit;
  ArticleMenu& MnuPartie;
  ArticleMenu& MnuSave;
  ArticleMenu& MnuAssist;
  ArticleMenu& MnuSolver;
  ArticleMenu& MnuSolveur2;
  ArticleMenu& MnuScores;
};

// Keeps a window above the others, or no longer. Shows it if it was hidden, in either case.
void AlwaysOnTop(Fenetre& VpForm, bool VpOnTop);

}  // namespace sudoku
