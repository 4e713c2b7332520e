// Plays the inputs in the folder named by the call, with any compiler.
#include <algorithm>
#include <filesystem>
#include <iostream>
#include <vector>

#include "cible.h"
#include "joueur.h"

int main(int argc, char** argv) {
  namespace fs = std::filesystem;
  if (argc != 2 || !fs::is_directory(argv[1])) {
    std::cerr << "usage : rejoue DOSSIER\n";
    return 2;
  }
  std::vector<fs::path> fichiers{fs::directory_iterator(argv[1]), fs::directory_iterator()};
  std::ranges::sort(fichiers);
  for (const fs::path& fichier : fichiers) {
    std::cerr << fichier.filename() << '\n';
    sudoku::fuzz::Joue(sudoku::LitOctets(fichier));
  }
  return fichiers.empty() ? 1 : 0;
}
