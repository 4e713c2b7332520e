#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "lot/resoudre.h"
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

void Resoudre(benchmark::State& state, const fs::path& chemin) {
  const std::vector<std::string> grilles = Grilles(chemin);
  if (grilles.empty()) {
    state.SkipWithError("no grid of side 9");
    return;
  }
  const auto ouvrier = lot::FaisResoudre(lot::Appel{});
  lot::Reponse reponse;
  for (auto _ : state) {
    for (const std::string& grille : grilles) {
      reponse.Vide();
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
      Resoudre(state, chemin);
    })->Unit(benchmark::kMillisecond);
  }
}

}  // namespace sudoku::bench
