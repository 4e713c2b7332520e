#include "lot/route.h"

#include <algorithm>

namespace sudoku::lot {

void Route::Commence(const Grille& depart, std::span<const int> solution) {
  solution_ = solution;
  alphabet_ = depart.Donnees().alphabet;
  depart_ = depart.Donnees().saisie;
  niveaux_.assign(1, {{}, true});
  juste_ = true;
}

bool Route::Juste(int cellule, Code symbole) const {
  return alphabet_->Position(symbole) == solution_[static_cast<std::size_t>(cellule)];
}

void Route::Remplit(const Grille&, int, std::span<const Remplissage> cases) {
  for (const Remplissage& r : cases) {
    if (niveaux_.size() == 1 && !Juste(r.Index, r.symbole)) juste_ = false;
    niveaux_.back().cases.push_back(r);
  }
}

void Route::Suppose(int cellule, Code symbole, std::size_t niveau) {
  juste_ = juste_ && niveau == niveaux_.size();
  const Remplissage posee{static_cast<std::int16_t>(cellule), symbole, false};
  niveaux_.push_back({{posee}, Juste(cellule, symbole)});
}

void Route::Refute(int, Code, std::size_t niveau) {
  juste_ =
      juste_ && niveau == niveaux_.size() - 1 && !std::ranges::all_of(niveaux_, &Niveau::suppositionJuste);
  niveaux_.pop_back();
}

bool Route::Mene(const Grille& resultat) const {
  std::vector<Code> tenus = depart_;
  for (const Niveau& niveau : niveaux_) {
    for (const Remplissage& r : niveau.cases) tenus[static_cast<std::size_t>(r.Index)] = r.symbole;
  }
  return tenus == resultat.Donnees().saisie;
}

}  // namespace sudoku::lot
