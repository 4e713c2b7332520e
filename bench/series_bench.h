#pragma once

namespace sudoku::bench {

// Each makes its benchmarks known; boards and files are made when a benchmark runs.
void InscritResoudre();
void InscritEvaluation();
void InscritFrappe();

}  // namespace sudoku::bench
