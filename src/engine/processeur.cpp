#include "engine/processeur.h"

#include <algorithm>

namespace sudoku {
namespace {

#if defined(SUDOKU_VERSION_AVX2) || defined(SUDOKU_VERSION_AVX512)
// Where bmi2 is, lzcnt is; clang 14 can't be asked for it.
bool SaitAvx2() {
  return __builtin_cpu_supports("avx2") && __builtin_cpu_supports("bmi") && __builtin_cpu_supports("bmi2") &&
         __builtin_cpu_supports("popcnt");
}
#endif

Instructions DuProcesseur() {
#if defined(SUDOKU_VERSION_AVX512)
  if (SaitAvx2() && __builtin_cpu_supports("avx512bw") && __builtin_cpu_supports("avx512vl") &&
      __builtin_cpu_supports("avx512dq") && __builtin_cpu_supports("avx512bitalg") &&
      __builtin_cpu_supports("avx512vpopcntdq"))
    return Instructions::kAvx512;
#endif
#if defined(SUDOKU_VERSION_AVX2)
  if (SaitAvx2()) return Instructions::kAvx2;
#endif
  return Instructions::kBase;
}

}  // namespace

Instructions MeilleuresInstructions() {
  return std::min(DuProcesseur(), LimiteInstructions());
}

}  // namespace sudoku
