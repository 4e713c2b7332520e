// The game on a desktop. The calls stand in appel.h.

#include <QFile>
#include <csignal>
#include <cstdio>
#include <new>

#include "platform/chemin.h"
#include "qt/application.h"
#include "qt/capture.h"
#include "shell/programme.h"
#include "sudoku/appel.h"

namespace {

// The command line as the game takes it: a path in double quotes, or nothing.
sudoku::Texte LigneDeCommande(const char* fichier) {
  if (fichier == nullptr) return {};
  return U'"' + sudoku::DepuisChemin(fichier) + U'"';
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
  if (DessineDansFichier(*systeme.FenetreDe(programme.Principale()), QFile::decodeName(image))) return 0;
  std::fprintf(stderr, "%s : Erreur d'accès au chemin/fichier\n", sudoku::Montrable(image).c_str());
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  const std::optional<sudoku::Appel> appel = sudoku::LitAppel(argc, argv);
  if (!appel) return 2;
  if (appel->reponse != nullptr) return std::fputs(appel->reponse, stdout) < 0 ? 1 : 0;
  std::signal(SIGXFSZ, SIG_IGN);  // a write beyond the limit fails, and ends nothing
  const bool capture = appel->image != nullptr;
  sudoku::PrepareAffichage(!capture);
  const auto application = sudoku::FabriqueApplication(argc, argv);
  sudoku::PrepareApplication(*application);
  try {
    return capture ? Capture(appel->image, appel->fichier) : Joue(appel->fichier);
  } catch (const std::bad_alloc&) {
    std::fputs("sudoku : mémoire insuffisante\n", stderr);
    return 1;
  }
}
