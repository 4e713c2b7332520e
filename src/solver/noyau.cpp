#include "solver/noyau.h"

#include "engine/processeur.h"

namespace sudoku {

namespace noyau_base {
void JeuSolve(Cases9& cases, Appui appui, Passe9& passe);
}
#if defined(SUDOKU_VERSIONS_X86)
namespace noyau_avx2 {
void JeuSolve(Cases9& cases, Appui appui, Passe9& passe);
}
namespace noyau_avx512 {
void JeuSolve(Cases9& cases, Appui appui, Passe9& passe);
}
#endif

std::vector<JeuSolve9> VersionsJeuSolve9() {
  std::vector<JeuSolve9> versions;
#if defined(SUDOKU_VERSIONS_X86)
  if (MeilleuresInstructions() >= Instructions::kAvx512) versions.push_back(noyau_avx512::JeuSolve);
  if (MeilleuresInstructions() >= Instructions::kAvx2) versions.push_back(noyau_avx2::JeuSolve);
#endif
  versions.push_back(noyau_base::JeuSolve);
  return versions;
}

}  // namespace sudoku
