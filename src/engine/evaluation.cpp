#include "engine/evaluation.h"

#include <algorithm>

namespace sudoku {

Evaluateur::Evaluateur(GameState& jeu) : jeu_(jeu) {}

// A changed Etat changes what the deductions rest on: everything is worked out again, with two passes. It
// ends: an entry goes to 1 once and stays there; it goes from 3 to 2 at most N times, which GrilleCheck
// counts, and so from 2 to 3 at most N + 1 times. So the passes run no more often than 1 + 2N + 2 for each
// cell.
std::int16_t Evaluateur::Evaluation(Grille& VpGrille, int VpPasses, bool premiereConnue) {
  const Bloc& bloc = VpGrille.Donnees();
  if (cote_ != VpGrille.N()) moteur_ = VersionsMoteur().front()(cote_ = VpGrille.N());
  revisions_.levees.clear();
  for (int passes = VpPasses;; passes = 2) {
    const bool seconde =
        premiereConnue && passes == 2 && std::ranges::find(bloc.etat, kPossible) != bloc.etat.end();
    ++reprises_;
    const std::uint64_t tours = moteur_->Passes(jeu_, VpGrille, passes, seconde);
    tours_ += tours;
    std::int32_t verdict = GrilleCheck(VpGrille, revisions_);
    // Without a turn of deduction: the candidates of the first pass had a cell to fill.
    if (verdict == kReevaluer && passes == 2 && !seconde && tours == 0)
      verdict = reprise_.Suit(VpGrille, revisions_);
    if (passes == 2) jeu_.VgEtat = kJeu;
    if (verdict != kReevaluer) return static_cast<std::int16_t>(verdict);
  }
}

}  // namespace sudoku
