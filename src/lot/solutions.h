#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "grid/geometrie.h"

namespace sudoku::lot {

// Counts the solutions of a grid up to two, in a way that has nothing in common with the engine: as an exact
// cover. Every cell and every symbol of every unit is to be covered exactly once; a symbol in a cell covers
// four of these. What has the fewest ways to be covered is tried first.
class CompteurSolutions {
 public:
  // `donnees`: by cell (element 0 unused) a symbol from 0 to N-1, or -1. Result: 0, 1, or 2 for more.
  int Compte(const Geometrie& geometrie, std::span<const int> donnees);
  // The first solution found, by cell as above.
  const std::vector<int>& Solution() const { return solution_; }

 private:
  // A node of the matrix: a condition that a symbol in a cell covers. The four nodes of a choice stand side
  // by side. Nodes below `conditions_` are heads of columns.
  struct Noeud {
    std::int32_t haut, bas, colonne;
  };
  struct Tete {
    std::int32_t gauche, droite, taille;
  };

  bool Prepare(std::span<const int> donnees);
  bool PlaceDonnees(std::span<const int> donnees);
  void AjouteChoix(int cellule, int symbole);
  int Condition(int k, int cellule, int symbole) const;
  int Cherche();
  void Note();
  std::int32_t PlusContrainte() const;
  void Couvre(std::int32_t colonne);
  void Decouvre(std::int32_t colonne);
  void Prend(std::int32_t noeud);
  void Rend(std::int32_t noeud);
  std::int32_t PremierDuChoix(std::int32_t noeud) const { return noeud - (noeud - conditions_ - 1) % 4; }

  const Geometrie* geo_ = nullptr;
  std::int32_t conditions_ =
      0;  // their heads are 1 to conditions_; head 0 leads the list of those not yet covered
  std::vector<Noeud> noeuds_;
  std::vector<Tete> tetes_;
  std::vector<std::int32_t> choix_;  // by choice: cell * N + symbol
  std::vector<char> couvertes_;      // by the givens
  std::vector<std::int32_t> pile_;   // nodes taken
  std::vector<int> solution_;
};

}  // namespace sudoku::lot
