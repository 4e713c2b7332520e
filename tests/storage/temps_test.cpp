#include "storage/temps.h"

#include <gtest/gtest.h>

namespace sudoku {
namespace {

TEST(Temps, TexteArrondiALaSeconde) {
  const struct {
    std::int64_t millisecondes;
    TexteVue texte;
  } cas[] = {{0, U"00:00:00"},          {499, U"00:00:00"},        {500, U"00:00:01"},
             {1'499, U"00:00:01"},      {1'500, U"00:00:02"},      {59'500, U"00:01:00"},
             {197'000, U"00:03:17"},    {3'599'499, U"00:59:59"},  {86'399'499, U"23:59:59"},
             {86'399'500, U"24:00:00"}, {90'609'000, U"25:10:09"}, {360'000'000, U"100:00:00"},
             {-1, U"00:00:00"},         {-300'000, U"00:00:00"}};
  for (const auto& c : cas) EXPECT_EQ(TempsEnTexte(Jours(c.millisecondes)), c.texte) << c.millisecondes;
}

TEST(Temps, UneDemiSecondeMonteEtCeQuiFutEcritSeRelit) {
  for (std::int64_t s = 0; s < 200'000; s += 7) {
    EXPECT_EQ(TempsEnTexte(Jours(s * 1000 + 500)), TempsEnTexte(Jours((s + 1) * 1000))) << s;
    EXPECT_EQ(TempsEnTexte(Jours(s * 1000 + 499)), TempsEnTexte(Jours(s * 1000))) << s;
  }
  for (const std::int64_t s :
       {0LL, 1LL, 59LL, 3'600LL, 86'399LL, 86'400LL, 1'000'003LL, 9'007'199'250'000LL}) {
    const double jours = Jours(s * 1000);
    EXPECT_EQ(TexteEnTemps(TempsEnTexte(jours)), jours) << s;
  }
}

TEST(Temps, TextesRefuses) {
  for (const TexteVue texte :
       {U"", U"0", U"00:00", U":00:00", U"00:60:00", U"00:00:60", U"00:0:00", U"00:00:0", U"00:00:00 ",
        U" 00:00:00", U"-1:00:00", U"+1:00:00", U"00;00:00", U"00:00.00", U"1a:00:00", U"٠٠:00:00",
        U"00:00:00:00", U"9999999999:00:00", U"99999999999999999999999999999999:00:00"}) {
    EXPECT_EQ(TexteEnTemps(texte), std::nullopt) << VersUtf8(texte);
  }
  EXPECT_EQ(TexteEnTemps(U"1:02:03"), Jours(3'723'000)) << "one digit of hours";
  EXPECT_EQ(TexteEnTemps(U"0000000001:00:00"), Jours(3'600'000)) << "leading zeros";
}

}  // namespace
}  // namespace sudoku
