#pragma once

#include <vector>

#include "assistant/frm_help.h"
#include "play/cell_input.h"
#include "play/chrono.h"
#include "play/commands.h"
#include "play/game_flow.h"
#include "play/saisies.h"
#include "shell/about.h"
#include "shell/com_dlg.h"
#include "storage/stockage_du_jeu.h"

namespace sudoku {

// The whole game on one window system: owns the game and makes its parts, each with what it may touch. It
// stays where it was made. The window system must outlive it.
class Programme {
 public:
  explicit Programme(Systeme& systeme);
  ~Programme();
  Programme(const Programme&) = delete;
  Programme& operator=(const Programme&) = delete;

  // The start, with the command line as the system passes it: a path in double quotes, or nothing.
  void Demarre(TexteVue ligneDeCommande) { commandes_.Form_Load(ligneDeCommande); }

  GameState& Jeu() { return jeu_; }
  const GameState& Jeu() const { return jeu_; }
  Fenetre& Principale() { return principale_; }
  const Fenetre& Principale() const { return principale_; }
  Assistant& LAssistant() { return assistant_; }
  // The tables of the windows that come up and go, without handlers.
  std::vector<Fenetre> Modales();
  GameFlow& Deroulement() { return deroulement_; }
  Stockage& LeStockage() { return stockage_; }

 private:
  Systeme& systeme_;
  GameState jeu_;
  Fenetre principale_;
  FRMHelp assistant_;
  Evaluateur evaluateur_;
  BoardDisplay affichage_;
  AutoDriver solveur_;
  Chrono chrono_;
  Saisies saisies_;
  GameFlow deroulement_;
  ComDlg dialogue_;
  StockageDuJeu stockage_;
  AProposDuJeu aPropos_;
  CellInput saisie_;
  Commands commandes_;
};

}  // namespace sudoku
