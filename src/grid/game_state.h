#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "grid/grille.h"
#include "text/texte.h"

namespace sudoku {

// VgEtat. Modes 3 and 5 to 7 exist only inside a procedure: an evaluation in two passes leaves 2, the others
// give the old mode back.
enum Mode : std::int32_t {
  kSansGrille = 0,
  kSaisieGrille = 1,  // the givens are typed
  kJeu = 2,
  kSecondePasse = 3,  // within an evaluation: unproved entries count
  kTermine = 4,
  kAffichage = 5,    // the board is being rewritten: change events do nothing
  kSauvePartie = 6,  // FRMParties asks for a name
  kChargePartie = 7  // FRMParties asks for a game
};

// The content of a cell counts for the engine from Etat kDonnee up to this one.
constexpr std::int32_t DernierEtatQuiCompte(std::int32_t mode) {
  return mode == kSecondePasse ? kPossible : kProuvee;
}

// A library entry: a game on the file's grid. Grille is a state string, two characters a cell: the content (a
// blank where empty) and Etat as a digit.
struct ClsPartie {
  Texte Nom;
  Texte Grille;
};

// A best score; Temps in days.
struct TypScore {
  Texte Nom;
  double Temps = 0;
};

// A moment: milliseconds since 1970-01-01 00:00:00 of the local calendar.
using Instant = std::int64_t;

// The whole state of one game. Two games can live in one process: nothing of a game is static.
struct GameState {
  std::int32_t VgEtat = kSansGrille;
  bool VgSilence = false;  // VmGrilleEtat stands in for VmGrille

  // Element 0 of both is never used; with it alone they are empty.
  std::vector<ClsPartie> VgParties = std::vector<ClsPartie>(1);
  std::vector<TypScore> VgScores = std::vector<TypScore>(1);

  std::int16_t VmPartie = 0;  // the library entry of the game; above 0 one, anything else none
  std::int16_t VmCase = 0;    // the cell that has the focus; 0 until one has had it
  std::int16_t VmTaille = 0;  // N
  Texte VmValeurs;            // the symbols
  Grille VmGrille;
  Grille VmGrilleEtat;    // the solved copy
  bool VsResolu = false;  // VmGrilleEtat is complete
  Instant VmDebut = 0;
  Instant VmFin = 0;
  Texte VmNom;  // path of the game file, empty without one

  // Shows a message box with an OK button and comes back when it is answered.
  std::function<void(TexteVue)> Message = [](TexteVue) {};
};

}  // namespace sudoku
