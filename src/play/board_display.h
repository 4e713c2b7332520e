#pragma once

#include "grid/game_state.h"
#include "platform/systeme.h"
#include "play/voisins.h"
#include "play/window_shell.h"
#include "solver/auto_driver.h"

namespace sudoku {

// Writes the game into the main window: the board from the cell records, the title line from file and
// library, which commands of the menu are enabled. The engine never comes here, and nothing is read back from
// the view.
class BoardDisplay : public PlateauAuto {
 public:
  BoardDisplay(GameState& jeu, Fenetre& fenetre, Systeme& systeme, Assistant& assistant);

  // Redraws the board whole: texts, colours, which boxes take typing. Shows VmGrilleEtat while VgSilence is
  // True, VmGrille otherwise; a grid without cells paints nothing. In mode 5 while it runs, so that the
  // change events it causes do nothing. With the assistant visible it adds its marks, and has the cell with
  // the focus described and highlighted anew.
  void Affiche() override;

  // The title line. A file name too short to lose an extension is reported and leaves the line as it was.
  void SetInfos();

  void SetMenus() { menus_.SetMenus(jeu_, assistant_.LaFenetre().Visible); }

  // Lays out boxes and frames for VmGrille and sizes window and labels. The clock line is shown, no box is
  // highlighted.
  void MetEnPlace();

  void Message(TexteVue texte) override { systeme_.Message(texte); }

 private:
  // The assistant's options that are in force.
  struct Marques {
    bool sure = false;
    bool poss = false;
    bool bleu = false;
    bool rouge = false;
  };
  static Marque MarqueDe(const Bloc& bloc, int i, const Marques& marques);
  void AfficheCases(const Grille& VlGrille, bool modifiable, const Marques& marques);
  // Place of a cell on the board: VpAxe 0 from the left, 1 from the top.
  Twips GetPos(int VpPos, int VpAxe) const;

  GameState& jeu_;
  Plateau& plateau_;
  Fenetre& fenetre_;
  Systeme& systeme_;
  Assistant& assistant_;
  Element& LblInfos_;
  Element& LblChrono_;
  MenusDuJeu menus_;
};

}  // namespace sudoku
