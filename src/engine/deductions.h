#pragma once

#include <bit>
#include <cstdint>

#include "engine/ensembles.h"
#include "engine/lieux.h"
#include "engine/masque.h"

namespace sudoku::SUDOKU_MOTEUR {
namespace {

// A figure of symbol `symbole`: its units and those it is confined to, kinds and sets of numbers - 1.
template <int S>
struct FigureDe {
  int symbole;
  GenreUnite genre;
  BitsDe<S> unites;
  GenreUnite genre2;
  BitsDe<S> cle;

  // By kind (columns first), first unit, symbol, other kind.
  int Ordre() const {
    return ((S * S * (2 - genre) + std::countr_zero(unites)) * S * S + symbole) * 3 + 2 - genre2;
  }
};

// The deductions of engine/series.h and engine/figures.h on a board of blocks of side S whose cells hold
// single symbols, all different: vectors with a lane for each symbol or place of a unit, so that all of them
// are looked at together. Usage says what they are wanted for:
//   kFaits            each is written down by Usage's functions, and all are made, also on a board that has
//                     lost all candidates of a cell already. Without it such a board is given up: that cell
//                     stays so.
//   Vide(cell)        the open cell holds nothing at all: a solution for it is one to fill in.
template <int S, class Usage>
class Deductions {
 public:
  using Bits = BitsDe<S>;
  enum Suite { kContradiction, kRien, kSolutions };

  Deductions(const Contenus<S>& contenus, Usage& usage) : contenus_(contenus), usage_(usage) {}

  std::uint64_t tours = 0;  // turns of Deduit; see moteur_de.inc for their bound

  // What the contents leave to each cell, and the cells with one candidate. kSolutions: a cell can be filled.
  Suite Candidats(Appui appui);
  // Series and figures, from the simplest again after each removal, until a cell can be filled or nothing
  // goes.
  Suite Deduit();

  // The cell's symbol is proved: the sweeps of its units leave it aside. For kPossible, before Deduit.
  void Prouve(int cellule, int symbole);

  Bits CandidatsDe(int cellule) const { return candidats_[Unite(kGenreLigne, cellule / N)][cellule % N]; }
  // The candidates of the N cells of a row.
  const MotDe<S>* CandidatsDeLigne(int ligne) const { return candidats_[Unite(kGenreLigne, ligne)]; }
  // Calls f(cell, symbol) for each solution.
  template <class F>
  void ChaqueSolution(F f) const;

 private:
  static constexpr int N = S * S;
  static constexpr int kUnites = 3 * N;
  static constexpr int kVoies = Largeur<S>::kVoies;
  using V = Voies<S>;
  using Mot = MotDe<S>;
  using Figure = FigureDe<S>;
  using Unites = Masque<kMotsUnites<S>>;

  static constexpr Bits kTous = kLieux<S>.tous;
  static Bits Bit(int n) { return Bits{1} << n; }
  // Those above n.
  static Bits Apres(int n) { return ~((Bits{2} << n) - 1); }

  void Retourne();
  void RetournePlaces();
  bool Balaye();
  bool TestSerie(int u);
  void SeulesSolutions(int u, const V& places, Bits symboles);
  void PoseSolution(int cellule, int symbole);
  void Reprouve(int u);
  bool Verrouilles(int u, const V& places, const V& comptes);
  void Inference(int u, int u2, const V& perdants);
  bool Caches(int u, const Mot* places, Bits debuts);
  bool Nus(int u);
  bool NxN();
  bool FiguresDe(int s);
  bool DeLignes(int s, const Mot* p, GenreUnite genre);
  bool DeCarres(int s, const V& carres);
  bool EnLignes(int s, const Mot* lignes, Bits debuts, GenreUnite genre);
  bool EnCarres(int s, const V& voies, Bits debuts, GenreUnite genre, GenreUnite genre2);
  bool Trouve(const Figure& figure);
  bool Agit(const Figure& figure);
  template <class F>
  void ChaquePerte(const Figure& figure, F f);
  static Bits Dedans(const Figure& figure, int i);
  void Enleve(int cellule, Bits symboles);
  void Remplace(int cellule, Bits sequence);
  void Releve();
  void Salit(int cellule);
  void ToutSale();

  const Contenus<S>& contenus_;
  Usage& usage_;
  Appui appui_ = Appui::kSur;

  // Candidates by unit and place, places by unit and symbol; lanes from N on stay 0.
  alignas(64) Mot candidats_[Taille(kUnites)][Taille(kVoies)];
  alignas(64) Mot places_[Taille(kUnites)][Taille(kVoies)];
  Bits prouves_[Taille(kUnites)];         // by unit: symbols proved in it, contents aside
  std::uint8_t solution_[Taille(N * N)];  // symbol + 1
  Bits resolues_[Taille(N)];              // by row: cells with a solution
  Bits seuls_[Taille(N)];   // by row: cells that came down to one candidate since the last Releve
  Unites sales_;            // units some cell of which changed since their own last run
  Bits symbolesSales_ = 0;  // symbols whose places changed since the last search for figures
  bool contradiction_ = false;
  bool aRemplir_ = false;
};

}  // namespace
}  // namespace sudoku::SUDOKU_MOTEUR
