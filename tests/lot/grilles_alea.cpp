// grilles_alea SIDE COUNT SEED [dixieme]: prints random grids, a line each, for sudoku-lot verifier. Full
// grids, emptied more or less, so that some have one solution and some several; in one of six a symbol is
// changed, and most of those have none. With the last word one open cell in ten holds an entry of the
// player's, right and unproved.
#include <algorithm>
#include <iostream>
#include <string>
#include <utility>
#include <vector>

#include "lot/solutions.h"
#include "plain/random_boards.h"

namespace sudoku {
namespace {

using plain::Hasard;

// What is left of the grid, and in every second one that has one solution, only as much as it takes for that.
// On side 16, where counting takes long, a few cells more are tried, not all. By cell, from 1.
std::vector<int> Donnees(Hasard& hasard, int n, const std::vector<int>& pleine) {
  const Geometrie geometrie(n);
  lot::CompteurSolutions compteur;
  const int reste = (n == 4 ? 15 : n == 9 ? 30 : 45) + hasard.Entier(40);
  std::vector<int> donnees(1, -1);
  std::vector<std::size_t> ordre;
  for (const int symbole : pleine) {
    ordre.push_back(donnees.size());
    donnees.push_back(hasard.Pourcent(reste) ? symbole : -1);
  }
  hasard.Melange(ordre);
  if (hasard.UneFoisSur(6)) donnees[ordre[0]] = hasard.Entier(n);
  if (hasard.UneFoisSur(2) || compteur.Compte(geometrie, donnees) != 1) return donnees;
  ordre.resize(std::min<std::size_t>(ordre.size(), 120));
  for (const std::size_t i : ordre) {
    const int donnee = std::exchange(donnees[i], -1);
    if (donnee >= 0 && compteur.Compte(geometrie, donnees) != 1) donnees[i] = donnee;
  }
  return donnees;
}

// An entry isn't counted among what makes the solution unique: it comes in where the cell is empty.
std::string Ligne(Hasard& hasard, int n, bool dixieme) {
  const std::vector<int> pleine = plain::GrillePleine(hasard, n);
  const std::vector<int> donnees = Donnees(hasard, n, pleine);
  std::string ligne;
  for (std::size_t i = 0; i < pleine.size(); ++i) {
    const bool entree = dixieme && donnees[i + 1] < 0 && hasard.UneFoisSur(10);
    const int valeur = entree ? pleine[i] : donnees[i + 1];
    ligne += valeur >= 0 ? "123456789ABCDEFG"[valeur] : dixieme ? ' ' : '.';
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
  for (int k = std::stoi(argv[2]); k > 0; --k) std::cout << sudoku::Ligne(hasard, n, argc > 4) << '\n';
}
