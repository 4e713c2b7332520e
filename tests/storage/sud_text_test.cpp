#include "storage/sud_text.h"

#include <gtest/gtest.h>

#include <sstream>

#include "storage/temps.h"

namespace sudoku {
namespace {

using namespace std::string_literals;

// A reading, printed: entries as "name=content", "-" for what wasn't reached, the error behind "!".
std::string Resume(const LectureSud& lu) {
  std::string texte = lu.VmValeurs ? VersUtf8(*lu.VmValeurs) : "-";
  texte += lu.grille ? "|" + VersUtf8(*lu.grille) : "|-";
  for (std::size_t i = 1; i < lu.VgParties.size(); ++i) {
    texte += "|" + VersUtf8(lu.VgParties[i].Nom) + "=" + VersUtf8(lu.VgParties[i].Grille);
  }
  texte += "|scores";
  if (!lu.VgScores) texte += " -";
  for (std::size_t i = 1; lu.VgScores && i < lu.VgScores->size(); ++i) {
    texte += " " + VersUtf8((*lu.VgScores)[i].Nom) + "=" + VersUtf8(TempsEnTexte((*lu.VgScores)[i].Temps));
  }
  return lu.erreur ? texte + "!" + std::to_string(*lu.erreur) : texte;
}

TEST(LitSud, ChaqueFormeEtCeQuiResteLu) {
  const struct {
    std::string octets, resume;
  } cas[] = {
      {"", "-|-|scores -!62"},
      {"1", "1|-|scores -!62"},
      {"1\r\n", "1|-|scores -!62"},
      {"\r\n", "|-|scores -!62"},
      {"1\r\n 0", "1| 0|scores -"},
      {"1\r\n\r\n\0"s, "1||scores"},
      {"1\r\n 0\r\n-\r\n\0"s, "1| 0|=|scores"},
      {"1\r\n 0\r\nx- 0-y-z\r\n\0"s, "1| 0|x= 0|scores"},
      {"-1\r\n-0\r\na\x1F"
       "b-\x1F"
       "0\r\n\0c\x1F"
       "d-00:00:01\0"s,
       "-1|-0|a-b=-0|scores c-d=00:00:01"},
      {"1\r\n 0\r\nbon- 0\r\nrien\r\n\0a-00:00:01\0"s, "1| 0|bon= 0|rien=|scores -!9"},
      {"1\r\n 0\r\n\r\n\0"s, "1| 0|=|scores -!9"},
      {"1\r\n 0\r\n\0a-00:00:01\0b-25:00:00\0"s, "1| 0|scores a=00:00:01 b=25:00:00"},
      {"1\r\n 0\r\n\0a-00:00:01"s, "1| 0|scores"},
      {"1\r\n 0\r\n\0a-00:00:01\0b\0c-00:00:03\0"s, "1| 0|scores a=00:00:01 b=00:00:00 =00:00:00!9"},
      {"1\r\n 0\r\n\0a-00:00:01\0b-00:60:00\0c-00:00:03\0"s,
       "1| 0|scores a=00:00:01 b=00:00:00 =00:00:00!13"},
      {"1\r\n 0\r\n\0\0"s, "1| 0|scores =00:00:00!9"},
      {"1\r\n 0\r\n\0a-00:00:01\0\r\n\0b\0"s, "1| 0|scores b=00:00:00!9"},
  };
  for (const auto& c : cas) EXPECT_EQ(Resume(LitSud(c.octets)), c.resume) << testing::PrintToString(c.octets);
}

// Whatever a name or a cell holds beside the two characters that stand for "-" and for each other.
TEST(EcritSud, LesSignesDuTiretReviennent) {
  const Texte lettres = U"-\x1F\x1Ex";
  for (std::size_t n = 0; n < 256; ++n) {
    Texte nom;
    for (std::size_t reste = n; nom.size() < 4; reste /= 4) nom += lettres[reste % 4];
    const LectureSud lu = LitSud(EcritSud(nom, nom, {{}, {nom, nom}}, {{}, {nom, 0}}));
    const std::string un = VersUtf8(nom);
    std::ostringstream attendu;
    attendu << un << '|' << un << '|' << un << '=' << un << "|scores " << un << "=00:00:00";
    ASSERT_EQ(Resume(lu), attendu.str()) << n;
  }
  EXPECT_EQ(EcritSud(U"1", U" 0", {{}, {U"a\x1F\x1E-\x1E", U""}}, {{}}),
            "1\r\n 0\r\na\x1F\x1E\x1E\x1E\x1F\x1E\x1E-\r\n\0"s);
}

TEST(LitSud, PlusDEntreesQuAucunJeu) {
  std::string parties, scores;
  for (std::size_t i = 0; i < kEntreesMax; ++i) {
    parties += "-\n";
    scores += "-0:00:00\0"s;
  }
  const std::string debut = "1\n 0\n";
  const LectureSud plein = LitSud(debut + parties + "\0"s + scores);
  EXPECT_EQ(plein.erreur, std::nullopt);
  EXPECT_EQ(plein.VgParties.size(), kEntreesMax + 1);
  const LectureSud trop = LitSud(debut + parties + "-\n");
  EXPECT_EQ(trop.erreur, kIndiceHorsSelection);
  EXPECT_EQ(trop.VgParties.size(), kEntreesMax + 1);
  const LectureSud tropDeScores = LitSud(debut + "\0"s + scores + "-0:00:00\0"s);
  EXPECT_EQ(tropDeScores.erreur, kIndiceHorsSelection);
  EXPECT_FALSE(tropDeScores.VgScores);
}

}  // namespace
}  // namespace sudoku
