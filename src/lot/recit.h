#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "grid/grille.h"
#include "lot/appel.h"
#include "solver/auto_driver.h"

namespace sudoku::lot {

// Where in the run a step stands. Grids and steps count from 1; `niveau` levels of suppositions are open, for
// a refutation those before it.
struct Etape {
  std::int64_t grille = 0;
  std::int64_t etape = 0;
  std::size_t niveau = 0;
};

// How a run ended.
struct Bilan {
  std::string_view message;
  Comptes comptes;
};

// Writes the road from a grid to its solution in one form, appending to `s`. Of one grid: Commence, its steps
// in their order, Finit.
class Recit {
 public:
  virtual ~Recit() = default;
  // The grid as it was read, from `champ`.
  virtual void Commence(std::int64_t grille, const Grille& VmGrille, std::string_view champ,
                        std::string& s) = 0;
  // See Auditeur::Remplit.
  virtual void Remplit(const Etape& etape, const Grille& grille, int verdict,
                       std::span<const Remplissage> cases, std::string& s) = 0;
  // See Auditeur::Reprend: no step.
  virtual void Reprend(const Etape& etape, std::string& s) = 0;
  virtual void Suppose(const Etape& etape, int cellule, Code symbole, std::string& s) = 0;
  virtual void Refute(const Etape& etape, int cellule, Code symbole, std::string& s) = 0;
  // The grid as the run leaves it.
  virtual void Finit(std::int64_t grille, const Grille& VmGrille, const Bilan& bilan, std::string& s) = 0;
};

std::unique_ptr<Recit> FabriqueRecitJson();
std::unique_ptr<Recit> FabriqueRecitTexte();
// A page, between PageAvant and PageApres (html.h); a grid is written when it ends.
std::unique_ptr<Recit> FabriqueRecitHtml();

}  // namespace sudoku::lot
