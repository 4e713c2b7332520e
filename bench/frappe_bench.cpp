#include <benchmark/benchmark.h>

#include <sstream>
#include <string>

#include "headless/systeme_sans_ecran.h"
#include "plateau_alea.h"
#include "platform/fichiers_disque.h"
#include "series_bench.h"
#include "shell/programme.h"

namespace sudoku::bench {
namespace {

// The player types one of the unproved entries of the board Evaluation/N/50dixieme, and erases it again.
void Mesure(benchmark::State& state, int N) {
  std::ostringstream sortie;
  FichiersDisque fichiers;
  SystemeSansEcran systeme(sortie, fichiers, [] { return false; });
  Programme programme(systeme);
  programme.Demarre(U"");
  Texte symboles = SymbolesPour(N);
  programme.Deroulement().JeuVierge(symboles);
  GameState& jeu = programme.Jeu();
  Charge(PlateauDeuxPasses(N), jeu.VmGrille);
  jeu.VgEtat = kJeu;
  Evaluateur(jeu).Evaluation(jeu.VmGrille, 2);
  int cellule = 1;
  while (jeu.VmGrille(cellule).Etat() != kPossible) ++cellule;
  const Texte saisie = jeu.VmGrille(cellule).ValeurSaisie();
  Plateau& plateau = programme.Principale().plateau;
  for (auto _ : state) {
    plateau.Text(cellule, plateau.TxtCase(cellule).Text.empty() ? saisie : Texte());
    plateau.OublieChangees();
  }
}

}  // namespace

void InscritFrappe() {
  for (const int N : {9, 16, 25, 36, 49, 64, 81, 100, 121, 144, 169}) {
    benchmark::RegisterBenchmark(("Frappe/" + std::to_string(N)).c_str(), [=](benchmark::State& state) {
      Mesure(state, N);
    })->Unit(benchmark::kMicrosecond);
  }
}

}  // namespace sudoku::bench
