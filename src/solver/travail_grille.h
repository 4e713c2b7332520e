#pragma once

#include <vector>

#include "engine/evaluation.h"
#include "solver/auditeur.h"
#include "solver/travail.h"

namespace sudoku {

// A run on any grid, cell by cell, with the engine. `auditeur`, where there is one, hears what is filled.
class TravailGrille : public Travail {
 public:
  explicit TravailGrille(Evaluateur& evaluateur, Auditeur* auditeur = nullptr)
      : evaluateur_(evaluateur), auditeur_(auditeur) {}

  void Commence(const Grille& grille) override;
  Grille Rend(bool contenus) override;

  std::int16_t JeuSolve(bool possibles) override;
  void PrendBase() override;
  void Reconstruit() override { GrilleCopy(base_, travail_); }
  void Detache() override;
  void Suppose(int cellule, Code symbole) override;
  bool CommeRejouee() const override { return false; }
  int CelluleOuverte(int cellule, Essai& Possible) override;
  bool SymboleEnDouble() override { return sudoku::SymboleEnDouble(travail_); }
  std::int16_t Acheve() override;
  void Montre() override {}

 private:
  std::int16_t Evalue() { return verdict_ = evaluateur_.Evaluation(travail_, 2, baseProuvee_); }
  void RaconteTour();
  void Raconte();

  Evaluateur& evaluateur_;
  Auditeur* auditeur_;
  std::int16_t verdict_ = 0;           // of the last evaluation
  std::vector<Remplissage> remplies_;  // what is told next
  Grille travail_;
  Grille base_;
  bool detachee_ = false;
  // The base holds no entry of the player that isn't proved, and suppositions go into empty cells only: the
  // first pass of every later evaluation would see what the base's own saw, and give nothing.
  bool baseProuvee_ = false;
};

}  // namespace sudoku
