#include "text/cp1252.h"

#include <gtest/gtest.h>

#include <vector>

namespace sudoku {
namespace {

using namespace std::string_literals;

std::vector<Texte> Lignes(std::string_view octets) {
  std::vector<Texte> lignes;
  for (LignesFichier lecteur(octets); !lecteur.Fin();) lignes.push_back(lecteur.Suivante());
  return lignes;
}

TEST(Cp1252, ChaqueOctetEstUnCaractereEtRevient) {
  for (int i = 0; i < 256; ++i) {
    const std::string octet(1, static_cast<char>(i));
    EXPECT_EQ(VersCp1252(DepuisCp1252(octet)), octet) << i;
  }
}

TEST(Cp1252, CaracteresHorsDeLatin1) {
  const struct {
    const char* octets;
    TexteVue texte;
  } cas[] = {{"\x80", U"€"},    {"\x8C\x9C", U"Œœ"}, {"\x9F", U"Ÿ"},      {"\x85\x99", U"…™"},
             {"\x81", U"\x81"}, {"\x9D", U"\x9D"},   {"\xE9\xFF", U"éÿ"}, {"\xA0", U"\xA0"}};
  for (const auto& c : cas) {
    EXPECT_EQ(DepuisCp1252(c.octets), c.texte) << VersUtf8(c.texte);
    EXPECT_EQ(VersCp1252(c.texte), c.octets) << VersUtf8(c.texte);
  }
  for (const char32_t absent : {U'\x80', U'\x9F', U'α', U'Ā', U'\x10152'}) {
    EXPECT_EQ(VersCp1252(Texte(1, absent)), std::nullopt) << std::hex << std::uint32_t(absent);
  }
}

TEST(FichierTexte, Utf8SeulementOuLaPageNeSuffitPas) {
  const struct {
    TexteVue texte;
    std::string octets;
  } cas[] = {{U"été", "\xE9t\xE9"},
             {U"", ""},
             {U"éα", "\xEF\xBB\xBF\xC3\xA9\xCE\xB1"},
             {U"ï»¿", "\xEF\xBB\xBF\xC3\xAF\xC2\xBB\xC2\xBF"},
             {U"ï»", "\xEF\xBB"},
             {U"aï»¿", "a\xEF\xBB\xBF"},
             {U"\xFEFF", "\xEF\xBB\xBF\xEF\xBB\xBF"}};
  for (const auto& c : cas) {
    FichierTexte texte;
    for (const char32_t caractere : c.texte) texte += caractere;
    EXPECT_EQ(std::move(texte).Octets(), c.octets) << VersUtf8(c.texte);
    if (!c.texte.empty()) {
      EXPECT_EQ(Lignes(c.octets), std::vector{Texte(c.texte)}) << VersUtf8(c.texte);
    }
  }
}

TEST(FichierTexte, FinsDeLigne) {
  const struct {
    std::string octets;
    std::vector<Texte> lignes;
  } cas[] = {{"", {}},
             {"\xEF\xBB\xBF", {}},
             {"a", {U"a"}},
             {"a\n", {U"a"}},
             {"a\r\nb", {U"a", U"b"}},
             {"\r\n\n", {U"", U""}},
             {"a\r", {U"a\r"}},
             {"a\rb\r\r\nc", {U"a\rb\r", U"c"}},
             {"a\r\n\0"s, {U"a", Texte(1, U'\0')}},
             {"\xEF\xBB\xBF\xE2\x82\n\xC3\xA9", {U"\xFFFD\xFFFD", U"é"}}};
  for (const auto& c : cas) EXPECT_EQ(Lignes(c.octets), c.lignes) << testing::PrintToString(c.octets);
}

}  // namespace
}  // namespace sudoku
