#include <gtest/gtest.h>

#include <sstream>

#include "headless/systeme_sans_ecran.h"
#include "platform/fichiers_disque.h"
#include "shell/about.h"
#include "shell/com_dlg.h"

namespace sudoku {
namespace {

// Cancels every box, keeps what a file dialog was asked, and has one value in its registry.
class SystemeMuet : public SystemeSansEcran {
 public:
  SystemeMuet() : SystemeSansEcran(sortie, disque_, [] { return false; }) {}

  void Fichier(DemandeFichier& demande) override {
    posee = demande;
    SystemeSansEcran::Fichier(demande);
  }
  std::optional<ValeurRegistre> Registre(std::uint32_t, TexteVue, TexteVue) override { return registre; }

  DemandeFichier posee;
  std::optional<ValeurRegistre> registre;
  std::ostringstream sortie;

 private:
  FichiersDisque disque_;
};

Texte AvecNul(TexteVue texte) {
  Texte resultat(texte);
  for (char32_t& c : resultat) c = c == U'|' ? U'\0' : c;
  return resultat;
}

TEST(ComDlg, Demande) {
  SystemeMuet systeme;
  EXPECT_EQ(ComDlg(systeme).GetOpenFile(U"/dossier", U"Titre", U"SUD"), U"") << "cancelled";
  EXPECT_EQ(systeme.posee.lpstrFilter, AvecNul(U"Sudoku Files (*.sud)|*.sud|"));
  EXPECT_EQ(systeme.posee.lpstrInitialDir, U"/dossier");
  EXPECT_EQ(systeme.posee.lpstrDefExt, U"") << "the dialog must add no extension";
  EXPECT_EQ(systeme.posee.Flags, 20);
  EXPECT_EQ(systeme.posee.lStructSize, 76);
  EXPECT_EQ(systeme.posee.nMaxFile, 511);
  EXPECT_EQ(systeme.posee.lpstrFile, Texte(512, U'\0'));
  ComDlg(systeme).GetOpenFile({}, {}, U"sud");
  EXPECT_EQ(systeme.posee.lpstrInitialDir, FichiersDisque().DossierCourant());
}

TEST(ComDlg, CheminRendu) {
  TypFileDlg record;
  DemandeFichier demande;
  ConvertStruct2Win(record, demande);
  Repond(demande, U"/dossier/jeu.sud");
  ConvertWin2Struct(demande, record);
  EXPECT_EQ(record.FileName, U"/dossier/jeu.sud");
  EXPECT_EQ(record.FileTitle, U"jeu.sud");
  EXPECT_EQ(record.FileOffset, 9);
  EXPECT_EQ(record.FileExtension, 13);
}

TEST(GetKeyValue, ParType) {
  const struct {
    std::uint32_t type;
    Texte donnees, avant;
    bool trouvee;
    Texte valeur;
  } cas[] = {{1, U"chemin", {}, true, U"chemin"},
             {1, AvecNul(U"chemin|"), {}, true, U"chemin"},
             {1, AvecNul(U"a||"), U"vieux", true, AvecNul(U"a|")},
             {1, Texte(1024, U'x'), {}, true, Texte(1024, U'x')},
             {1, Texte(1025, U'x'), U"vieux", false, {}},
             {3, U"octets", U"vieux", true, U"vieux"},
             {4, U"\x01\x02\x03\x04", {}, true, U"17185"},  // 0x4321: digits without leading zeros
             {4, AvecNul(U"\x34\x12||"), {}, true, U"4660"},
             {4, AvecNul(U"||||"), {}, true, U"0"},
             {4, U"\xFF\xFF\xFF\xFF", {}, true, U"4294967295"},
             {4, U"\xFF\xFF\xFF\xFF\x01", {}, false, {}},
             {4, {}, {}, false, {}}};
  int rang = 0;
  for (const auto& c : cas) {
    SystemeMuet systeme;
    systeme.registre = ValeurRegistre{c.type, c.donnees};
    Texte valeur = c.avant;
    EXPECT_EQ(GetKeyValue(systeme, 0x80000002, U"cle", U"valeur", valeur), c.trouvee) << rang;
    EXPECT_EQ(valeur, c.valeur) << rang;
    ++rang;
  }
}

}  // namespace
}  // namespace sudoku
