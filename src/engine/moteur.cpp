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

std::unique_ptr<Moteur> ChoisitMoteur(int N) {
#if defined(SUDOKU_VERSIONS_X86)
  if (__builtin_cpu_supports("avx2") && __builtin_cpu_supports("bmi2") && __builtin_cpu_supports("popcnt")) {
    return moteur_avx2::Fabrique(N);
  }
#endif
  return moteur_base::Fabrique(N);
}

}  // namespace sudoku
