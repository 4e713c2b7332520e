#pragma once

#include <cstdint>
#include <vector>

#include "engine/masque.h"

namespace sudoku::SUDOKU_MOTEUR {

// Counts how often each mask of a short list occurs: a table of open addresses, emptied in one step.
template <int W>
class CompteurMasques {
 public:
  // For lists of up to n masks.
  void Dimensionne(int n) {
    std::size_t taille = 4;
    while (taille < 2 * static_cast<std::size_t>(n)) taille *= 2;
    entrees_.assign(taille, Entree{});
    tour_ = 0;
  }
  void Vide() { ++tour_; }
  // Counts `masque` (with a second number that must be equal too) once more and gives the count.
  int Ajoute(const Masque<W>& masque, int second = 0) {
    const std::size_t fin = entrees_.size() - 1;
    std::size_t i = static_cast<std::size_t>(masque.Hache()) & fin;
    for (;; i = (i + 1) & fin) {
      Entree& e = entrees_[i];
      if (e.tour != tour_) {
        e = {masque, tour_, second, 1};
        return 1;
      }
      if (e.masque == masque && e.second == second) return ++e.compte;
    }
  }

 private:
  struct Entree {
    Masque<W> masque;
    std::uint64_t tour = 0;
    int second = 0;
    int compte = 0;
  };
  std::vector<Entree> entrees_;
  std::uint64_t tour_ = 0;
};

}  // namespace sudoku::SUDOKU_MOTEUR
