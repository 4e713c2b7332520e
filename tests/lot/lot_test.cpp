#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <vector>

#include "engine/evaluation.h"
#include "lot/grille.h"
#include "lot/solutions.h"
#include "lot/temoin.h"

namespace sudoku::lot {
namespace {

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
