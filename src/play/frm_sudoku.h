#pragma once

#include <memory>

#include "engine/evaluation.h"
#include "grid/game_state.h"
#include "platform/systeme.h"
#include "play/board_display.h"
#include "play/cell_input.h"
#include "play/chrono.h"
#include "play/commands.h"
#include "play/game_flow.h"
#include "play/voisins.h"
#include "play/window_shell.h"
#include "solver/auto_driver.h"

namespace sudoku {

// The main window: owner of the game state, of the engine and of the board, and the place where the parts of
// play meet. Storage, assistant and about box reach the game through it. It stays where it was made: its
// parts hold references to it.
class FRMSudoku {
 public:
  FRMSudoku(Systeme& systeme, GameState& jeu, Fenetre& fenetre, Assistant& assistant);
  FRMSudoku(const FRMSudoku&) = delete;
  FRMSudoku& operator=(const FRMSudoku&) = delete;

  // Names the neighbours; before Form_Load.
  void Relie(Stockage& stockage, APropos& aPropos);

  // The start of the program: mode 0, menus, window above the others; then loads the file that the command
  // line names, if it isn't empty.
  void Form_Load(TexteVue ligneDeCommande);

  GameState& Jeu() { return jeu_; }
  const GameState& Jeu() const { return jeu_; }
  Fenetre& LaFenetre() { return fenetre_; }
  Systeme& LeSysteme() { return systeme_; }
  Evaluateur& Moteur() { return moteur_; }
  AutoDriver& Pilote() { return pilote_; }
  BoardDisplay& Affichage() { return affichage_; }
  Assistant& LAssistant() { return assistant_; }
  Stockage& LeStockage() { return *stockage_; }
  Chrono& LeChrono() { return chrono_; }

  GameFlow& Deroulement() { return deroulement_; }
  void Affiche() { affichage_.Affiche(); }
  void SetMenus() { affichage_.SetMenus(); }
  void OuvreFichier(TexteVue chemin) { commandes_.OuvreFichier(chemin); }
  void Deplacement(int KeyCode) { saisie_.Deplacement(KeyCode); }

 private:
  void BrancheMenus();
  void BrancheEvenements();

  Systeme& systeme_;
  GameState& jeu_;
  Fenetre& fenetre_;
  Assistant& assistant_;
  Stockage* stockage_ = nullptr;
  APropos* aPropos_ = nullptr;

  Evaluateur moteur_;
  BoardDisplay affichage_;
  AutoDriver pilote_;
  Chrono chrono_;
  GameFlow deroulement_;
  CellInput saisie_;
  Commands commandes_;
};

}  // namespace sudoku
