// One version of the kernel, which the build compiles as engine/moteur_version.cpp.
#include <cstring>

#include "engine/trouve.h"
#include "solver/noyau.h"
#include "solver/trouve_neuf.h"

namespace sudoku::SUDOKU_MOTEUR {
namespace {

// What a search wants of the deductions: their result, and how large the sets were.
struct Recherche {
  static constexpr bool kFaits = false;

  const std::uint8_t* fausse;  // of the board
  bool abandonne = true;
  bool paires = true;

  bool Abandonne() const { return abandonne; }
  void NoteEnsemble(int taille) { paires &= taille <= 2; }
  bool Vide(int cellule) const { return fausse[cellule] == 0; }
};
template <int S>
using DeductionsDuNoyau = DeductionsSur<std::conditional_t<S == 3, TrouveNeuf, TrouveurDe<S>>, Recherche>;

// Writes all solutions into empty cells. A symbol that the cell's candidates have lost since it was found is
// a wrong entry.
template <int S>
void Ecrit(Cases<S>& cases, Appui appui, const DeductionsDuNoyau<S>& deductions, Passe<S>& passe) {
  deductions.ChaqueSolution([&](int cellule, int symbole) {
    if (cases.fausse[cellule] != 0) return;
    if (appui == Appui::kPossible && (deductions.CandidatsDe(cellule) >> symbole & 1) == 0) {
      cases.PoseFausse(cellule, symbole);
      passe.paires = false;
    } else {
      cases.Pose(cellule, symbole);
    }
  });
}

// As GrilleCheck: the first wrong entry that has become a candidate of its cell counts again, unless a cell
// before it has none. True if there is one.
template <int S>
[[gnu::noinline]] bool LeveFausse(Cases<S>& cases, const DeductionsDuNoyau<S>& deductions) {
  for (int i = 0; i < S * S * S * S; ++i) {
    if (cases.valeur[i] != 0) continue;
    const auto candidats = deductions.CandidatsDe(i);
    if (candidats == 0) return false;
    const int symbole = cases.fausse[i] - 1;
    if (symbole < 0 || (candidats >> symbole & 1) == 0) continue;
    cases.OteFausse(i);
    cases.Pose(i, symbole);
    return true;
  }
  return false;
}

}  // namespace

template <int S>
void Resout(Cases<S>& cases, Appui appui, Passe<S>& passe) {
  constexpr int N = S * S;
  using D = DeductionsDuNoyau<S>;
  Recherche usage{.fausse = cases.fausse};
  D deductions(cases, usage);
  typename D::Suite suite;
  for (;;) {
    usage.abandonne = !passe.possibles && cases.fausses == 0;
    suite = deductions.Candidats(appui);
    if (suite == D::kRien && cases.remplies < N * N) suite = deductions.Deduit();
    if (cases.fausses != 0 && LeveFausse(cases, deductions)) continue;
    if (suite != D::kSolutions) break;
    Ecrit(cases, appui, deductions, passe);
    passe.paires &= usage.paires;
    usage.paires = true;
  }
  passe.verdict = suite == D::kContradiction ? -1 : static_cast<std::int16_t>(N * N - cases.remplies);
  passe.sansOrdre = false;
  if constexpr (S == 3) {
    if (passe.suite && passe.paires && passe.verdict > 0) passe.sansOrdre = deductions.SansOrdre();
  }
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
