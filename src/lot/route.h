#pragma once

#include <memory>
#include <span>
#include <vector>

#include "grid/grille.h"
#include "solver/auditeur.h"

namespace sudoku::lot {

// Follows a run of the solver and holds it against the only solution of the grid.
class Route : public Auditeur {
 public:
  // `depart`: the grid that the run begins with, whose entries agree with the solution. `solution`: by cell a
  // position of VmValeurs, the first of equal ones; element 0 unused.
  void Commence(const Grille& depart, std::span<const int> solution);

  // So far nothing that rests on no supposition has contradicted the solution, and no refutation has taken
  // it.
  bool Juste() const { return juste_; }
  // What stands at level 0 and at the levels left open is what this grid, the result, holds.
  bool Mene(const Grille& resultat) const;

  void Remplit(const Grille& grille, int verdict, std::span<const Remplissage> cases) override;
  void Reprend() override {}
  void Suppose(int cellule, Code symbole, std::size_t niveau) override;
  void Refute(int cellule, Code symbole, std::size_t niveau) override;

 private:
  struct Niveau {
    std::vector<Remplissage> cases;
    bool suppositionJuste;
  };
  bool Juste(int cellule, Code symbole) const;

  std::span<const int> solution_;
  std::shared_ptr<const Alphabet> alphabet_;
  std::vector<Code> depart_;
  std::vector<Niveau> niveaux_;  // 0: what rests on no supposition
  bool juste_ = true;
};

}  // namespace sudoku::lot
