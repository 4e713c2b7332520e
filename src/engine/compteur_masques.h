#pragma once

#include <cstdint>
#include <vector>

#include "engine/masque.h"

namespace sudoku::SUDOKU_MOTEUR {

// Counts how often each mask of a short list occurs. A table of open addresses that holds the places of the
// masks in the caller's own list, so that it stays small, and is emptied in one step.
template <int W>
class CompteurMasques {
 public:
  // For lists of up to n masks.
  void Dimensionne(int n) {
    std::size_t taille = 4;
    while (taille < 2 * At(n)) taille *= 2;
    entrees_.assign(taille, Entree{});
    tour_ = 0;
    derniere_ = nullptr;
  }
  void Vide() {
    derniere_ = nullptr;
    if (++tour_ != 0) return;
    entrees_.assign(entrees_.size(), Entree{});
    tour_ = 1;
  }
  // Counts the mask at place `rang` of the list once more and gives the count; `egal(autre)` tells whether
  // the one at the place `autre`, counted before, is equal to it.
  template <class F>
  int Ajoute(int rang, const Masque<W>& masque, F egal) {
    // Equal masks often follow each other.
    if (derniere_ != nullptr && egal(static_cast<int>(derniere_->rang))) return ++derniere_->compte;
    const std::size_t fin = entrees_.size() - 1;
    for (std::size_t i = static_cast<std::size_t>(masque.Hache()) & fin;; i = (i + 1) & fin) {
      Entree& e = entrees_[i];
      const bool neuve = e.tour != tour_;
      if (neuve) e = {tour_, static_cast<std::int16_t>(rang), 0};
      if (!neuve && !egal(static_cast<int>(e.rang))) continue;
      derniere_ = &e;
      return ++e.compte;
    }
  }

 private:
  struct Entree {
    std::uint32_t tour = 0;
    std::int16_t rang = 0;
    std::int16_t compte = 0;
  };
  std::vector<Entree> entrees_;
  Entree* derniere_ = nullptr;  // of the last mask counted
  std::uint32_t tour_ = 0;
};

}  // namespace sudoku::SUDOKU_MOTEUR
