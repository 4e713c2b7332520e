#include "engine/moteur.h"

namespace sudoku {

namespace moteur_base {
std::unique_ptr<Moteur> Fabrique(int N);
}
#if defined(SUDOKU_VERSIONS_X86)
namespace moteur_avx2 {
std::unique_ptr<Moteur> Fabrique(int N);
}
#endif

std::vector<FaitMoteur> VersionsMoteur() {
  std::vector<FaitMoteur> versions;
#if defined(SUDOKU_VERSIONS_X86)
  // Where bmi2 is, lzcnt is; clang 14 can't be asked for it.
  if (__builtin_cpu_supports("avx2") && __builtin_cpu_supports("bmi") && __builtin_cpu_supports("bmi2") &&
      __builtin_cpu_supports("popcnt")) {
    versions.push_back(moteur_avx2::Fabrique);
  }
#endif
  versions.push_back(moteur_base::Fabrique);
  return versions;
}

}  // namespace sudoku
