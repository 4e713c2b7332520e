#pragma once

#include "text/texte.h"

namespace sudoku {

class FRMSudoku;

// The game commands of the menu and the events of the main window. Each asks its question and hands over.
class Commands {
 public:
  explicit Commands(FRMSudoku& frm) : frm_(frm) {}

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
  void Form_KeyDown(int KeyCode);
  // Every request to close the window is a quit command. True: the window stays.
  bool Form_QueryUnload(int UnloadMode);

 private:
  // Yes to the question, which is asked only while there is a grid.
  bool Abandonne(TexteVue question);
  void Resout(bool VpGuess);

  FRMSudoku& frm_;
};

}  // namespace sudoku
