#pragma once

#include <vector>

#include "grid/grille.h"

namespace sudoku {

// The sentences on a cell, without line ends, in the order of the deductions: none after "Seule solution…",
// none that what stands there already holds.
std::vector<Texte> Phrases(const Grille& VpGrille, int cellule);

// The same for all cells of a grid, whose facts are sorted by cell once. The grid stays as it is meanwhile.
class Explicateur {
 public:
  explicit Explicateur(const Grille& VpGrille);
  std::vector<Texte> Phrases(int cellule) const;

 private:
  const Bloc& bloc_;
  std::vector<std::uint32_t> debuts_;  // by cell: where its facts begin in `faits_`; one more for the end
  std::vector<Fait> faits_;
};

struct UniteNommee {
  TypeUnite type;
  int numero;
};

// The units and the cells that the sentences on a cell speak of, added to the two lists.
void Nomme(const Grille& VpGrille, int cellule, std::vector<UniteNommee>& unites, std::vector<int>& cases);

// The sentences on a cell as one text, each ended by CR LF: the field Explications of a cell.
Texte Explications(const Grille& VpGrille, int cellule);

}  // namespace sudoku
