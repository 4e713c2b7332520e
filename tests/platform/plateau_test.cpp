#include "platform/plateau.h"

#include <gtest/gtest.h>

namespace sudoku {
namespace {

TEST(Plateau, ListeChaqueCaseEcriteUneFoisEtAucuneEcritureSansEffet) {
  Plateau plateau;
  for (int i = 0; i < 4; ++i) plateau.AjouteCase(240 + 390 * i, 600);
  plateau.Couleurs(3, kGris, kNoir);
  plateau.Acces(3, true, false);
  plateau.Text(1, U"4");
  plateau.Couleurs(2, kBlanc, kNoir);
  EXPECT_EQ(plateau.Changees(), (std::vector<std::int32_t>{3, 1}));
  plateau.Efface();
  EXPECT_EQ(plateau.Changees(), std::vector<std::int32_t>{});
}

}  // namespace
}  // namespace sudoku
