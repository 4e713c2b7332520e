// One version of the kernel, which the build compiles as engine/moteur_version.cpp.
#include <cstring>

#include "engine/trouve.h"
#include "solver/noyau.h"
#include "solver/trouve_neuf.h"

namespace sudoku::SUDOKU_MOTEUR {
namespace {

// What a search wants of the deductions: their result.
struct Recherche {
  static constexpr bool kFaits = false;

  bool abandonne;

  bool Abandonne() const { return abandonne; }
  static bool Vide(int) { return true; }
};
template <int S>
using DeductionsDuNoyau = DeductionsSur<std::conditional_t<S == 3, TrouveNeuf, TrouveurDe<S>>, Recherche>;

// Writes all solutions. A symbol that the cell's candidates have lost since it was found is a wrong entry:
// false then.
template <int S>
bool Ecrit(Cases<S>& cases, Appui appui, const DeductionsDuNoyau<S>& deductions, Passe<S>& passe) {
  deductions.ChaqueSolution([&](int cellule, int symbole) {
    if (appui == Appui::kPossible && (deductions.CandidatsDe(cellule) >> symbole & 1) == 0) {
      if (!passe.erronee) std::memset(passe.erronees, 0, sizeof passe.erronees);
      passe.erronee = true;
      passe.erronees[cellule] = true;
    }
    cases.Pose(cellule, symbole);
  });
  return !passe.erronee;
}

}  // namespace

template <int S>
void Resout(Cases<S>& cases, Appui appui, Passe<S>& passe) {
  constexpr int N = S * S;
  using D = DeductionsDuNoyau<S>;
  passe.erronee = false;
  Recherche usage{.abandonne = !passe.possibles};
  D deductions(cases, usage);
  typename D::Suite suite;
  for (;;) {
    suite = deductions.Candidats(appui);
    if (suite == D::kRien && cases.remplies < N * N) suite = deductions.Deduit();
    if (suite != D::kSolutions) break;
    if (!Ecrit(cases, appui, deductions, passe)) return;
  }
  passe.verdict = suite == D::kContradiction ? -1 : static_cast<std::int16_t>(N * N - cases.remplies);
  if (passe.verdict < 0 && !passe.possibles) return;
  for (int l = 0; l < N; ++l) {
    std::memcpy(passe.candidats + N * l, deductions.CandidatsDeLigne(l), N * sizeof(MotDe<S>));
  }
}

template void Resout(Cases<3>& cases, Appui appui, Passe<3>& passe);
template void Resout(Cases<4>& cases, Appui appui, Passe<4>& passe);
template void Resout(Cases<5>& cases, Appui appui, Passe<5>& passe);
template void Resout(Cases<6>& cases, Appui appui, Passe<6>& passe);
template void Resout(Cases<7>& cases, Appui appui, Passe<7>& passe);
template void Resout(Cases<8>& cases, Appui appui, Passe<8>& passe);

}  // namespace sudoku::SUDOKU_MOTEUR
