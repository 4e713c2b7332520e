#include "cible.h"

#include <cstdlib>
#include <iostream>

namespace sudoku::fuzz {

void Echoue(const std::string& quoi) {
  std::cerr << quoi << std::endl;
  std::abort();
}

}  // namespace sudoku::fuzz
