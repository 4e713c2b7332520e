#pragma once

#include <cstdlib>
#include <iostream>
#include <string>
#include <string_view>

// One target each in sud.cpp, lot.cpp and scenario.cpp: does with the bytes of an input what they say. It
// comes back whatever they are; what must never happen ends the process.
namespace sudoku::fuzz {

void Joue(std::string_view octets);

// Says what is wrong and ends the process.
[[noreturn]] inline void Echoue(const std::string& quoi) {
  std::cerr << quoi << std::endl;
  std::abort();
}

}  // namespace sudoku::fuzz
