// Bulk runs live on it: after the first grid of side 9, solving allocates nothing.

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

#include "solver/auto_driver.h"

namespace {

std::size_t allocations = 0;

}  // namespace

// Inlined, they make the compiler see free() on what came from new.
[[gnu::noinline]] void* operator new(std::size_t taille) {
  ++allocations;
  if (void* const p = std::malloc(taille == 0 ? 1 : taille)) return p;
  throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* p) noexcept {
  std::free(p);
}
[[gnu::noinline]] void operator delete(void* p, std::size_t) noexcept {
  std::free(p);
}

namespace sudoku {
namespace {

class Muet : public PlateauAuto {
 public:
  void Affiche() override {}
  void Message(TexteVue texte) override { suppositions += texte.starts_with(U"Résolu avec") ? 1 : 0; }
  int suppositions = 0;
};

TEST(Resolution, NAlloueRienApresLaPremiere) {
  // Deduction is enough for the first, the second needs suppositions, the third has no solution.
  constexpr TexteVue kGrilles[] = {
      U".8.5.9...3.7..8...5......162.8.93..461.2...797396......7.43......3..2.95.........",
      U"6.1....2..54..93.1....6.5.....6.1....1...4.5.3..2....6.69...2....3....894.5...7..",
      U"88.5.9...3.7..8...5......162.8.93..461.2...797396......7.43......3..2.95........."};
  GameState jeu;
  Evaluateur evaluateur(jeu);
  Muet plateau;
  AutoDriver driver(jeu, evaluateur, plateau, Lecture::kContenus);
  jeu.VmGrille = Grille::Nouvelle(jeu, U"123456789");
  std::size_t derniere = 0;
  for (int tour = 0; tour < 3; ++tour) {
    const std::size_t avant = allocations;
    for (const TexteVue donnees : kGrilles) {
      jeu.VgEtat = kJeu;
      jeu.VmGrilleEtat = Grille();
      for (int i = 1; i <= 81; ++i) {
        const TexteVue contenu = donnees.substr(static_cast<std::size_t>(i - 1), 1);
        jeu.VmGrille(i).Load(contenu == U"." ? TexteVue() : contenu, kDonnee);
      }
      driver.JeuAuto(true, true);
    }
    derniere = allocations - avant;
  }
  EXPECT_GT(allocations, 0U) << "the counter isn't in force";
  EXPECT_EQ(plateau.suppositions, 3) << "the second grid needs a search, and is solved each time";
  EXPECT_EQ(derniere, 0U);
}

}  // namespace
}  // namespace sudoku
