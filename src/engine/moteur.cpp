#include "engine/moteur.h"

namespace sudoku {

namespace moteur_base {
std::unique_ptr<Moteur> Fabrique(int mots);
}
#if defined(SUDOKU_VERSIONS_X86)
namespace moteur_avx2 {
std::unique_ptr<Moteur> Fabrique(int mots);
}
#endif

std::unique_ptr<Moteur> ChoisitMoteur(int mots) {
#if defined(SUDOKU_VERSIONS_X86)
  if (__builtin_cpu_supports("avx2") && __builtin_cpu_supports("bmi2") && __builtin_cpu_supports("popcnt")) {
    return moteur_avx2::Fabrique(mots);
  }
#endif
  return moteur_base::Fabrique(mots);
}

}  // namespace sudoku
