#pragma once

#include <cstring>

#include "engine/lieux.h"
#include "engine/voies.h"

namespace sudoku::SUDOKU_MOTEUR {
namespace {

// Where a cell of a board of blocks of side S lies, from tables as far as these are small.
template <int S>
SUDOKU_EN_LIGNE int UniteDe(int type, int cellule) {
  if constexpr (Largeur<S>::kMots == 1)
    return kLieux<S>.lieux[cellule].unite[type];
  else
    return kParts<S>.UniteDe(type, cellule);
}
template <int S>
SUDOKU_EN_LIGNE int PlaceDe(int type, int cellule) {
  if constexpr (Largeur<S>::kMots == 1)
    return kLieux<S>.lieux[cellule].place[type];
  else
    return kParts<S>.PlaceDe(type, cellule);
}
template <int S>
SUDOKU_EN_LIGNE int CelluleDe(int u, int place) {
  if constexpr (Largeur<S>::kMots == 1)
    return kLieux<S>.cellules[u][place];
  else
    return kParts<S>.Cellule(u, place);
}

// What is known of cells and units beside the tables in which deductions are found: solutions, and what has
// changed since it was looked at.
template <int S>
class Suivi {
 public:
  using Bits = BitsDe<S>;

  explicit Suivi(const Contenus<S>& contenus) : contenus_(contenus) {}

  // The cell's symbol is proved: the sweeps of its units leave it aside. For kPossible, before Deduit.
  void Prouve(int cellule, int symbole) {
    for (int g = 0; g < 3; ++g) prouves_[UniteDe<S>(g, cellule)] |= Bit<Bits>(symbole);
  }
  // Calls f(cell, symbol) for each solution.
  template <class F>
  void ChaqueSolution(F f) const {
    for (int l = 0; l < N; ++l) {
      Chaque(resolues_[l], [&](int c) { f(N * l + c, solution_[N * l + c] - 1); });
    }
  }

  int UniteSale(int depuis) {
    const int u = sales_.PremierDepuis(depuis);
    if (u >= kUnites) return -1;
    // Before the run: what it changes in its own cells calls for another one.
    sales_[u >> 6] &= ~(std::uint64_t{1} << (u & 63));
    return u;
  }
  void PoseSolution(int cellule, int symbole);
  static int Cellule(int u, int place) { return CelluleDe<S>(u, place); }
  static Bits Dedans(const FigureDe<Bits>& figure) { return kParts<S>.Dedans(figure); }

 protected:
  static constexpr int N = S * S;
  static constexpr int kUnites = 3 * N;
  static constexpr int kVoies = Largeur<S>::kVoies;
  static constexpr int kMots = Largeur<S>::kMots;
  using V = Voies<S>;
  using Mot = MotDe<S>;
  using Figure = FigureDe<Bits>;

  void Commence(Appui appui);
  // These cells of the row have one candidate.
  void NoteSeuls(int ligne, const Bits& cellules) {
    seuls_[ligne] = cellules;
    if constexpr (kMots == 1)
      quelques_ |= Bits{cellules != 0} << ligne;
    else if (!Vide(cellules))
      quelques_ |= Bit<Bits>(ligne);
  }
  void NoteSeul(int cellule) {
    seuls_[cellule / N] |= Bit<Bits>(cellule % N);
    quelques_ |= Bit<Bits>(cellule / N);
  }
  // Calls f(cell) for each that NoteSeul has noted since the last call; it may have less than that by now.
  template <class F>
  void ChaqueNote(F f) {
    const Bits lignes = quelques_;
    quelques_ = Bits{};
    Chaque(lignes, [&](int l) {
      const Bits seuls = seuls_[l];
      seuls_[l] = Bits{};
      Chaque(seuls, [&](int c) { f(N * l + c); });
    });
  }
  // Some field of the cell changed, its symbols among them.
  void Salit(int cellule) {
    if constexpr (kMots == 1) {
      for (int i = 0; i < kMotsUnites<S>; ++i) sales_[i] |= kLieux<S>.lieux[cellule].unites[i];
    } else {
      for (int g = 0; g < 3; ++g) sales_ |= Bit<Unites>(UniteDe<S>(g, cellule));
    }
  }
  void Salit(int cellule, const Bits& symboles) {
    Salit(cellule);
    symbolesSales_ |= symboles;
  }
  void ToutSale() {
    sales_ = kToutes;
    symbolesSales_ = kTousDe<S>;
  }
  // The symbols whose places changed since the last call.
  Bits SymbolesSales() {
    const Bits sales = symbolesSales_;
    symbolesSales_ = Bits{};
    return sales;
  }

  const Contenus<S>& contenus_;
  Bits prouves_[Taille(kUnites)];  // by unit: symbols proved in it, contents aside

 private:
  using Unites = Masque<kMotsUnites<S>>;
  static constexpr Unites kToutes = Premiers<Unites>(kUnites);

  void Reprouve(int u);

  Appui appui_ = Appui::kSur;
  std::uint8_t solution_[Taille(N * N)];  // symbol + 1
  Bits resolues_[Taille(N)];              // by row: cells with a solution
  Bits seuls_[Taille(N)];  // by row: cells that came down to one candidate since the last ChaqueNote
  Bits quelques_{};        // rows with such a cell
  Unites sales_;           // units some cell of which changed since their own last run
  Bits symbolesSales_{};
};

template <int S>
void Suivi<S>::Commence(Appui appui) {
  appui_ = appui;
  std::memset(solution_, 0, sizeof solution_);
  for (Bits& ligne : resolues_) ligne = Bits{};
  for (Bits& unite : prouves_) unite = Bits{};
  quelques_ = Bits{};
}

template <int S>
void Suivi<S>::PoseSolution(int cellule, int symbole) {
  const int avant = solution_[cellule];
  if (avant == symbole + 1) return;
  solution_[cellule] = static_cast<std::uint8_t>(symbole + 1);
  resolues_[cellule / N] |= Bit<Bits>(cellule % N);
  Salit(cellule);
  if (appui_ == Appui::kPossible) return;
  Prouve(cellule, symbole);
  if (avant == 0) return;
  for (int g = 0; g < 3; ++g) Reprouve(UniteDe<S>(g, cellule));
}

// A second symbol was proved for a cell and took the place of the first (a contradictory board): the first is
// proved in the cell's units no more, unless another cell has it.
template <int S>
void Suivi<S>::Reprouve(int u) {
  prouves_[u] = Bits{};
  for (int place = 0; place < N; ++place) {
    const int symbole = solution_[Cellule(u, place)];
    if (symbole != 0) prouves_[u] |= Bit<Bits>(symbole - 1);
  }
}

}  // namespace
}  // namespace sudoku::SUDOKU_MOTEUR
