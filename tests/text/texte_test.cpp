#include "text/texte.h"

#include <gtest/gtest.h>

namespace sudoku {
namespace {

TEST(Texte, IgnoreLaCasseCodePointParCodePoint) {
  const struct {
    char32_t a, b;
    bool egal;
  } cas[] = {{U'a', U'A', true},  {U'É', U'é', true},  {U'Œ', U'œ', true},  {U'Ÿ', U'ÿ', true},
             {U'Σ', U'σ', true},  {U'İ', U'i', true},  {U'Ж', U'ж', true},  {U'ς', U'σ', false},
             {U'ſ', U's', false}, {U'e', U'é', false}, {U'@', U'`', false}, {U'[', U'{', false}};
  for (const auto& c : cas) EXPECT_EQ(Egal(c.a, c.b), c.egal) << std::hex << std::uint32_t(c.a);
}

TEST(Texte, SansEnleveDeGaucheADroiteUneSeuleFois) {
  const struct {
    TexteVue texte, retire, reste;
  } cas[] = {{U"1234", U"12", U"34"}, {U"1324", U"12", U"1324"}, {U"ab", U"B", U"a"},
             {U"aabb", U"ab", U"ab"}, {U"aaa", U"aa", U"a"},     {U"aAbB", U"a", U"bB"},
             {U"123", U"", U"123"},   {U"", U"1", U""}};
  for (const auto& c : cas) EXPECT_EQ(Sans(c.texte, c.retire), c.reste) << VersUtf8(c.texte);
}

TEST(Texte, MontrableNEnvoieRienAuTerminal) {
  const struct {
    std::string_view octets, montre;
  } cas[] = {{"\x1B]0;a\x07", "\\x1B]0;a\\x07"}, {"\xC2\x9D\xC2\xA0", "\\x9D\xC2\xA0"},
             {"\x7F\x9D", "\\x7F\\x9D"},         {"é\n\r", "é\n\\x0D"},
             {"\xE2\x82", "\\xE2\\x82"},         {{"\0~", 2}, "\\x00~"}};
  for (const auto& c : cas) EXPECT_EQ(Montrable(c.octets, "\n\t"), c.montre);
}

TEST(Texte, Utf8MalForme) {
  EXPECT_EQ(DepuisUtf8("a\xC3\xA9\xFF\xE2\x82"), U"aé\xFFFD\xFFFD\xFFFD");
  EXPECT_EQ(DepuisUtf8Strict("a\xC3\xA9"), Texte(U"aé"));
  EXPECT_EQ(DepuisUtf8Strict("\xED\xA0\x80"), std::nullopt) << "a surrogate";
  EXPECT_EQ(DepuisUtf8Strict("\xC0\xAF"), std::nullopt) << "an overlong form";
  EXPECT_EQ(VersUtf8(U"é\x1F600"), "\xC3\xA9\xF0\x9F\x98\x80");
}

}  // namespace
}  // namespace sudoku
