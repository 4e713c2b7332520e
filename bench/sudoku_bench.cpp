// sudoku-bench [--benchmark_filter=…]: what solving, evaluating and typing cost.
//
//   Resoudre/FILE       every grid of a file of the folder SUDOKU_GRILLES, as sudoku-lot resoudre does it
//                       but for reading and writing; without the variable none
//   Resoudre16, 25      the same for boards of these sides made from seeds, 55 to 65 per cent of them open
//   Evaluation/N/FILL   one evaluation of a board of side N, FILL per cent of it given
//   Frappe/N            one typed entry in a game, to the board's last redrawn cell
//
// SUDOKU_VERSION=base, avx2 or avx512 chooses the version of the hot code.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>

#include "engine/processeur.h"
#include "series_bench.h"

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  constexpr const char* kVersions[] = {"base", "avx2", "avx512"};
  const auto version = static_cast<int>(sudoku::MeilleuresInstructions());
  if (std::getenv("SUDOKU_VERSION") != nullptr &&
      sudoku::MeilleuresInstructions() != sudoku::LimiteInstructions()) {
    std::fprintf(stderr, "this processor runs no more than SUDOKU_VERSION=%s\n", kVersions[version]);
    return 2;
  }
  benchmark::AddCustomContext("version", kVersions[version]);
  sudoku::bench::InscritResoudre();
  sudoku::bench::InscritEvaluation();
  sudoku::bench::InscritFrappe();
  benchmark::RunSpecifiedBenchmarks();
}
