#include "solver/travail_grille.h"

#include <algorithm>
#include <utility>

namespace sudoku {
namespace {

std::size_t At(int i) {
  return static_cast<std::size_t>(i);
}

}  // namespace

void TravailGrille::Commence(const Grille& grille) {
  travail_ = grille;
  detachee_ = false;
  baseProuvee_ = false;
}

Grille TravailGrille::Rend(bool /*contenus*/) {
  return std::exchange(travail_, Grille());
}

void TravailGrille::Charge(int cellule, Code symbole, std::int32_t etat) {
  travail_(cellule).Load(travail_.Donnees().alphabet->TexteDe(symbole), etat);
}

// A proved symbol replaces whatever the cell holds; one that rests on unproved entries goes into empty cells
// only. It ends: a cell is written at most twice, once in each way and in that order.
std::int16_t TravailGrille::JeuSolve(bool /*possibles*/) {
  const Bloc& bloc = travail_.Donnees();
  for (;;) {
    const std::int16_t verdict = moteur_.Evaluation(travail_, 2, baseProuvee_);
    if (verdict == -1) return verdict;
    bool VlFini = true;
    for (int i = 1; i <= travail_.Borne(); ++i) {
      const Code saisie = bloc.saisie[At(i)];
      if (bloc.sure[At(i)] != kVide && !bloc.alphabet->Egaux(saisie, bloc.sure[At(i)])) {
        travail_(i).Valeur(travail_(i).SolutionSure());
        VlFini = false;
      } else if (saisie == kVide && bloc.poss[At(i)] != kVide) {
        travail_(i).Valeur(travail_(i).SolutionPoss());
        VlFini = false;
      }
    }
    if (VlFini) return verdict;
  }
}

void TravailGrille::PrendBase() {
  GrilleCopy(travail_, base_);
  const Bloc& bloc = base_.Donnees();
  // A content of several symbols is open to suppositions, and its cell then counts no more in the first pass.
  baseProuvee_ =
      std::ranges::none_of(bloc.etat, [](std::int32_t etat) { return etat > kProuvee; }) &&
      std::ranges::none_of(bloc.saisie, [&bloc](Code saisie) { return bloc.alphabet->Long(saisie); });
}

void TravailGrille::Detache() {
  if (!std::exchange(detachee_, true)) GrilleCopy(base_, travail_);
}

void TravailGrille::Suppose(int cellule, Code symbole) {
  travail_(cellule).Valeur(travail_.Donnees().alphabet->TexteDe(symbole));
}

int TravailGrille::CelluleOuverte(int cellule, Essai& Possible) {
  for (int i = cellule + 1; i <= travail_.Borne(); ++i) {
    const Texte candidats = travail_(i).Possible();
    if (candidats.size() < 2) continue;
    Possible.clear();
    for (const char32_t& symbole : candidats) {
      Possible.push_back(travail_.Donnees().alphabet->Numero(TexteVue(&symbole, 1)));
    }
    return i;
  }
  return 0;
}

std::int16_t TravailGrille::Acheve() {
  for (int i = 1; i <= travail_.Borne(); ++i) {
    if (base_.Donnees().saisie[At(i)] == kVide || travail_(i).Etat() != kErronee) continue;
    const Texte Possible = travail_(i).Possible();
    if (Possible.size() == 1) travail_(i).Valeur(Possible);
  }
  return JeuSolve(true);
}

}  // namespace sudoku
