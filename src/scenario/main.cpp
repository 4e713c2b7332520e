#include <csignal>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <new>
#include <string_view>

#include "platform/fichiers_disque.h"
#include "scenario/aide.h"
#include "scenario/session.h"

namespace {

constexpr int kSessionIllisible = 1;  // to its end
constexpr int kAppelIncorrect = 2;

int Illisible(const char* nom) {
  std::cerr << sudoku::Montrable(nom) << " : la session ne peut pas être lue\n";
  return kSessionIllisible;
}

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
  std::signal(SIGXFSZ, SIG_IGN);  // a write beyond the limit fails, and ends nothing
  std::ifstream fichier;
  if (argc == 2) {
    fichier.open(argv[1], std::ios::binary);
    if (!fichier || std::filesystem::is_directory(argv[1])) return Illisible(argv[1]);
  }
  std::istream& session = argc == 2 ? fichier : std::cin;
  sudoku::FichiersDisque fichiers;
  try {
    sudoku::Session(session, std::cout, fichiers).Joue();
  } catch (const std::bad_alloc&) {
    std::cerr << "sudoku-scenario : mémoire insuffisante\n";
    return kSessionIllisible;
  }
  std::cout.flush();
  return session.bad() ? Illisible(argc == 2 ? argv[1] : "entrée standard") : 0;
}
