#pragma once

#include <cstdint>
#include <memory>

#include "engine/evaluation.h"
#include "grid/game_state.h"
#include "solver/suppositions.h"
#include "solver/travail_grille.h"
#include "solver/travail_noyau.h"

namespace sudoku {

// What automatic play asks of the board.
class PlateauAuto {
 public:
  virtual ~PlateauAuto() = default;
  // Redraws the board from VmGrille, or from VmGrilleEtat while VgSilence is True.
  virtual void Affiche() = 0;
  // A message box with an OK button; comes back when it is answered.
  virtual void Message(TexteVue texte) = 0;
};

// What is read of the grid that a run leaves.
enum class Lecture {
  kTout,      // every field, and the player's grid whenever a box is open
  kContenus,  // contents and Etat alone, after the run
};

// What a run did, as its final message and its boxes say.
struct Comptes {
  std::uint64_t faites = 0;    // suppositions, and those of them that were refuted; 0 where the final message
  std::uint64_t refutees = 0;  // has no counts, since the grid wasn't solved
  std::uint64_t retours = 0;   // boxes "Retour arrière"
};

// Automatic play, the one entry to the solver. Works on the live grid with messages (VgSilence False) or
// silently on a copy, VmGrilleEtat (VgSilence True). Every run ends, whatever the grid; VgEtat is 2 after it.
// An `auditeur` hears every turn that fills cells, in every solve pass, and every supposition and refutation;
// the result is the same.
class AutoDriver {
 public:
  AutoDriver(GameState& jeu, Evaluateur& evaluateur, PlateauAuto& plateau, Lecture lecture = Lecture::kTout,
             Auditeur* auditeur = nullptr);

  // VpReset: forget that VmGrilleEtat is complete (otherwise a complete one is simply shown, without a
  // message). VpGuess: suppose symbols where deduction stops.
  void JeuAuto(bool VpReset, bool VpGuess);

  // Of the run that ended last.
  const Comptes& DerniersComptes() const { return comptes_; }
  // Turns of the search that runs, or ran last: a solve pass each, and a supposition.
  std::uint64_t Tours() const { return tours_; }

 private:
  Travail& TravailPour(const Grille& grille);
  std::int16_t Cherche(Travail& travail, bool VpGuess);
  bool GuessResult(std::int16_t VpResultat, Travail& travail);
  bool Refute();
  bool Guess(Travail& travail);
  void DitSuppose();
  void Rejoue(Travail& travail);
  TexteVue MessageFinal(std::int16_t VlVerdict);

  GameState& jeu_;
  Evaluateur& evaluateur_;
  PlateauAuto& plateau_;
  Lecture lecture_;
  Auditeur* auditeur_;
  TravailGrille general_;
  std::unique_ptr<Travail> noyau_;  // for grids of side coteNoyau_
  int coteNoyau_ = 0;
  Suppositions VlSupp_;
  Essai Possible_;
  Texte message_;
  Comptes comptes_;
  std::uint64_t tours_ = 0;
  bool rejouee_ = true;  // the last solve pass began on nothing but the base and the live suppositions
};

}  // namespace sudoku
