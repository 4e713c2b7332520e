// compare_fuzz FIRST COUNT [SIDE…]: plays random games number FIRST to FIRST + COUNT - 1 on the engine and on
// the plain rules and stops at the first difference with the shortest game that shows it. Without sides: 4, 9
// and 16.
#include <iostream>

#include "plain/parties.h"

namespace sudoku::plain {
namespace {

constexpr std::size_t kBoites = 20;

// Every fourth game is one of the solver, whose long runs on large grids would take all the time.
Genres Choix(std::uint64_t graine, const std::vector<int>& tailles) {
  if (graine % 4 != 3) return {.tailles = tailles, .actions = 12};
  Genres solveur{.tailles = {}, .actions = 3, .solveur = true};
  for (const int n : tailles) {
    if (n <= 9 || graine % 32 == 31) solveur.tailles.push_back(n);
  }
  return solveur.tailles.empty() ? Genres{.tailles = tailles, .actions = 12} : solveur;
}

int Cherche(std::uint64_t premiere, std::uint64_t nombre, const std::vector<int>& tailles) {
  Paire paire(kBoites);
  for (std::uint64_t graine = premiere; graine < premiere + nombre; ++graine) {
    Partie partie;
    const std::string ecarts = JoueAuHasard(graine, Choix(graine, tailles), paire, partie);
    if (ecarts.empty()) continue;
    std::cout << "game " << graine << ecarts << '\n';
    if (Rejoue(partie, kBoites).empty()) {
      std::cout << "only after the games before it\n" << Decrit(partie);
    } else {
      partie = Reduit(partie, kBoites);
      std::cout << Decrit(partie) << Rejoue(partie, kBoites) << '\n';
    }
    return 1;
  }
  for (const auto& [quoi, fois] : paire.Bilan()) std::cout << quoi << ": " << fois << '\n';
  return 0;
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
  return sudoku::plain::Cherche(std::stoull(argv[1]), std::stoull(argv[2]), tailles);
}
