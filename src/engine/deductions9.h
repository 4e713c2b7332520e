#pragma once

#include <cstdint>

#include "engine/cases9.h"
#include "engine/voies9.h"

namespace sudoku::SUDOKU_MOTEUR {
namespace {

constexpr int kTous = 0x1FF;
constexpr int kGroupe[3] = {0x007, 0x038, 0x1C0};  // places in a row of a block, of a line
constexpr int kResidu[3] = {0x049, 0x092, 0x124};  // places in a column of a block
constexpr std::uint32_t kToutesUnites = (1U << 27) - 1;

// Units are numbered 3 * (number - 1) + kind, in the order in which the engine goes through them.
enum Genre9 { kCarre9 = 0, kLigne9 = 1, kColonne9 = 2 };
constexpr int Unite(int genre, int numero) {
  return 3 * numero + genre;
}

inline int Compte(std::uint32_t m) {
  return __builtin_popcount(m);
}
inline int Premier(std::uint32_t m) {
  return __builtin_ctz(m);
}

// A figure of symbol `symbole`: its units and those it is confined to, kinds and masks of numbers - 1.
struct Figure9 {
  int symbole;
  Genre9 genre;
  int unites;
  Genre9 genre2;
  int cle;

  // By kind (columns first), first unit, symbol, other kind.
  int Ordre() const {
    return ((9 * (2 - genre) + Premier(static_cast<unsigned>(unites))) * 9 + symbole) * 3 + 2 - genre2;
  }
};

// The deductions of engine/series.h and engine/figures.h on a board of side 9 whose cells hold single
// symbols, all nine different: one vector a unit, so that all symbols or places of a unit are looked at
// together. Usage says what they are wanted for:
//   kFaits            each is written down by Usage's functions, and all are made, also on a board that has
//   lost
//                     all candidates of a cell already. Without it such a board is given up: that cell stays
//                     so.
//   Vide(cell)        the open cell holds nothing at all: a solution for it is one to fill in.
template <class Usage>
class Deductions9 {
 public:
  enum Suite { kContradiction, kRien, kSolutions };

  Deductions9(const Cases9& cases, Usage& usage) : cases_(cases), usage_(usage) {}

  std::uint64_t tours = 0;  // turns of Deduit; see moteur_de.inc for their bound

  // What the contents leave to each cell, and the cells with one candidate. kSolutions: a cell can be filled.
  Suite Candidats(Mode9 mode);
  // Series and figures, from the simplest again after each removal, until a cell can be filled or nothing
  // goes.
  Suite Deduit();

  // The cell's symbol is proved: the sweeps of its units leave it aside. For mode kPossible, before Deduit.
  void Prouve(int cellule, int symbole);

  std::uint32_t CandidatsDe(int cellule) const {
    return candidats_[Unite(kLigne9, cellule / 9)][cellule % 9];
  }
  // Calls f(cell, symbol) for each solution.
  template <class F>
  void ChaqueSolution(F f) const;

 private:
  void Retourne();
  void RetournePlaces();
  bool Balaye();
  bool TestSerie(int u);
  void Seules(int u, V16 places, std::uint32_t symboles);
  void PoseSolution(int cellule, int symbole);
  void Reprouve(int u);
  bool Verrouilles(int u, V16 places);
  void Inference(int u, int u2, V16 perdants);
  bool Caches(int u, const std::uint16_t* places, std::uint32_t debuts);
  bool Nus(int u);
  bool NxN();
  bool FiguresDe(int s);
  bool EnLignes(int s, const std::uint16_t* lignes, std::uint32_t debuts, Genre9 genre);
  bool EnCarres(int s, const std::uint16_t* cles, std::uint32_t debuts, Genre9 genre, Genre9 genre2);
  bool Trouve(const Figure9& figure);
  bool Agit(const Figure9& figure);
  template <class F>
  void ChaquePerte(const Figure9& figure, F f);
  static int Dedans(const Figure9& figure, int i);
  void Enleve(int cellule, int symboles);
  void Remplace(int cellule, int sequence);
  void Releve();

  const Cases9& cases_;
  Usage& usage_;
  Mode9 mode_ = Mode9::kSur;

  // Candidates by unit and place, places by unit and symbol; lanes 9 to 15 stay 0.
  alignas(32) std::uint16_t candidats_[27][16];
  alignas(32) std::uint16_t places_[27][16];
  std::uint16_t prouves_[27];        // by unit: symbols proved in it, contents aside
  std::uint8_t solution_[81];        // symbol + 1
  std::uint16_t resolues_[9];        // by row: cells with a solution
  std::uint16_t seuls_[9];           // by row: cells that came down to one candidate since the last Releve
  std::uint32_t sales_ = 0;          // units some cell of which changed since their own last run
  std::uint32_t symbolesSales_ = 0;  // symbols whose places changed since the last search for figures
  bool contradiction_ = false;
  bool aRemplir_ = false;
};

}  // namespace
}  // namespace sudoku::SUDOKU_MOTEUR
