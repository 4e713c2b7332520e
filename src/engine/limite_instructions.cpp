#include "engine/processeur.h"

namespace sudoku {

Instructions LimiteInstructions() {
  return Instructions::kAvx512;
}

}  // namespace sudoku
