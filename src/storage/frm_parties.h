#pragma once

#include "grid/game_state.h"
#include "platform/systeme.h"

namespace sudoku {

// The library window. The mode tells it what is wanted: in kSauvePartie the user names a new game or picks
// the one to replace, in kChargePartie the one to load. Its answer is VmPartie, and a new entry in VgParties.
// It can't be cancelled. Made for one showing.
class FRMParties {
 public:
  FRMParties(GameState& jeu, Systeme& systeme, Fenetre& proprietaire);
  FRMParties(const FRMParties&) = delete;
  FRMParties& operator=(const FRMParties&) = delete;

  // Its table, without handlers.
  static Fenetre Table(Fenetre& proprietaire);

  // Shows it and comes back when it has closed.
  void Montre();

 private:
  Element& Trouve(const char* nom) { return *fenetre_.Trouve(nom); }
  bool Charge() const;
  // Fills the lists. In LstLoad position p is entry p of the library, 0 the grid without one; in LstSave
  // position p is entry p + 1.
  void Init();
  // Takes the user's choice and closes. Reports error 9, and stays open, where the choice is beyond what
  // VmPartie can count.
  void Valide();
  // Deletes the selected game from the library, after a question.
  void DelPartie();
  void SauveSous(int position);

  GameState& jeu_;
  Systeme& systeme_;
  Fenetre fenetre_;
  Element& LstLoad_;
  Element& LstSave_;
};

}  // namespace sudoku
