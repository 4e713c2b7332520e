#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <vector>

#include "engine/evaluation.h"
#include "lot/grille.h"
#include "lot/solutions.h"
#include "lot/temoin.h"

namespace sudoku::lot {
namespace {

using Grille4 = std::array<int, 17>;  // by cell; element 0 unused

bool Libre(const Grille4& grille, std::size_t cellule, int symbole) {
  const auto carre = [](std::size_t i) { return (i - 1) / 8 * 2 + (i - 1) % 4 / 2; };
  for (std::size_t i = 1; i < grille.size(); ++i) {
    const bool voisine =
        (i - 1) / 4 == (cellule - 1) / 4 || (i - 1) % 4 == (cellule - 1) % 4 || carre(i) == carre(cellule);
    if (i != cellule && voisine && grille[i] == symbole) return false;
  }
  return true;
}

// The solutions from this cell on, two at the most, by trying everything.
int EnEssayant(Grille4 grille, std::size_t cellule = 1) {
  if (cellule == grille.size()) return 1;
  const int donnee = grille[cellule];
  int nombre = 0;
  for (int s = 0; s < 4; ++s) {
    grille[cellule] = s;
    if ((donnee < 0 || donnee == s) && Libre(grille, cellule, s)) nombre += EnEssayant(grille, cellule + 1);
  }
  return std::min(nombre, 2);
}

TEST(CompteurSolutions, CommeEnEssayantTout) {
  const Geometrie geometrie(4);
  CompteurSolutions compteur;
  std::mt19937 alea(4);
  std::array<int, 3> vus{};
  for (int essai = 0; essai < 3000; ++essai) {
    // Cells of a right grid, and sometimes another symbol.
    Grille4 donnees{};
    for (std::size_t i = 1; i < donnees.size(); ++i) {
      const std::size_t juste = ((i - 1) / 4 % 2 * 2 + (i - 1) / 8 + (i - 1)) % 4;
      donnees[i] = alea() % 10 < 6 ? -1 : static_cast<int>(alea() % 16 == 0 ? alea() % 4 : juste);
    }
    const int attendues = EnEssayant(donnees);
    ASSERT_EQ(compteur.Compte(geometrie, donnees), attendues) << "try " << essai;
    ++vus[static_cast<std::size_t>(attendues)];
    if (attendues == 0) continue;
    Grille4 trouvee{};
    std::copy_n(compteur.Solution().begin() + 1, 16, trouvee.begin() + 1);
    EXPECT_EQ(EnEssayant(trouvee), 1) << "try " << essai;
    for (std::size_t i = 1; i < donnees.size(); ++i) EXPECT_TRUE(donnees[i] < 0 || donnees[i] == trouvee[i]);
  }
  EXPECT_GT(*std::ranges::min_element(vus), 300) << "each count is met often";
}

TEST(CompteurSolutions, UneSeuleCase) {
  CompteurSolutions compteur;
  EXPECT_EQ(compteur.Compte(Geometrie(1), std::array{0, -1}), 1);
  EXPECT_EQ(compteur.Solution()[1], 0);
}

// A grid with one solution, evaluated, and a witness to hold it against. Locked candidates, hidden and naked
// sets and figures take part, and no cell can be filled.
class TemoinTest : public testing::Test {
 protected:
  TemoinTest() {
    EXPECT_FALSE(
        lecteur_.Lit("..1.8..37...7.3...473.9.8.539781..5..459371.818.....7..6.3..79.7.96.85..5...79.86"));
    std::vector<int> positions;
    for (const Code code : B().saisie) positions.push_back(B().alphabet->Position(code));
    EXPECT_EQ(compteur_.Compte(*B().geometrie, positions), 1);
    jeu_.VgEtat = kJeu;
    EXPECT_EQ(Evaluateur(jeu_).Evaluation(jeu_.VmGrille, 2), 39);
  }
  Bloc& B() { return jeu_.VmGrille.Donnees(); }
  std::int64_t Contradictions(int verdict = 39) {
    Temoin temoin(compteur_.Solution(), true);
    temoin.Examine(jeu_.VmGrille, verdict);
    return temoin.Contradictions();
  }

  GameState jeu_;
  LecteurGrille lecteur_{jeu_, U"123456789"};
  CompteurSolutions compteur_;
};

TEST_F(TemoinTest, VerdictSolutionsEtCandidats) {
  EXPECT_EQ(Contradictions(), 0);
  EXPECT_EQ(Contradictions(-1), 1);
  constexpr std::size_t kOuverte = 1;
  const int juste = compteur_.Solution()[kOuverte];
  const Code fausse = (juste + 1) % 9;
  B().sure[kOuverte] = fausse;
  EXPECT_EQ(Contradictions(), 1);
  B().sure[kOuverte] = juste;
  B().poss[kOuverte] = fausse;
  EXPECT_EQ(Contradictions(), 1);
  B().poss[kOuverte] = juste;
  EXPECT_EQ(Contradictions(), 0);
  B().candidats[kOuverte] &= ~(std::uint64_t{1} << juste);
  EXPECT_EQ(Contradictions(), 1);
}

// A sentence that speaks of other places, or takes the solution from its cell, is caught whatever its kind.
TEST_F(TemoinTest, Phrases) {
  using Genre = Argument::Genre;
  std::vector<Genre> genres;
  for (Fait& fait : B().journal.faits) {
    Argument& a = B().journal.arguments[fait.argument];
    const Argument sauve = a;
    std::uint64_t& lieux = B().journal.mots[a.genre == Genre::kInference ? a.masques : a.masques + 1];
    lieux ^= 0x1FF;
    EXPECT_GT(Contradictions(), 0) << "other places, kind " << static_cast<int>(a.genre);
    lieux ^= 0x1FF;
    const int solution = compteur_.Solution()[static_cast<std::size_t>(fait.cellule)];
    if (a.genre == Genre::kInference || a.genre == Genre::kFigure) a.symbole = solution;
    const std::size_t exclus = a.genre == Genre::kCachee ? static_cast<std::size_t>(fait.exclus) : a.masques;
    const std::uint64_t mot = B().journal.mots[exclus];
    if (a.genre == Genre::kCachee || a.genre == Genre::kNue)
      B().journal.mots[exclus] |= std::uint64_t{1} << solution;
    EXPECT_GT(Contradictions(), 0) << "loses its solution, kind " << static_cast<int>(a.genre);
    B().journal.mots[exclus] = mot;
    a = sauve;
    genres.push_back(a.genre);
  }
  EXPECT_EQ(Contradictions(), 0) << "put back";
  for (const Genre genre : {Genre::kInference, Genre::kCachee, Genre::kNue, Genre::kFigure}) {
    EXPECT_GT(std::ranges::count(genres, genre), 0) << "kind " << static_cast<int>(genre);
  }
}

}  // namespace
}  // namespace sudoku::lot
