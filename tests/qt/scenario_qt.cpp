// Plays a written session on real windows: scenario_qt SESSION.txt

#include <fstream>
#include <iostream>

#include "qt/application.h"
#include "qt/scene_qt.h"
#include "scenario/session.h"

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  std::ifstream fichier(argv[1], std::ios::binary);
  if (!fichier) return 1;
  QApplication application(argc, argv);
  sudoku::PrepareApplication(application);
  sudoku::FichiersDisque fichiers;
  sudoku::Session(fichier, std::cout, fichiers, [](sudoku::SystemeSansEcran& papier) {
    return std::make_unique<sudoku::SceneQt>(papier, std::cout);
  }).Joue();
  std::cout.flush();
  std::_Exit(0);  // windows whose boxes were cut short are still on the stack's account
}
