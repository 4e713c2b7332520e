// compare_fuzz FIRST COUNT [SIDE…]: plays random games number FIRST to FIRST + COUNT - 1 on the engine and on
// the plain rules and stops at the first difference, with the steps of its game. Without sides: 4, 9 and 16.
#include <iostream>

#include "plain/parties.h"

namespace sudoku::plain {
namespace {

// Every fourth game is one of the solver, whose long runs on large grids would take all the time.
Genres Choix(std::uint64_t graine, const std::vector<int>& tailles) {
  Genres solveur{.tailles = {}, .actions = 3, .solveur = true};
  for (const int n : tailles) {
    if (graine % 4 == 3 && (n <= 9 || graine % 32 == 31)) solveur.tailles.push_back(n);
  }
  return solveur.tailles.empty() ? Genres{.tailles = tailles, .actions = 12} : solveur;
}

}  // namespace
}  // namespace sudoku::plain

int main(int argc, char** argv) {
  if (argc < 3) {
    std::cerr << "compare_fuzz FIRST COUNT [SIDE…]\n";
    return 2;
  }
  std::vector<int> tailles;
  for (int i = 3; i < argc; ++i) tailles.push_back(std::stoi(argv[i]));
  if (tailles.empty()) tailles = {4, 9, 16};
  sudoku::plain::Paire paire;
  const std::uint64_t premiere = std::stoull(argv[1]), nombre = std::stoull(argv[2]);
  for (std::uint64_t graine = premiere; graine < premiere + nombre; ++graine) {
    const std::string ecarts = JoueAuHasard(graine, 1, sudoku::plain::Choix(graine, tailles), paire);
    if (ecarts.empty()) continue;
    std::cout << ecarts << '\n';
    return 1;
  }
  for (const auto& [quoi, fois] : paire.Bilan()) std::cout << quoi << ": " << fois << '\n';
}
