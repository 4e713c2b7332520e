#include "platform/plateau.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/systeme.h"

namespace sudoku {
namespace {

class PlateauTest : public testing::Test {
 protected:
  PlateauTest() {
    for (int i = 0; i < 4; ++i) plateau_.AjouteCase(240 + 390 * i, 600);
    plateau_.Change = [this](int Index) { textes_.emplace_back(Index, plateau_.TxtCase(Index).Text); };
    plateau_.GotFocus = [this](int Index) { focus_.push_back(Index); };
  }
  std::vector<std::int32_t> Changees() {
    std::vector<std::int32_t> liste = plateau_.Changees();
    std::sort(liste.begin(), liste.end());
    plateau_.OublieChangees();
    return liste;
  }
  using Liste = std::vector<std::int32_t>;

  Plateau plateau_;
  std::vector<std::pair<int, Texte>> textes_;
  std::vector<int> focus_;
};

TEST_F(PlateauTest, EcrireUnTexteDeclencheLeChangementAussitotMaisSeulementSIlDiffere) {
  plateau_.Text(2, U"7");
  plateau_.Text(2, U"7");
  plateau_.Text(3, U"");
  ASSERT_EQ(textes_.size(), 1U);
  EXPECT_EQ(textes_[0], std::pair(2, Texte(U"7")));
}

TEST_F(PlateauTest, LaSaisieDeclencheToujoursUnSeulChangementEtPerdSesControles) {
  plateau_.Saisit(1, U"\t5\x7F");
  plateau_.Saisit(1, U"5");
  ASSERT_EQ(textes_.size(), 2U);
  EXPECT_EQ(textes_[0], std::pair(1, Texte(U"5")));
}

TEST_F(PlateauTest, ListeChaqueCaseEcriteUneFoisEtAucuneEcritureSansEffet) {
  plateau_.Couleurs(3, kGris, kNoir);
  plateau_.Acces(3, true, false);
  plateau_.Text(1, U"4");
  plateau_.Couleurs(2, kBlanc, kNoir);
  plateau_.Acces(2, false, true);
  plateau_.Appearance(2, 0);
  EXPECT_EQ(Changees(), (Liste{1, 3}));
  plateau_.Couleurs(3, kGris, kNoir);
  EXPECT_EQ(Changees(), Liste{});
  plateau_.Appearance(3, 1);
  plateau_.Selection(4, 0, 1);
  EXPECT_EQ(Changees(), (Liste{3, 4}));
}

TEST_F(PlateauTest, UnPlateauRefaitNeGardeNiFocusNiListe) {
  plateau_.SetFocus(4);
  plateau_.Text(4, U"1");
  const std::uint32_t avant = plateau_.Constructions();
  plateau_.Vide();
  plateau_.AjouteCase(240, 600);
  EXPECT_GT(plateau_.Constructions(), avant);
  EXPECT_EQ(plateau_.Cases(), 1);
  EXPECT_EQ(plateau_.Focus(), 0);
  EXPECT_EQ(plateau_.TxtCase(1).Text, U"");
  EXPECT_EQ(Changees(), Liste{});
  plateau_.Text(1, U"1");
  EXPECT_EQ(Changees(), Liste{1});
}

TEST_F(PlateauTest, LeFocusEstAnnonceMemePourLaCaseQuiLA) {
  plateau_.SetFocus(2);
  plateau_.SetFocus(2);
  EXPECT_EQ(focus_, (std::vector<int>{2, 2}));
}

TEST(DemandeFichier, ReponseAuPlusAussiLongueQueLaPlace) {
  const auto repond = [](const Texte& chemin) {
    DemandeFichier demande;
    demande.lpstrFile = demande.lpstrFileTitle = Texte(12, U'\0');
    demande.nMaxFile = demande.nMaxFileTitle = 11;
    Repond(demande, chemin);
    return demande;
  };
  EXPECT_EQ(repond(U"a/b.c.sud").lpstrFile, Texte(U"a/b.c.sud") + Texte(3, U'\0'));
  EXPECT_EQ(repond(U"a/b.c.sud").lpstrFileTitle, Texte(U"b.c.sud") + Texte(5, U'\0'));
  EXPECT_EQ(repond(U"a/b.c.sud").nFileOffset, 2);
  EXPECT_EQ(repond(U"a/b.c.sud").nFileExtension, 6);
  EXPECT_EQ(repond(U"a.b\\c").nFileExtension, 0);
  EXPECT_EQ(repond(U"12345678901").lpstrFile, Texte(U"12345678901") + Texte(1, U'\0'));
  EXPECT_EQ(repond(U"123456789012").lpstrFile, Texte(12, U'\0'));
  EXPECT_EQ(repond(U"").lpstrFile, Texte(12, U'\0'));
}

}  // namespace
}  // namespace sudoku
