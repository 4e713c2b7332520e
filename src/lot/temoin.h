#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "grid/grille.h"

namespace sudoku::lot {

// Holds what an evaluation found against the only solution of the grid: every solution of a cell, every
// candidate that is gone, every sentence.
class Temoin {
 public:
  // `solution`: by cell a position of VmValeurs, the first of equal ones. `saisiesJustes`: the player's
  // unproved entries agree with it; otherwise what a pass that counts them finds is not looked at.
  Temoin(std::span<const int> solution, bool saisiesJustes);

  // Looks at the grid as an evaluation has left it.
  void Examine(const Grille& VpGrille, int verdict);

  // Candidates taken away by deductions, over all that was examined.
  std::int64_t Retraits() const { return retraits_; }
  std::int64_t Contradictions() const { return contradictions_; }
  // The first contradiction, in French.
  const std::string& Premiere() const { return premiere_; }

 private:
  bool SecondePasse() const;
  void NoteValeurs();
  void ExamineSolution(int cellule, Code code, const char* champ);
  void ExamineCandidats(int cellule);
  void ExamineFait(const Fait& fait);
  bool PhraseVraie(const Argument& a) const;
  bool Confine(const Argument& a, int symbole) const;
  bool MemesSymboles(const Argument& a) const;
  bool Perd(const Fait& fait, int symbole) const;
  void Contredit(int cellule, const std::string& quoi);

  // Set A or B of a deduction.
  bool Contient(std::uint32_t debut, int nombre) const;
  std::uint32_t MasqueB(const Argument& a) const;
  int Symbole(int position) const { return bloc_->alphabet->Premiere(position); }
  int Solution(int cellule) const { return solution_[static_cast<std::size_t>(cellule)]; }

  std::span<const int> solution_;
  bool saisiesJustes_;
  const Bloc* bloc_ = nullptr;
  std::vector<char> vus_[3];  // by type, (unit - 1) * N + symbol: a content that counts
  std::int64_t retraits_ = 0;
  std::int64_t contradictions_ = 0;
  std::string premiere_;
};

}  // namespace sudoku::lot
