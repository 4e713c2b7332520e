#pragma once

#include <functional>
#include <string>
#include <vector>

// The system calls that file operations make, taken over in the program that links this: each call that
// concerns a file of the watched folder is noted, and one of them can be made to fail or to end the process.
namespace sudoku::appels {

enum class Panne {
  kAucune,
  kEchec,       // the call does nothing and fails with `code`
  kCourt,       // a read or write of more than one byte does half of it, and the call succeeds
  kMortAvant,   // the process is killed before the call
  kMortPendant  // … a write after half of it, any other call right after it
};

struct Plan {
  Panne panne = Panne::kAucune;
  int rang = 0;  // which of the calls, from 1; beyond the last: none
  int code = 0;  // errno of kEchec
};

// Runs `corps` with the calls on files in `dossier` taken over. Gives the calls made, as "open jeu.sud",
// "write jeu.sud", "fsync ." for the folder itself.
std::vector<std::string> Observe(const std::string& dossier, Plan plan, const std::function<void()>& corps);

}  // namespace sudoku::appels
