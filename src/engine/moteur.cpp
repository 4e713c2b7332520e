#include "engine/moteur.h"

#include "engine/processeur.h"

namespace sudoku {

namespace moteur_base {
std::unique_ptr<Moteur> Fabrique(int N);
}
#if defined(SUDOKU_VERSIONS_X86)
namespace moteur_avx2 {
std::unique_ptr<Moteur> Fabrique(int N);
}
namespace moteur_avx512 {
std::unique_ptr<Moteur> Fabrique(int N);
}
#endif

std::vector<FaitMoteur> VersionsMoteur() {
  std::vector<FaitMoteur> versions;
#if defined(SUDOKU_VERSIONS_X86)
  if (MeilleuresInstructions() >= Instructions::kAvx512) versions.push_back(moteur_avx512::Fabrique);
  if (MeilleuresInstructions() >= Instructions::kAvx2) versions.push_back(moteur_avx2::Fabrique);
#endif
  versions.push_back(moteur_base::Fabrique);
  return versions;
}

}  // namespace sudoku
