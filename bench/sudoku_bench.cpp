// sudoku-bench [--benchmark_filter=…]: what solving, evaluating and typing cost.
//
//   Resoudre/FILE       every grid of a file of the folder SUDOKU_GRILLES, as sudoku-lot resoudre does it but
//   for
//                       reading and writing; without the variable none
//   Evaluation/N/FILL   one evaluation of a board of side N, FILL per cent of it given
//   Frappe/N            one typed entry in a game, to the board's last redrawn cell

#include <benchmark/benchmark.h>

#include "series_bench.h"

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  sudoku::bench::InscritResoudre();
  sudoku::bench::InscritEvaluation();
  sudoku::bench::InscritFrappe();
  benchmark::RunSpecifiedBenchmarks();
}
