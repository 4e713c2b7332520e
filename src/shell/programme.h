#pragma once

#include "assistant/frm_help.h"
#include "play/frm_sudoku.h"
#include "shell/about.h"
#include "shell/com_dlg.h"
#include "storage/game_storage.h"

namespace sudoku {

// The whole game on one window system: makes main window, assistant, storage and about box, and introduces
// them to each other. It stays where it was made. The window system must outlive it.
class Programme {
 public:
  explicit Programme(Systeme& systeme);
  ~Programme();
  Programme(const Programme&) = delete;
  Programme& operator=(const Programme&) = delete;

  // The start, with the command line as the system passes it: a path in double quotes, or nothing.
  void Demarre(TexteVue ligneDeCommande);

  FRMSudoku& Principale() { return principale_; }

 private:
  GameState jeu_;
  Fenetre fenetre_;
  FRMHelp assistant_;
  FRMSudoku principale_;
  ComDlg dialogue_;
  GameStorage stockage_;
  AboutCommand aPropos_;
};

}  // namespace sudoku
