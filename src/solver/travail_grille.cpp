#include "solver/travail_grille.h"

#include <algorithm>
#include <utility>

namespace sudoku {
namespace {

// A proved symbol replaces whatever the cell holds; one that rests on unproved entries goes into empty cells
// only.
bool EcritSure(const Bloc& bloc, int i) {
  const Code sure = bloc.sure[Rang(i)];
  const Code saisie = bloc.saisie[Rang(i)];
  return sure != kVide && sure != saisie && !bloc.alphabet->Egaux(saisie, sure);
}

bool EcritPoss(const Bloc& bloc, int i) {
  return bloc.saisie[Rang(i)] == kVide && bloc.poss[Rang(i)] != kVide;
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

// It ends: a cell is written at most twice, once in each way and in that order.
std::int16_t TravailGrille::JeuSolve(bool /*possibles*/) {
  const Bloc& bloc = travail_.Donnees();
  for (;;) {
    const std::int16_t verdict = Evalue();
    if (verdict == -1) return verdict;
    if (auditeur_ != nullptr) RaconteTour();
    bool VlFini = true;
    for (int i = 1; i <= travail_.Borne(); ++i) {
      if (EcritSure(bloc, i)) {
        travail_(i).Valeur(travail_(i).SolutionSure());
        VlFini = false;
      } else if (EcritPoss(bloc, i)) {
        travail_(i).Valeur(travail_(i).SolutionPoss());
        VlFini = false;
      }
    }
    if (VlFini) return verdict;
  }
}

// What JeuSolve is about to write: no write changes what another cell gets.
void TravailGrille::RaconteTour() {
  const Bloc& bloc = travail_.Donnees();
  for (int i = 1; i <= travail_.Borne(); ++i) {
    const bool sure = EcritSure(bloc, i);
    if (!sure && !EcritPoss(bloc, i)) continue;
    remplies_.push_back({static_cast<std::int16_t>(i), sure ? bloc.sure[Rang(i)] : bloc.poss[Rang(i)], sure});
  }
  Raconte();
}

void TravailGrille::Raconte() {
  if (!remplies_.empty()) auditeur_->Remplit(travail_, verdict_, remplies_);
  remplies_.clear();
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
  const auto cede = [this](int i) {
    return base_.Donnees().saisie[Rang(i)] != kVide && travail_(i).Etat() == kErronee &&
           travail_(i).Possible().size() == 1;
  };
  for (int i = 1; auditeur_ != nullptr && i <= travail_.Borne(); ++i) {
    const Bloc& bloc = travail_.Donnees();
    if (!cede(i)) continue;
    const Code symbole = bloc.alphabet->Numero(travail_(i).Possible());
    remplies_.push_back({static_cast<std::int16_t>(i), symbole, bloc.sure[Rang(i)] != kVide});
  }
  if (auditeur_ != nullptr) Raconte();
  for (int i = 1; i <= travail_.Borne(); ++i) {
    if (cede(i)) travail_(i).Valeur(travail_(i).Possible());
  }
  return JeuSolve(true);
}

}  // namespace sudoku
