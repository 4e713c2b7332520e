// What libFuzzer calls with every input.
#include <cstddef>
#include <cstdint>

#include "cible.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t taille) {
  sudoku::fuzz::Joue({reinterpret_cast<const char*>(octets), taille});
  return 0;
}
