#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "lot/resoudre.h"
#include "plateau_alea.h"
#include "series_bench.h"

namespace sudoku::bench {
namespace {

namespace fs = std::filesystem;

// The grids of a file: the first field of each line that is a grid of side 9.
std::vector<std::string> Grilles(const fs::path& chemin) {
  std::vector<std::string> grilles;
  std::ifstream fichier(chemin);
  for (std::string ligne; std::getline(fichier, ligne);) {
    ligne.resize(std::min(ligne.size(), ligne.find_first_of("\t\r")));
    if (ligne.size() == 81 && ligne.front() != '#') grilles.push_back(ligne);
  }
  return grilles;
}

// Boards that the search solves, with tens to hundreds of suppositions. On most seeds of side 25 it is
// hopeless.
std::vector<Alea> Aleas(int N) {
  std::vector<Alea> aleas;
  const auto ajoute = [&](int rempli, std::initializer_list<std::uint32_t> graines) {
    for (const std::uint32_t graine : graines) aleas.push_back({.N = N, .rempli = rempli, .graine = graine});
  };
  if (N == 16) {
    ajoute(35, {3, 5, 9});
    ajoute(40, {3, 4, 6, 10, 11});
    ajoute(45, {6, 12});
  } else {
    ajoute(35, {19, 42});
    ajoute(40, {9, 36, 47, 57});
    ajoute(45, {13, 44, 46, 50});
  }
  return aleas;
}

// The same as lines.
std::vector<std::string> GrillesAleatoires(int N) {
  std::vector<std::string> grilles;
  GameState jeu;
  const Grille grille = Grille::Nouvelle(jeu, SymbolesPour(N));
  for (const Alea& alea : Aleas(N)) {
    Charge(alea, grille);
    std::string& ligne = grilles.emplace_back();
    for (int i = 1; i <= N * N; ++i) {
      const Texte symbole = grille(i).ValeurSaisie();
      ligne += symbole.empty() ? "." : VersUtf8(symbole);
    }
  }
  return grilles;
}

void Resoudre(benchmark::State& state, const Texte& symboles, const std::vector<std::string>& grilles) {
  if (grilles.empty()) {
    state.SkipWithError("no grid of side 9");
    return;
  }
  lot::Appel appel;
  appel.symboles = symboles;
  const auto ouvrier = lot::FabriqueResoudre(appel);
  lot::Reponse reponse;
  for (auto _ : state) {
    for (const std::string& grille : grilles) {
      reponse.Efface();
      ouvrier->Traite(grille, reponse);
      benchmark::DoNotOptimize(reponse.sortie.data());
    }
  }
  const auto nombre = static_cast<double>(grilles.size());
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(grilles.size()));
  state.counters["par_grille"] =
      benchmark::Counter(nombre, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

}  // namespace

void InscritResoudre() {
  for (const int N : {16, 25}) {
    benchmark::RegisterBenchmark(("Resoudre" + std::to_string(N)).c_str(), [N](benchmark::State& state) {
      Resoudre(state, SymbolesPour(N), GrillesAleatoires(N));
    })->Unit(benchmark::kMillisecond);
  }
  const char* const dossier = std::getenv("SUDOKU_GRILLES");
  if (dossier == nullptr) return;
  std::vector<fs::path> chemins;
  for (const auto& entree : fs::directory_iterator(dossier)) {
    if (entree.is_regular_file() && entree.path().extension() == ".txt") chemins.push_back(entree.path());
  }
  std::sort(chemins.begin(), chemins.end());
  for (const fs::path& chemin : chemins) {
    const std::string nom = "Resoudre/" + chemin.stem().string();
    benchmark::RegisterBenchmark(nom.c_str(), [chemin](benchmark::State& state) {
      Resoudre(state, lot::Appel{}.symboles, Grilles(chemin));
    })->Unit(benchmark::kMillisecond);
  }
}

}  // namespace sudoku::bench
