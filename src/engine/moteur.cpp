#include "engine/moteur.h"

#include "engine/processeur.h"

namespace sudoku {

namespace version_base {
std::unique_ptr<Moteur> Fabrique(int N);
}
#if defined(SUDOKU_VERSION_AVX2)
namespace version_avx2 {
std::unique_ptr<Moteur> Fabrique(int N);
}
#endif
#if defined(SUDOKU_VERSION_AVX512)
namespace version_avx512 {
std::unique_ptr<Moteur> Fabrique(int N);
}
#endif

std::vector<FabriqueMoteur> VersionsMoteur() {
  std::vector<FabriqueMoteur> versions;
#if defined(SUDOKU_VERSION_AVX512)
  if (MeilleuresInstructions() >= Instructions::kAvx512) versions.push_back(version_avx512::Fabrique);
#endif
#if defined(SUDOKU_VERSION_AVX2)
  if (MeilleuresInstructions() >= Instructions::kAvx2) versions.push_back(version_avx2::Fabrique);
#endif
  versions.push_back(version_base::Fabrique);
  return versions;
}

}  // namespace sudoku
