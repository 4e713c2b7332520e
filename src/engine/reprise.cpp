#include "engine/reprise.h"

#include <algorithm>
#include <bit>
#include <span>

namespace sudoku {
std::int32_t Reprise::Suit(Grille& grille, Revisions& revisions) {
  bloc_ = &grille.Donnees();
  if (!Commence()) return kReevaluer;
  // The cells before the one that changed would be visited for nothing.
  mot_ = Rang(revisions.cellule / 64);
  aVisiter_.assign((bloc_->etat.size() + 63) / 64, ~std::uint64_t{0});
  std::fill_n(aVisiter_.begin(), mot_, 0);
  aVisiter_[mot_] &= ~std::uint64_t{0} << (revisions.cellule % 64);
  for (bool change = true;;) {
    if (change && bloc_->etat[Rang(revisions.cellule)] == kProuvee && !Prouve(revisions.cellule))
      return kReevaluer;
    const int cellule = Prochaine();
    if (cellule > grille.Borne()) return GrilleCheck(grille, revisions);
    const Visite visite = VisiteCase(*bloc_, cellule, revisions);
    if (visite == Visite::kSansCandidat) return -1;
    change = visite == Visite::kChange;
    if (!change) aVisiter_[Rang(cellule / 64)] &= ~(std::uint64_t{1} << (cellule % 64));
  }
}

// False where contents of several symbols count: what they leave depends on the order of all.
bool Reprise::Commence() {
  for (const Code code : bloc_->possibleTexte) {
    if (bloc_->alphabet->Long(code)) return false;
  }
  aRemplir_ = 0;
  for (std::size_t i = 1; i < bloc_->etat.size(); ++i)
    aRemplir_ += bloc_->saisie[i] == kVide && bloc_->sure[i] != kVide ? 1 : 0;
  return true;
}

// The content of the cell counts from now on. False: no cell is left to fill, so that there is more to
// deduce.
bool Reprise::Prouve(int cellule) {
  const Code code = bloc_->saisie[Rang(cellule)];
  const int position = bloc_->alphabet->Position(code);
  bloc_->possibleTexte[Rang(cellule)] = code;
  bloc_->sure[Rang(cellule)] = code;
  std::fill_n(&bloc_->candidats[Rang(cellule * bloc_->mots)], bloc_->mots, 0);
  for (int type = kColonne; type <= kCarre; ++type) {
    for (const int autre : bloc_->geometrie->Serie(type, bloc_->geometrie->Unite(type, cellule))) {
      if (bloc_->possibleTexte[Rang(autre)] == kVide) Retire(autre, position);
    }
  }
  return aRemplir_ > 0;
}

// An open cell loses the symbol of this position.
void Reprise::Retire(int cellule, int position) {
  if (!bloc_->Candidat(cellule, position)) return;
  const std::span mots(&bloc_->candidats[Rang(cellule * bloc_->mots)], Rang(bloc_->mots));
  for (const int egale : bloc_->alphabet->Egales(position))
    mots[Rang(egale / 64)] &= ~(std::uint64_t{1} << (egale % 64));
  int compte = 0;
  int premier = 0;
  for (int m = bloc_->mots; m-- > 0;) {
    compte += std::popcount(mots[Rang(m)]);
    if (mots[Rang(m)] != 0) premier = 64 * m + std::countr_zero(mots[Rang(m)]);
  }
  NoteSolution(cellule, compte == 1 ? premier : kVide);
  aVisiter_[Rang(cellule / 64)] |= std::uint64_t{1} << (cellule % 64);
  mot_ = std::min(mot_, Rang(cellule / 64));
}

void Reprise::NoteSolution(int cellule, Code solution) {
  Code& sure = bloc_->sure[Rang(cellule)];
  if (bloc_->saisie[Rang(cellule)] == kVide)
    aRemplir_ += static_cast<int>(solution != kVide) - static_cast<int>(sure != kVide);
  sure = solution;
}

int Reprise::Prochaine() {
  while (mot_ < aVisiter_.size() && aVisiter_[mot_] == 0) ++mot_;
  const int premiere = static_cast<int>(64 * mot_);
  return mot_ == aVisiter_.size() ? premiere : premiere + std::countr_zero(aVisiter_[mot_]);
}

}  // namespace sudoku
