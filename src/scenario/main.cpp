#include <filesystem>
#include <fstream>
#include <iostream>
#include <string_view>

#include "platform/fichiers_disque.h"
#include "scenario/aide.h"
#include "scenario/session.h"

namespace {

constexpr int kSessionIllisible = 1;
constexpr int kAppelIncorrect = 2;

}  // namespace

int main(int argc, char** argv) {
  if (argc > 2) {
    std::cerr << "usage : sudoku-scenario [FICHIER]\n";
    return kAppelIncorrect;
  }
  if (argc == 2 && std::string_view(argv[1]) == "--help") {
    std::cout << sudoku::kAide;
    return 0;
  }
  std::ifstream fichier;
  if (argc == 2) {
    fichier.open(argv[1], std::ios::binary);
    if (!fichier || std::filesystem::is_directory(argv[1])) {
      std::cerr << sudoku::Montrable(argv[1]) << " : la session ne peut pas être lue\n";
      return kSessionIllisible;
    }
  }
  sudoku::FichiersDisque fichiers;
  sudoku::Session(argc == 2 ? fichier : std::cin, std::cout, fichiers).Joue();
  std::cout.flush();
  return 0;
}
