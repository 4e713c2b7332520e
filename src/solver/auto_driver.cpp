#include "solver/auto_driver.h"

namespace sudoku {
namespace {

std::size_t At(int i) { return static_cast<std::size_t>(i); }

constexpr std::int16_t kInsoluble = -1;
constexpr std::int16_t kNonResolu = 1;  // any positive verdict

}  // namespace

AutoDriver::AutoDriver(GameState& jeu, Evaluateur& moteur, PlateauAuto& plateau)
    : jeu_(jeu), moteur_(moteur), plateau_(plateau) {}

void AutoDriver::JeuAuto(bool VpReset, bool VpGuess) {
  if (VpReset) jeu_.VsResolu = false;
  if (jeu_.VsResolu) {
    if (!jeu_.VgSilence) jeu_.VmGrille = jeu_.VmGrilleEtat;
    plateau_.Affiche();
    return;
  }
  if (jeu_.VgSilence) GrilleCopy(jeu_.VmGrille, jeu_.VmGrilleEtat);
  // A loud run writes straight into the live cells until the first Guess.
  Grille VlTravail = jeu_.VgSilence ? jeu_.VmGrilleEtat : jeu_.VmGrille;
  const std::int16_t VlVerdict = Cherche(VlTravail, VpGuess);
  if (VlVerdict == 0) jeu_.VsResolu = true;
  if (jeu_.VgSilence) {
    jeu_.VgEtat = kJeu;
  } else {
    jeu_.VmGrille = VlTravail;
    plateau_.Message(MessageFinal(VlVerdict));
  }
  if (VlVerdict == 0) jeu_.VmGrilleEtat = VlTravail;
  plateau_.Affiche();
}

// Solve pass and supposition by turns. It ends: a turn opens a level (at most one a cell), or refutes for good a
// candidate of one, or, where no cell is left to suppose in, ends the run or refutes.
std::int16_t AutoDriver::Cherche(Grille& VlTravail, bool VpGuess) {
  VlSupp_.Vide();
  bool base = false;
  for (;;) {
    std::int16_t VlVerdict = JeuSolve(VlTravail);
    if (!base) GrilleCopy(VlTravail, VlBase_);
    base = true;
    // Two cells of a unit can get one symbol in one sweep, and no cell then lacks a candidate.
    if (VlVerdict == 0 && VlSupp_.Niveaux() > 0 && SymboleEnDouble(VlTravail)) VlVerdict = kInsoluble;
    if (GuessResult(VlVerdict) || !VpGuess) return VlVerdict;
    if (Guess(VlTravail)) continue;
    if (Acheve(VlTravail) == 0 && !SymboleEnDouble(VlTravail)) return 0;
    if (VlSupp_.Niveaux() == 0) return kNonResolu;
    if (GuessResult(kInsoluble)) return kInsoluble;
    Guess(VlTravail);
  }
}

// Carries the deductions into the grid until an evaluation leaves nothing to write. A proved symbol replaces
// whatever the cell holds; one that rests on unproved entries goes into empty cells only. It ends: a cell is
// written at most twice, once in each way and in that order.
std::int16_t AutoDriver::JeuSolve(Grille& VpGrille) {
  const Bloc& bloc = VpGrille.Donnees();
  for (;;) {
    const std::int16_t verdict = moteur_.Evaluation(VpGrille, 2);
    if (verdict == -1) return verdict;
    bool VlFini = true;
    for (int i = 1; i <= VpGrille.Borne(); ++i) {
      const Code saisie = bloc.saisie[At(i)];
      if (bloc.sure[At(i)] != kVide && !bloc.alphabet->Egaux(saisie, bloc.sure[At(i)])) {
        VpGrille(i).Valeur(VpGrille(i).SolutionSure());
        VlFini = false;
      } else if (saisie == kVide && bloc.poss[At(i)] != kVide) {
        VpGrille(i).Valeur(VpGrille(i).SolutionPoss());
        VlFini = false;
      }
    }
    if (VlFini) return verdict;
  }
}

// Judges a solve pass. True: the search is over. False: Guess is to be called.
bool AutoDriver::GuessResult(std::int16_t VpResultat) {
  if (VpResultat == 0) return true;
  if (VpResultat > 0) return false;
  while (VlSupp_.Niveaux() > 0) {
    if (VlSupp_.Refute()) return false;
    plateau_.Message(U"Retour arrière ! Procédure à vérifier");
    VlSupp_.Ferme();
  }
  return true;
}

// Rebuilds the grid from the base and the live suppositions, and makes the next one: a further candidate for a
// refuted level, or a new level on the first open cell behind the last. False: there is no such cell.
bool AutoDriver::Guess(Grille& VpGrille) {
  GrilleCopy(VlBase_, VpGrille);
  int debut = 0;
  if (VlSupp_.Niveaux() > 0) {
    for (std::size_t i = 1; i <= VlSupp_.Niveaux(); ++i) {
      if (VlSupp_[i].vivante) VpGrille(VlSupp_[i].Index).Valeur(VlSupp_[i].Valeur());
    }
    TSupposition& dernier = VlSupp_.Dernier();
    if (!dernier.vivante) {
      dernier.vivante = true;
      VpGrille(dernier.Index).Valeur(dernier.Valeur());
      return true;
    }
    JeuSolve(VpGrille);
    debut = dernier.Index;
  }
  for (int i = debut + 1; i <= VpGrille.Borne(); ++i) {
    const Texte Possible = VpGrille(i).Possible();
    if (Possible.size() < 2) continue;
    VlSupp_.Ouvre(static_cast<std::int16_t>(i), Possible);
    VpGrille(i).Valeur(VlSupp_.Dernier().Valeur());
    return true;
  }
  return false;
}

// Where no cell is left to suppose in: wrong entries of the player stand in cells that only unproved deductions
// fill, and no solve pass replaces them. They take the one candidate that is left to them.
std::int16_t AutoDriver::Acheve(Grille& VlTravail) {
  const Bloc& base = VlBase_.Donnees();
  for (int i = 1; i <= VlTravail.Borne(); ++i) {
    if (base.saisie[At(i)] == kVide || VlTravail(i).Etat() != kErronee) continue;
    const Texte Possible = VlTravail(i).Possible();
    if (Possible.size() == 1) VlTravail(i).Valeur(Possible);
  }
  return JeuSolve(VlTravail);
}

Texte AutoDriver::MessageFinal(std::int16_t VlVerdict) const {
  if (VlVerdict == kInsoluble) return U"Insoluble (état initial incorrect)";
  if (VlVerdict != 0) return U"Non résolu";
  if (VlSupp_.Faites() == 0) return U"Résolu sans supposition";
  return U"Résolu avec " + Decimal(static_cast<std::int64_t>(VlSupp_.Faites())) + U" supposition(s), dont " +
         Decimal(static_cast<std::int64_t>(VlSupp_.Refutees())) + U" erreur(s)";
}

}  // namespace sudoku
