#pragma once

#include "grid/game_state.h"
#include "platform/systeme.h"
#include "play/board_display.h"
#include "play/game_flow.h"
#include "play/voisins.h"
#include "text/texte.h"

namespace sudoku {

// The game commands of the menu and the events of the main window. Each asks its question and hands over.
class Commands {
 public:
  Commands(GameState& jeu, Systeme& systeme, Fenetre& principale, BoardDisplay& affichage,
           GameFlow& deroulement, Assistant& assistant, Stockage& stockage)
      : jeu_(jeu),
        systeme_(systeme),
        principale_(principale),
        affichage_(affichage),
        deroulement_(deroulement),
        assistant_(assistant),
        stockage_(stockage) {}

  // The start of the program: mode 0, menus, window above the others; then loads the file that the command
  // line names, if it isn't empty.
  void Form_Load(TexteVue ligneDeCommande);
  void MnuInit_Click();
  void MnuStart_Click();
  void MnuRestart_Click();
  void MnuReinit_Click();
  // Ends the program; comes back only when the user says no.
  void MnuQuit_Click();
  void MnuAssist_Click();
  void MnuSolver_Click();
  void MnuSolveur2_Click();
  // Loads this file in place of the grid there is, once the user agrees.
  void OuvreFichier(TexteVue chemin);
  // Every request to close the window is a quit command. True: the window stays.
  bool Form_QueryUnload(int UnloadMode);

 private:
  // Yes to the question, which is asked only while there is a grid.
  bool Abandonne(TexteVue question);
  void Resout(bool VpGuess);

  GameState& jeu_;
  Systeme& systeme_;
  Fenetre& principale_;
  BoardDisplay& affichage_;
  GameFlow& deroulement_;
  Assistant& assistant_;
  Stockage& stockage_;
};

}  // namespace sudoku
