#pragma once

namespace sudoku {

// The instruction sets that the hot code is compiled for, each holding those before it.
enum class Instructions { kBase, kAvx2, kAvx512 };

// The best that this program has, the processor that it runs on can do, and LimiteInstructions allows.
Instructions MeilleuresInstructions();

// No limit, in the products. The benchmark links its own version (bench/limite_instructions.cpp), so that
// every version of the hot code can be measured on one machine.
Instructions LimiteInstructions();

}  // namespace sudoku
