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

constexpr int kIncomplet = 1;  // the session wasn't read to its end, or what it prints not written
constexpr int kAppelIncorrect = 2;

int Illisible(const char* nom) {
  std::cerr << sudoku::Montrable(nom) << " : la session ne peut pas être lue\n";
  return kIncomplet;
}

// `statut`, unless what was printed got lost.
int Finit(int statut) {
  if (std::cout.flush()) return statut;
  std::cerr << "sudoku-scenario : la sortie n'a pas pu être écrite\n";
  return kIncomplet;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc > 2) {
    std::cerr << "usage : sudoku-scenario [FICHIER]\n";
    return kAppelIncorrect;
  }
  if (argc == 2 && std::string_view(argv[1]) == "--help") {
    std::cout << sudoku::kAide;
    return Finit(0);
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
    return kIncomplet;
  }
  return Finit(session.bad() ? Illisible(argc == 2 ? argv[1] : "entrée standard") : 0);
}
