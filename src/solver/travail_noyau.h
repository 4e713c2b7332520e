#pragma once

#include "solver/noyau.h"
#include "solver/travail_grille.h"

namespace sudoku {

// A run on a grid of side 9 without unproved entries, on the kernel of noyau.h. The player's grid is brought
// up to date when the run ends or somebody looks.
class Travail9 : public Travail {
 public:
  explicit Travail9(Evaluateur& moteur)
      : moteur_(moteur), general_(moteur), jeuSolve_(VersionsJeuSolve9().front()) {}

  // The kernel can do this grid: nine different symbols, in every cell one of them or nothing, Etat 0 or 1.
  static bool Convient(const Grille& grille);

  void Commence(const Grille& grille);
  // The grid as the run leaves it. Evaluated, unless `contenus` says that its contents alone will be read.
  Grille Rend(bool contenus);

  std::int16_t JeuSolve(bool possibles) override;
  void PrendBase() override;
  void Reconstruit() override;
  void Detache() override { detachee_ = true; }
  void Suppose(int cellule, Code symbole) override;
  int CelluleOuverte(int cellule, Essai& Possible) override;
  bool SymboleEnDouble() override;
  std::int16_t Acheve() override;
  void Montre() override;

 private:
  void Ecrit(Grille& grille) const;
  // The base's contents go to the player's grid.
  void EcritBase();
  void PasseAuGeneral();

  Evaluateur& moteur_;
  TravailGrille general_;  // takes over an attempt in which a wrong entry comes up
  bool auGeneral_ = false;
  JeuSolve9 jeuSolve_;
  Grille grille_;  // the player's: what was given, then the base
  Grille copie_;   // what the last attempt is delivered in
  bool detachee_ = false;
  bool montree_ = false;
  bool base_ = false;  // the base has been taken
  Cases9 casesBase_;
  Cases9 cases_;
  Passe9 passe_;
  std::uint16_t candidatsBase_[81];
  const std::uint16_t* candidats_ = nullptr;  // of `cases_`, as the last evaluation or the base has them
};

}  // namespace sudoku
