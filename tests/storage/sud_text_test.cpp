#include "storage/sud_text.h"

#include <gtest/gtest.h>

#include "storage/state_string.h"
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
      {"1\n 0\nx- 0\n\0"s, "1| 0|x= 0|scores"},
      {"1\r\n 0\r\n- 0\r\n\0"s, "1| 0|= 0|scores"},
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
      {"1\r\n 0\r\n\0a-00:00:01\0b-00:00"s, "1| 0|scores a=00:00:01"},
      {"1\r\n 0\r\n\0a-00:00:01"s, "1| 0|scores"},
      {"1\r\n 0\r\n\0a-00:00:01\0b\0c-00:00:03\0"s, "1| 0|scores a=00:00:01 b=00:00:00 =00:00:00!9"},
      {"1\r\n 0\r\n\0a-00:00:01\0b-00:60:00\0c-00:00:03\0"s,
       "1| 0|scores a=00:00:01 b=00:00:00 =00:00:00!13"},
      {"1\r\n 0\r\n\0a-00:00:01-x\0\r\n"s, "1| 0|scores a=00:00:01"},
      {"1\r\n 0\r\n\0\0"s, "1| 0|scores =00:00:00!9"},
      {"1\r\n 0\r\n\0a-00:00:01\0\r\nx- 0\r\n\0b-00:00:02\0"s, "1| 0|x= 0|scores b=00:00:02"},
      {"1\r\n 0\r\n\0a-00:00:01\0\r\n\0b\0"s, "1| 0|scores b=00:00:00!9"},
      {"\xEF\xBB\xBF\xCE\xB1\r\n\xCE\xB1"
       "0\r\n",
       "α|α0|scores -"},
      {"\xC9\r\n\xC9"
       "0\r\n",
       "É|É0|scores -"},
  };
  for (const auto& c : cas) EXPECT_EQ(Resume(LitSud(c.octets)), c.resume) << testing::PrintToString(c.octets);
}

// What a file makes of itself when it is read and written again.
std::string Recopie(const std::string& octets) {
  const LectureSud lu = LitSud(octets);
  return EcritSud(*lu.VmValeurs, *lu.grille, lu.VgParties, *lu.VgScores);
}

TEST(EcritSud, RelitEtRecritALOctetPourToutesLesTailles) {
  for (const std::size_t N : {1U, 4U, 9U, 16U, 25U, 169U}) {
    for (const char32_t premier : {U'-', U'!', U'À', U'Œ', U'α', U'\x10300'}) {
      Texte symboles;
      for (std::size_t i = 0; i < N; ++i) symboles += premier + static_cast<char32_t>(i);
      GameState jeu;
      Grille grille = Grille::Nouvelle(jeu, symboles);
      for (int i = 1; i <= grille.Borne(); i += 3) {
        grille(i).Load(symboles.substr(static_cast<std::size_t>(i) % symboles.size(), 1), i % 4);
      }
      const std::vector<ClsPartie> parties = {{}, {U"Œuvre-d'été €", ChaineEtats(grille)}, {U"", U""}};
      const std::vector<TypScore> scores = {{}, {U"Jean-Luc", Jours(197'000)}, {U"", Jours(90'609'000)}};
      const std::string octets = EcritSud(symboles, ChaineInitiale(grille), parties, scores);
      const LectureSud lu = LitSud(octets);
      EXPECT_EQ(lu.erreur, std::nullopt);
      EXPECT_EQ(lu.VmValeurs, symboles);
      ASSERT_EQ(lu.VgParties.size(), 3U);
      EXPECT_EQ(lu.VgParties[1].Nom, parties[1].Nom);
      EXPECT_EQ(lu.VgParties[1].Grille, parties[1].Grille);
      EXPECT_EQ(lu.VgScores->at(1).Nom, scores[1].Nom);
      EXPECT_EQ(lu.VgScores->at(1).Temps, scores[1].Temps);
      EXPECT_TRUE(Recopie(octets) == octets) << N << " symboles depuis " << std::uint32_t(premier);
    }
  }
}

TEST(EcritSud, ExempleALOctet) {
  const std::vector<ClsPartie> parties = {{}, {U"Essai", U"103143 0 0 0 0 0 0 0 0 0 0 0 020"}};
  const std::vector<TypScore> scores = {{}, {U"Marie", Jours(197'000)}};
  EXPECT_EQ(EcritSud(U"1234", U"10 0 0 0 0 0 0 0 0 0 0 0 0 0 020", parties, scores),
            "1234\r\n10 0 0 0 0 0 0 0 0 0 0 0 0 0 020\r\nEssai-103143 0 0 0 0 0 0 0 0 0 0 0 020\r\n"
            "\0Marie-00:03:17\0"s);
  EXPECT_EQ(EcritSud(U"1", U" 0", {{}}, {{}}), "1\r\n 0\r\n\0"s);
}

std::string Repete(const std::string& morceau, std::size_t fois) {
  std::string texte;
  for (std::size_t i = 0; i < fois; ++i) texte += morceau;
  return texte;
}

TEST(LitSud, PlusDEntreesQuAucunJeu) {
  const std::string debut = "1\n 0\n";
  const LectureSud plein = LitSud(debut + Repete("-\n", kEntreesMax));
  EXPECT_EQ(plein.erreur, std::nullopt);
  EXPECT_EQ(plein.VgParties.size(), kEntreesMax + 1);
  const LectureSud parties = LitSud(debut + Repete("-\n", kEntreesMax + 1));
  EXPECT_EQ(parties.erreur, kIndiceHorsSelection);
  EXPECT_EQ(parties.VgParties.size(), kEntreesMax + 1);
  const LectureSud scores = LitSud(debut + "\0"s + Repete("-0:00:00\0"s, kEntreesMax + 1));
  EXPECT_EQ(scores.erreur, kIndiceHorsSelection);
  EXPECT_FALSE(scores.VgScores);
}

TEST(ChaineEtats, EcritEtChargeLesCases) {
  GameState jeu;
  Grille grille = Grille::Nouvelle(jeu, U"1234");
  grille(1).Load(U"1", kDonnee);
  grille(2).Load(U"34", kPossible);
  grille(3).Load(U"", kProuvee);
  grille(16).Load(U"4", kErronee);
  EXPECT_EQ(ChaineEtats(grille), U"1032 1 0 0 0 0 0 0 0 0 0 0 0 043");
  EXPECT_EQ(ChaineInitiale(grille), U"10 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0");
  EXPECT_TRUE(Jouee(grille));

  Grille autre = Grille::Nouvelle(jeu, U"1234");
  EXPECT_FALSE(Jouee(autre));
  ChargeCases(autre, ChaineEtats(grille) + U"excédent");
  EXPECT_EQ(ChaineEtats(autre), ChaineEtats(grille));
}

TEST(ChargeCases, GardeLesCasesDAvantLaFaute) {
  const struct {
    TexteVue chaine, cases;
  } cas[] = {{U"", U" "},   {U"1", U" "},  {U"1x", U" "}, {U"1٣", U" "},
             {U"10", U"1"}, {U"1 ", U" "}, {U"19", U"1"}};
  for (const auto& c : cas) {
    GameState jeu;
    const Grille grille = Grille::Nouvelle(jeu, U"abcd");
    EXPECT_THROW(ChargeCases(grille, c.chaine), Erreur) << VersUtf8(c.chaine);
    EXPECT_EQ(ChaineEtats(grille).substr(0, 1), c.cases) << VersUtf8(c.chaine);
  }
}

}  // namespace
}  // namespace sudoku
