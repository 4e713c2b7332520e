#include <gtest/gtest.h>

#include <sstream>

#include "headless/systeme_sans_ecran.h"
#include "platform/fichiers_disque.h"
#include "shell/about.h"

namespace sudoku {
namespace {

// Has one value in its registry.
class SystemeMuet : public SystemeSansEcran {
 public:
  SystemeMuet() : SystemeSansEcran(sortie, disque_, [] { return false; }) {}

  std::optional<ValeurRegistre> Registre(std::uint32_t, TexteVue, TexteVue) override { return registre; }

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
