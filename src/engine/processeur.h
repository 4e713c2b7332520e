#pragma once

namespace sudoku {

#if defined(SUDOKU_VERSIONS_X86)
// What the processor that we run on can do, as the versions of the hot code are compiled for.
inline bool ProcesseurAvx2() {
  // Where bmi2 is, lzcnt is; clang 14 can't be asked for it.
  return __builtin_cpu_supports("avx2") && __builtin_cpu_supports("bmi") && __builtin_cpu_supports("bmi2") &&
         __builtin_cpu_supports("popcnt");
}
inline bool ProcesseurAvx512() {
  return ProcesseurAvx2() && __builtin_cpu_supports("avx512bw") && __builtin_cpu_supports("avx512vl") &&
         __builtin_cpu_supports("avx512dq") && __builtin_cpu_supports("avx512bitalg") &&
         __builtin_cpu_supports("avx512vpopcntdq");
}
#endif

}  // namespace sudoku
