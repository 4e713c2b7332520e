#include "grid/grille_texte.h"

#include <gtest/gtest.h>

namespace sudoku {
namespace {

// What was read, as one line with "." for an empty cell; "rien" where the text is no grid.
std::string Lu(TexteVue texte, TexteVue symboles) {
  const auto cases = LitGrilleTexte(texte, symboles);
  return cases ? VersUtf8(EcritGrilleTexte(*cases)) : "rien";
}

TEST(GrilleTexte, FormesCourantesEtPresqueGrilles) {
  const struct {
    TexteVue symboles, texte;
    std::string lu;
  } cas[] = {
      {U"1234", U"1..4.0_*34122143", "1..4....34122143"},
      {U"1234", U"1..4....34122143\n", "1..4....34122143"},
      {U"1234", U"1..4\r\n....\r\n3412\r\n2143\r\n", "1..4....34122143"},
      {U"1234", U"1  4\n    \n3412\n2143", "1..4....34122143"},
      {U"1234", U"1 . | . 4\n. . | . .\n----+----\n3 4 | 1 2\n2 1 | 4 3", "1..4....34122143"},
      {U"1234", U"+--+--+\n|1 | 4|\n|  |  |\n+--+--+\n|34|12|\n|21|43|\n+--+--+", "1..4....34122143"},
      {U"1234", U"\n1..4\n\n....\n3412\n2143\n\n", "1..4....34122143"},
      {U"abcd", U"A..d....cDabbadc", "A..d....cDabbadc"},
      {U"01-.", U"01-._*  01-.01-.", "01-.....01-.01-."},
      {U"1234", U"1..4....3412214", "rien"},
      {U"1234", U"1..4....341221433", "rien"},
      {U"1234", U"1..4....34122145", "rien"},
      {U"1234", U"1..4....\n34122143", "rien"},
      {U"1234", U"1..4\n....\n3412", "rien"},
      {U"1234", U"", "rien"},
      {U"", U"", "rien"},
  };
  for (const auto& c : cas) EXPECT_EQ(Lu(c.texte, c.symboles), c.lu) << VersUtf8(c.texte);
}

TEST(GrilleTexte, EcritUnCaractereParCase) {
  EXPECT_EQ(EcritGrilleTexte({U"1", U"", U"34", U"é"}), U"1.3é");
}

}  // namespace
}  // namespace sudoku
