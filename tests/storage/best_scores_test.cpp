#include "storage/best_scores.h"

#include <gtest/gtest.h>

namespace sudoku {
namespace {

std::vector<TypScore> Table(const std::vector<double>& temps) {
  std::vector<TypScore> table(1);
  for (const double t : temps) table.push_back({U"ancien", t});
  return table;
}

// The times behind entry 0, the new entry's negated.
std::vector<double> Temps(const std::vector<TypScore>& table) {
  std::vector<double> temps;
  for (std::size_t i = 1; i < table.size(); ++i) {
    temps.push_back(table[i].Nom == U"neuf" ? -table[i].Temps : table[i].Temps);
  }
  return temps;
}

TEST(BestScores, PlaceDUnTemps) {
  const struct {
    std::vector<double> avant;
    double temps;
    bool hors;
    std::vector<double> apres;
  } cas[] = {
      {{}, 5, false, {-5}},
      {{3}, 5, false, {3, -5}},
      {{5}, 3, false, {-3, 5}},
      {{3, 5, 5, 7}, 5, false, {3, 5, 5, -5, 7}},
      {{1, 2, 3, 4, 5, 6, 7, 8, 9}, 10, false, {1, 2, 3, 4, 5, 6, 7, 8, 9, -10}},
      {{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}, 10, true, {}},
      {{1, 2, 3, 4, 5, 6, 7, 8, 9, 11}, 10, false, {1, 2, 3, 4, 5, 6, 7, 8, 9, -10}},
      {{1, 2, 3, 4, 5, 6, 7, 8, 9, 11}, 0.5, false, {-0.5, 1, 2, 3, 4, 5, 6, 7, 8, 9}},
      {{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}, 11.5, false, {1, 2, 3, 4, 5, 6, 7, 8, 9, -11.5}},
      {{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}, 12, true, {}},
      {{9, 1}, 5, false, {-5, 9, 1}},  // a table out of order, as a file can bring it
  };
  for (const auto& c : cas) {
    const auto avant = Table(c.avant);
    EXPECT_EQ(HorsClassement(avant, c.temps), c.hors) << c.temps;
    if (!c.hors) {
      EXPECT_EQ(Temps(AvecScore(avant, {U"neuf", c.temps})), c.apres) << c.temps;
    }
  }
}

}  // namespace
}  // namespace sudoku
