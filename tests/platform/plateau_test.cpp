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
  plateau_.Efface();
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
  const struct {
    TexteVue chemin, fichier, titre;
    int nom, extension;
  } cas[] = {{U"a/b.c.sud", U"a/b.c.sud", U"b.c.sud", 2, 6},
             {U"a.b\\c", U"a.b\\c", U"c", 4, 0},
             {U"12345678901", U"12345678901", U"12345678901", 0, 0},
             {U"123456789012", U"", U"", 0, 0},
             {U"", U"", U"", 0, 0}};
  for (const auto& c : cas) {
    DemandeFichier demande;
    demande.lpstrFile = demande.lpstrFileTitle = Texte(12, U'\0');
    demande.nMaxFile = demande.nMaxFileTitle = 11;
    Repond(demande, c.chemin);
    EXPECT_EQ(demande.lpstrFile, Texte(c.fichier) + Texte(12 - c.fichier.size(), U'\0'));
    EXPECT_EQ(demande.lpstrFileTitle, Texte(c.titre) + Texte(12 - c.titre.size(), U'\0'));
    EXPECT_EQ(demande.nFileOffset, c.nom);
    EXPECT_EQ(demande.nFileExtension, c.extension);
  }
}

}  // namespace
}  // namespace sudoku
