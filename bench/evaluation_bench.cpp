#include <benchmark/benchmark.h>

#include <string>

#include "engine/evaluation.h"
#include "plateau_alea.h"
#include "series_bench.h"

namespace sudoku::bench {
namespace {

void Mesure(benchmark::State& state, const Alea& alea) {
  GameState jeu;
  Grille grille = Grille::Nouvelle(jeu, SymbolesPour(alea.N));
  Charge(alea, grille);
  jeu.VgEtat = kJeu;
  Evaluateur moteur(jeu);
  for (auto _ : state) benchmark::DoNotOptimize(moteur.Evaluation(grille, 2));
}

}  // namespace

void InscritEvaluation() {
  for (const int N : {9, 16, 25, 36, 49, 64, 81, 100, 121, 144, 169}) {
    const std::string nom = "Evaluation/" + std::to_string(N) + "/";
    for (const int rempli : {0, 25, 50, 75}) {
      benchmark::RegisterBenchmark((nom + std::to_string(rempli)).c_str(), [=](benchmark::State& state) {
        Mesure(state, {.N = N, .rempli = rempli});
      })->Unit(benchmark::kMicrosecond);
    }
    benchmark::RegisterBenchmark((nom + "50dixieme").c_str(), [=](benchmark::State& state) {
      const Alea alea = PlateauDeuxPasses(N);
      state.SetLabel("graine " + std::to_string(alea.graine) + (alea.symboles ? ", symboles entiers" : ""));
      Mesure(state, alea);
    })->Unit(benchmark::kMicrosecond);
  }
}

}  // namespace sudoku::bench
