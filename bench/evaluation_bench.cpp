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
  Evaluateur evaluateur(jeu);
  for (auto _ : state) benchmark::DoNotOptimize(evaluateur.Evaluation(grille, 2));
}

// A board that the player has nearly filled, as a game that is loaded: the evaluation proves one entry after
// the other.
void MesurePreuves(benchmark::State& state, int N) {
  GameState jeu;
  const Grille depart = Grille::Nouvelle(jeu, SymbolesPour(N));
  Charge({.N = N, .rempli = 95, .dixieme = true}, depart);
  Grille grille;
  Evaluateur evaluateur(jeu);
  for (auto _ : state) {
    GrilleCopy(depart, grille);
    jeu.VgEtat = kJeu;
    benchmark::DoNotOptimize(evaluateur.Evaluation(grille, 2));
  }
  state.SetLabel(std::to_string(evaluateur.Reprises() / static_cast<std::uint64_t>(state.iterations())) +
                 " passages");
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
    benchmark::RegisterBenchmark((nom + "95dixieme").c_str(), [=](benchmark::State& state) {
      MesurePreuves(state, N);
    })->Unit(benchmark::kMicrosecond);
  }
}

}  // namespace sudoku::bench
