#include "engine/processeur.h"

#include <algorithm>

namespace sudoku {
namespace {

Instructions DuProcesseur() {
#if defined(SUDOKU_VERSIONS_X86)
  // Where bmi2 is, lzcnt is; clang 14 can't be asked for it.
  const bool avx2 = __builtin_cpu_supports("avx2") && __builtin_cpu_supports("bmi") &&
                    __builtin_cpu_supports("bmi2") && __builtin_cpu_supports("popcnt");
  const bool avx512 = __builtin_cpu_supports("avx512bw") && __builtin_cpu_supports("avx512vl") &&
                      __builtin_cpu_supports("avx512dq") && __builtin_cpu_supports("avx512bitalg") &&
                      __builtin_cpu_supports("avx512vpopcntdq");
  if (avx2) return avx512 ? Instructions::kAvx512 : Instructions::kAvx2;
#endif
  return Instructions::kBase;
}

}  // namespace

Instructions MeilleuresInstructions() {
  return std::min(DuProcesseur(), LimiteInstructions());
}

}  // namespace sudoku
