#pragma once

#include "play/board_display.h"
#include "play/voisins.h"
#include "solver/auto_driver.h"

namespace sudoku {

// The assistant window: marks the board by its options, describes the selected cell, shows the solution while
// its button is held. It changes no cell. Closing only hides it, so its boxes keep their state for the run.
class FRMHelp : public Assistant {
 public:
  explicit FRMHelp(Plateau& plateau);
  FRMHelp(const FRMHelp&) = delete;
  FRMHelp& operator=(const FRMHelp&) = delete;

  // What its options, its button and its closing do; once, before the window is shown.
  void Branche(GameState& jeu, AutoDriver& pilote, BoardDisplay& affichage);

  Fenetre& LaFenetre() override { return fenetre_; }
  bool ChkLightSur() const override { return ChkLightSur_.Value != 0; }
  bool ChkLightPoss() const override { return ChkLightPoss_.Value != 0; }
  bool ChkForeBlue() const override { return ChkForeBlue_.Value != 0; }
  bool ChkForeRed() const override { return ChkForeRed_.Value != 0; }
  void Infos(const Grille& VpGrille, int VpPos, bool VpInit) override;
  void OubliePosition() override { VmPos = 0; }

 private:
  Element& Trouve(const char* nom) { return *fenetre_.Trouve(nom); }
  void Surligne();

  Plateau& plateau_;
  Fenetre fenetre_;
  Element& ChkLightSur_;
  Element& ChkLightPoss_;
  Element& ChkForeBlue_;
  Element& ChkForeRed_;
  Element& ChkListPoss_;
  Element& ChkRep_;
  Element& ChkTips_;
  Element& FrmCase_;
  Element& TxtListPoss_;
  Element& TxtRep_;
  Element& TxtTips_;
  std::int32_t VmPos = 0;  // the cell whose box is highlighted, 0 for none
};

}  // namespace sudoku
