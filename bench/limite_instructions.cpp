// Linked in place of the file of this name in src/engine: the environment variable SUDOKU_VERSION says which
// version of the hot code is measured, base, avx2 or avx512; without it the best.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <string_view>

#include "engine/processeur.h"

namespace sudoku {

Instructions LimiteInstructions() {
  constexpr std::string_view kNoms[] = {"base", "avx2", "avx512"};
  const char* const valeur = std::getenv("SUDOKU_VERSION");
  if (valeur == nullptr) return Instructions::kAvx512;
  const auto* const nom = std::ranges::find(kNoms, valeur);
  if (nom != std::end(kNoms)) return static_cast<Instructions>(nom - std::begin(kNoms));
  std::fprintf(stderr, "SUDOKU_VERSION=%s: base, avx2 or avx512\n", valeur);
  std::exit(2);
}

}  // namespace sudoku
