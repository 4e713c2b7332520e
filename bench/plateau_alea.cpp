#include "plateau_alea.h"

#include <algorithm>
#include <numeric>
#include <random>
#include <stdexcept>
#include <vector>

#include "engine/evaluation.h"

namespace sudoku::bench {
namespace {

// The library's distributions differ from one compiler to the next; this doesn't.
class Tirage {
 public:
  explicit Tirage(std::uint32_t graine) : suite_(graine) {}

  template <class T>
  void Bat(std::vector<T>& elements) {
    for (std::size_t i = elements.size(); i > 1; --i) std::swap(elements[i - 1], elements[suite_() % i]);
  }
  std::vector<int> Ordre(int n) {
    std::vector<int> ordre(static_cast<std::size_t>(n));
    std::iota(ordre.begin(), ordre.end(), 0);
    Bat(ordre);
    return ordre;
  }
  // Rows, or columns: bands in any order, and any order in each.
  std::vector<int> OrdreParBandes(int S) {
    std::vector<int> ordre;
    for (const int bande : Ordre(S)) {
      for (const int i : Ordre(S)) ordre.push_back(bande * S + i);
    }
    return ordre;
  }

 private:
  std::mt19937 suite_;
};

std::vector<int> GrillePleine(int N, Tirage& tirage) {
  const int S = Geometrie(N).S();
  const std::vector<int> symboles = tirage.Ordre(N);
  const std::vector<int> lignes = tirage.OrdreParBandes(S);
  const std::vector<int> colonnes = tirage.OrdreParBandes(S);
  std::vector<int> pleine;
  for (const int l : lignes) {
    for (const int c : colonnes) {
      pleine.push_back(symboles[static_cast<std::size_t>((l % S * S + l / S + c) % N)]);
    }
  }
  return pleine;
}

// Both passes ran to their end: there is nothing to fill in, and no entry was judged.
bool DeuxPasses(const Alea& alea) {
  GameState jeu;
  jeu.VgEtat = kJeu;
  Grille grille = Grille::Nouvelle(jeu, SymbolesPour(alea.N));
  Charge(alea, grille);
  const std::vector<std::int32_t> etats = grille.Donnees().etat;
  Evaluateur(jeu).Evaluation(grille, 2);
  if (grille.Donnees().etat != etats) return false;
  for (int i = 1; i <= grille.Borne(); ++i) {
    const ClsPos c = grille(i);
    if (c.ValeurSaisie().empty() && !(c.SolutionSure().empty() && c.SolutionPoss().empty())) return false;
  }
  return true;
}

}  // namespace

Texte SymbolesPour(int N) {
  constexpr char32_t kPremier = 0x4E00;
  Texte symboles;
  for (int i = 0; i < N; ++i)
    symboles += N == 9 ? U'1' + static_cast<char32_t>(i) : kPremier + static_cast<char32_t>(i);
  return symboles;
}

void Charge(const Alea& alea, const Grille& grille) {
  Tirage tirage(alea.graine);
  const std::vector<int> pleine = GrillePleine(alea.N, tirage);
  std::vector<int> cellules = tirage.Ordre(alea.N * alea.N);
  if (alea.symboles) {
    std::stable_sort(cellules.begin(), cellules.end(), [&](int a, int b) {
      return pleine[static_cast<std::size_t>(a)] < pleine[static_cast<std::size_t>(b)];
    });
  }
  const Texte symboles = SymbolesPour(alea.N);
  const int remplies = grille.Borne() * alea.rempli / 100;
  const int vides = grille.Borne() - remplies;
  const int saisies = alea.dixieme ? remplies / 10 : 0;
  // The player's entries stand among the cells emptied last: in the `symboles` form they are of emptied
  // symbols.
  for (int i = 0; i < grille.Borne(); ++i) {
    const int cellule = cellules[static_cast<std::size_t>(i)];
    const auto symbole =
        TexteVue(symboles).substr(static_cast<std::size_t>(pleine[static_cast<std::size_t>(cellule)]), 1);
    const bool vide = i < vides;
    grille(cellule + 1).Load(vide ? TexteVue() : symbole, !vide && i < vides + saisies ? kPossible : kDonnee);
  }
}

Alea PlateauDeuxPasses(int N) {
  constexpr std::uint32_t kEssais = 50;
  for (const bool symboles : {false, true}) {
    for (std::uint32_t graine = 1; graine <= kEssais; ++graine) {
      const Alea alea{.N = N, .rempli = 50, .dixieme = true, .symboles = symboles, .graine = graine};
      if (DeuxPasses(alea)) return alea;
    }
  }
  throw std::runtime_error("no board of this side runs both passes");
}

}  // namespace sudoku::bench
