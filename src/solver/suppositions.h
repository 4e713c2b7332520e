#pragma once

#include <cstdint>
#include <vector>

#include "grid/alphabet.h"

namespace sudoku {

// The candidates of a cell, as numbers of the grid's alphabet, in the order in which they are tried.
using Essai = std::vector<Code>;

// One level of the search: a symbol supposed for a cell. The candidates are tried in the order of Possible,
// so that those refuted so far, `refutees` of them, are its beginning, and the one supposed now comes next.
struct TSupposition {
  std::int16_t Index = 0;
  Essai Possible;  // the cell's candidates when the level was opened, two or more; never changed afterwards
  std::size_t refutees = 0;
  bool vivante = false;  // a candidate is supposed now

  // The candidate to suppose: the first that isn't refuted.
  Code Valeur() const { return Possible[refutees]; }
};

// The open levels of one run, their Index ascending, and the count of what closed levels refuted.
class Suppositions {
 public:
  void Efface() {
    ouverts_ = 0;
    refuteesFermees_ = 0;
  }
  std::size_t Niveaux() const { return ouverts_; }
  // Level i, from 1 to Niveaux().
  const TSupposition& operator[](std::size_t i) const { return niveaux_[i - 1]; }
  TSupposition& Dernier() { return niveaux_[ouverts_ - 1]; }

  // A new level with its first candidate supposed.
  void Ouvre(std::int16_t Index, const Essai& Possible) {
    if (ouverts_ == niveaux_.size()) niveaux_.emplace_back();
    TSupposition& niveau = niveaux_[ouverts_++];
    niveau.Index = Index;
    niveau.Possible = Possible;
    niveau.refutees = 0;
    niveau.vivante = true;
  }
  // The candidate of the last level is wrong. False if it has none left.
  bool Refute() {
    TSupposition& niveau = Dernier();
    if (niveau.vivante) ++niveau.refutees;
    niveau.vivante = false;
    return niveau.refutees < niveau.Possible.size();
  }
  // Takes the last level away; its refuted candidates stay counted.
  void Ferme() {
    refuteesFermees_ += Dernier().refutees;
    --ouverts_;
  }

  // Suppositions made in the run, and those refuted.
  std::uint64_t Faites() const {
    std::uint64_t somme = Refutees();
    for (std::size_t i = 1; i <= ouverts_; ++i) somme += (*this)[i].vivante ? 1U : 0U;
    return somme;
  }
  std::uint64_t Refutees() const {
    std::uint64_t somme = refuteesFermees_;
    for (std::size_t i = 1; i <= ouverts_; ++i) somme += (*this)[i].refutees;
    return somme;
  }

 private:
  std::vector<TSupposition> niveaux_;  // those above the open ones keep their memory for the next
  std::size_t ouverts_ = 0;
  std::uint64_t refuteesFermees_ = 0;
};

}  // namespace sudoku
