#pragma once

#include <cstdint>
#include <vector>

#include "engine/masque.h"

namespace sudoku::SUDOKU_MOTEUR {

// Finds the sets in a list of masks: as many equal masks as the list asks for these. A table of open
// addresses that is emptied in one step.
template <int W>
class CompteurMasques {
 public:
  // For lists of up to n masks.
  void Dimensionne(int n) {
    std::size_t taille = 4;
    while (taille < 2 * At(n)) taille *= 2;
    entrees_.assign(taille, Entree{});
    tour_ = 0;
    Vide();
  }
  void Vide() {
    debuts_.clear();
    derniere_ = nullptr;
    if (++tour_ != 0) return;
    entrees_.assign(entrees_.size(), Entree{});
    tour_ = 1;
  }
  // The mask at place `rang` of the list, of which `voulu` make a set. Places descend from call to call.
  void Ajoute(int rang, const Masque<W>& masque, int voulu) {
    Entree& e = Trouve(masque, voulu);
    derniere_ = &e;
    if (++e.compte == voulu) debuts_.push_back(rang);
  }
  // The places at which sets begin, when the masks before them are left out; descending.
  const std::vector<int>& Debuts() const { return debuts_; }

 private:
  struct Entree {
    std::uint32_t tour = 0;
    std::int32_t voulu = 0;
    std::int32_t compte = 0;
    Masque<W> masque;
  };

  static bool Meme(const Entree& e, const Masque<W>& masque, int voulu) {
    return e.voulu == voulu && e.masque == masque;
  }
  Entree& Trouve(const Masque<W>& masque, int voulu) {
    // Equal masks often follow each other.
    if (derniere_ != nullptr && Meme(*derniere_, masque, voulu)) return *derniere_;
    const std::size_t fin = entrees_.size() - 1;
    std::size_t i = static_cast<std::size_t>(masque.Hache()) & fin;
    while (entrees_[i].tour == tour_ && !Meme(entrees_[i], masque, voulu)) i = (i + 1) & fin;
    if (entrees_[i].tour != tour_) entrees_[i] = {tour_, voulu, 0, masque};
    return entrees_[i];
  }

  std::vector<Entree> entrees_;
  std::vector<int> debuts_;
  Entree* derniere_ = nullptr;  // of the last mask counted
  std::uint32_t tour_ = 0;
};

}  // namespace sudoku::SUDOKU_MOTEUR
