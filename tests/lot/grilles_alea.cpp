// grilles_alea SIDE COUNT SEED [dixieme]: prints random grids, a line each, for sudoku-lot verifier. Full
// grids, emptied more or less, so that some have one solution and some several; in one of six a symbol is
// changed, and most of those have none. With the last word one open cell in ten holds an entry of the
// player's, right and unproved.
#include <algorithm>
#include <cmath>
#include <iostream>
#include <string>
#include <utility>
#include <vector>

#include "apps/lot_solutions.h"
#include "plain/random_boards.h"

namespace sudoku {
namespace {

using plain::Hasard;

constexpr std::string_view kSymboles = "123456789ABCDEFG";

std::size_t At(int i) {
  return static_cast<std::size_t>(i);
}

class Grille {
 public:
  // Each row is the one above, shifted.
  Grille(int n, Hasard& hasard) : n_(n), s_(static_cast<int>(std::lround(std::sqrt(n)))), hasard_(hasard) {
    for (int l = 0; l < n; ++l) {
      for (int c = 0; c < n; ++c) cases_.push_back((l % s_ * s_ + l / s_ + c) % n);
    }
    for (int k = 0; k < 4 * n; ++k) Echange();
  }
  std::string Ligne(bool dixieme);

 private:
  void Echange();
  std::string Ecrit(const std::vector<int>& donnees, bool dixieme);
  bool Voisines(int i, int j) const {
    return i / n_ == j / n_ || i % n_ == j % n_ || (i / n_ / s_ == j / n_ / s_ && i % n_ / s_ == j % n_ / s_);
  }

  int n_;
  int s_;
  Hasard& hasard_;
  std::vector<int> cases_;
  Geometrie geometrie_{n_};
  lot::CompteurSolutions compteur_;
};

// Two symbols change places in cells that hang together, which leaves no unit with one of them twice.
void Grille::Echange() {
  const int a = hasard_.Entier(n_);
  const int b = (a + 1 + hasard_.Entier(n_ - 1)) % n_;
  std::vector<int> chaine;
  std::vector<bool> vue(cases_.size());
  const auto prend = [&](int i) {
    vue[At(i)] = true;
    chaine.push_back(i);
  };
  for (int i = hasard_.Entier(n_ * n_); chaine.empty(); i = (i + 1) % (n_ * n_)) {
    if (cases_[At(i)] == a) prend(i);
  }
  // NOLINTNEXTLINE(modernize-loop-convert): the chain grows on the way
  for (std::size_t k = 0; k < chaine.size(); ++k) {
    for (int j = 0; j < n_ * n_; ++j) {
      const bool desDeux = cases_[At(j)] == a || cases_[At(j)] == b;
      if (desDeux && !vue[At(j)] && Voisines(chaine[k], j)) prend(j);
    }
  }
  for (const int i : chaine) cases_[At(i)] = cases_[At(i)] == a ? b : a;
}

// What is left of the grid, and in every second one that has one solution, only as much as it takes for that.
// On side 16, where counting takes long, a few cells more are tried, not all.
std::string Grille::Ligne(bool dixieme) {
  const int reste = (n_ == 4 ? 15 : n_ == 9 ? 30 : 45) + hasard_.Entier(40);
  std::vector<int> ordre, donnees(cases_.size() + 1, -1);
  for (int i = 0; i < n_ * n_; ++i) {
    ordre.push_back(i);
    if (hasard_.Pourcent(reste)) donnees[At(i + 1)] = cases_[At(i)];
  }
  if (hasard_.UneFoisSur(6)) donnees[At(1 + hasard_.Entier(n_ * n_))] = hasard_.Entier(n_);
  hasard_.Melange(ordre);
  if (hasard_.UneFoisSur(2) && compteur_.Compte(geometrie_, donnees) == 1) {
    ordre.resize(std::min<std::size_t>(ordre.size(), 120));
    for (const int i : ordre) {
      const int donnee = std::exchange(donnees[At(i + 1)], -1);
      if (donnee >= 0 && compteur_.Compte(geometrie_, donnees) != 1) donnees[At(i + 1)] = donnee;
    }
  }
  return Ecrit(donnees, dixieme);
}

// An entry isn't counted among what makes the solution unique: it comes in where the cell is empty.
std::string Grille::Ecrit(const std::vector<int>& donnees, bool dixieme) {
  std::string ligne;
  for (int i = 0; i < n_ * n_; ++i) {
    const bool entree = dixieme && donnees[At(i + 1)] < 0 && hasard_.UneFoisSur(10);
    const int valeur = entree ? cases_[At(i)] : donnees[At(i + 1)];
    ligne += valeur >= 0 ? kSymboles[At(valeur)] : dixieme ? ' ' : '.';
    if (dixieme) ligne += entree ? '2' : '0';
  }
  return ligne;
}

}  // namespace
}  // namespace sudoku

int main(int argc, char** argv) {
  if (argc < 4) {
    std::cerr << "usage : grilles_alea SIDE COUNT SEED [dixieme]\n";
    return 2;
  }
  const int n = std::stoi(argv[1]);
  sudoku::plain::Hasard hasard(std::stoull(argv[3]));
  for (int k = std::stoi(argv[2]); k > 0; --k) std::cout << sudoku::Grille(n, hasard).Ligne(argc > 4) << '\n';
}
