// The game on a desktop.
//
//   sudoku [FICHIER]                     plays, with this game file if one is named
//   sudoku --capture IMAGE [FICHIER]     draws its window into IMAGE (.png, .svg, .pdf) and ends; needs no
//   display

#include <QFile>
#include <cstdio>
#include <cstring>

#include "qt/application.h"
#include "qt/capture.h"
#include "qt/texte_qt.h"
#include "shell/programme.h"

namespace {

// The command line as the game takes it: a path in double quotes, or nothing.
sudoku::Texte LigneDeCommande(const char* fichier) {
  if (fichier == nullptr) return {};
  return U'"' + sudoku::DepuisQt(QFile::decodeName(fichier)) + U'"';
}

int Joue(const char* fichier) {
  sudoku::SystemeQt systeme;
  sudoku::Programme programme(systeme);
  sudoku::EcouteLesFins(systeme);
  const auto demarre = [&] { programme.Demarre(LigneDeCommande(fichier)); };
  // A pointer that waits takes time to come, and without a file there is nothing to wait for.
  fichier == nullptr ? systeme.Execute(demarre) : systeme.ExecuteCommande(demarre);
  return QApplication::exec();
}

int Capture(const char* image, const char* fichier) {
  sudoku::SystemeSansJoueur systeme;
  sudoku::Programme programme(systeme);
  systeme.Execute([&] { programme.Demarre(LigneDeCommande(fichier)); });
  if (systeme.ADitQuelqueChose()) return 1;
  if (DessineDansFichier(*systeme.FenetreDe(programme.Principale().LaFenetre()), QFile::decodeName(image)))
    return 0;
  std::fprintf(stderr, "%s : Erreur d'accès au chemin/fichier\n", image);
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  const bool capture = argc > 1 && std::strcmp(argv[1], "--capture") == 0;
  const int premier = capture ? 3 : 1;
  if ((capture && argc < 3) || argc > premier + 1) {
    std::fputs("Usage : sudoku [FICHIER.sud]\n        sudoku --capture IMAGE [FICHIER.sud]\n", stderr);
    return 2;
  }
  const char* fichier = argc > premier ? argv[premier] : nullptr;
  sudoku::PrepareAffichage(!capture);
  QApplication application(argc, argv);
  sudoku::PrepareApplication(application);
  return capture ? Capture(argv[2], fichier) : Joue(fichier);
}
