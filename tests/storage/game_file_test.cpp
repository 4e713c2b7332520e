#include <gtest/gtest.h>

#include "joueur.h"
#include "play/invariants.h"

// Files that no program wrote, opened by the whole game: it must go on, with a board that fits its records.

namespace sudoku {
namespace {

using namespace std::string_literals;

class FichierDeJeu : public testing::Test {
 protected:
  FichierDeJeu() : dossier_(NouveauDossier()) {}
  ~FichierDeJeu() override { std::filesystem::remove_all(dossier_); }
  std::string Chemin(const std::string& nom) const { return dossier_ + "/" + nom; }

  // Loads the file over a game that is running, answering library windows with `position`.
  void Charge(Joueur& joueur, const std::string& octets, int position) {
    EcritOctets(Chemin("bon.sud"), "1234\r\n10 0 0 0 0 020 0 030 0 0 0 0 040\r\n\0"s);
    joueur.Demarre(Chemin("bon.sud"));
    EcritOctets(Chemin("essai.sud"), octets);
    joueur.reponses = {[position](Boite& boite) {
      const auto derniere = static_cast<int>(boite.fenetre->Trouve("LstLoad")->items.size()) - 1;
      ChoisitPartie(boite, std::min(position, derniere));
    }};
    joueur.Charge(Chemin("essai.sud"));
  }

 private:
  std::string dossier_;
};

// A grid is there, and what is on the board is what the records say. The states of a file may be any.
std::string Rompu(Joueur& joueur) {
  if (joueur.Jeu().VgEtat != kSaisieGrille && joueur.Jeu().VgEtat != kJeu) return "VgEtat";
  return Invariants(joueur.LeProgramme(), false).Rompu();
}

const std::string kEntier =
    "1234\r\n10 0 0 0 0 020 0 030 0 0 0 0 040\r\nE\x1Fi-102242 0 0 020 0 030 0 0 0 0 040\r\n\0Ma-00:03:17\0"s;

TEST_F(FichierDeJeu, CoupeOuAbimeAChaqueOctet) {
  for (std::size_t i = 0; i <= kEntier.size(); ++i) {
    std::vector<std::string> variantes = {kEntier.substr(0, i), "\xEF\xBB\xBF" + kEntier.substr(0, i)};
    for (const char c : "\0\r\n- 4x\x1F\xE9"s) {
      if (i < kEntier.size()) variantes.push_back(std::string(kEntier).replace(i, 1, 1, c));
      variantes.push_back(std::string(kEntier).insert(i, 1, c));
    }
    for (const std::string& octets : variantes) {
      for (const int position : {0, 1}) {
        Joueur joueur;
        Charge(joueur, octets, position);
        ASSERT_EQ(Rompu(joueur), "") << testing::PrintToString(octets) << joueur.Sortie();
        joueur.Tape(3, U"3");
        joueur.Clique("MnuSave");
        ASSERT_EQ(Rompu(joueur), "") << testing::PrintToString(octets) << joueur.Sortie();
      }
    }
  }
}

TEST_F(FichierDeJeu, DesMilliersDeParties) {
  std::string octets = "1234\r\n10 0 0 0 0 020 0 030 0 0 0 0 040\r\n";
  for (int i = 1; i <= 40'000; ++i)
    octets += "p" + std::to_string(i) + "-10 0 0 0 0 020 0 030 0 0 0 0 040\r\n";
  for (const auto& [position, VmPartie] : {std::pair{32'767, 32'767}, {32'768, 0}}) {
    Joueur joueur;
    Charge(joueur, octets, position);
    EXPECT_EQ(Rompu(joueur), "") << position;
    EXPECT_EQ(joueur.Jeu().VgParties.size(), 40'001U);
    EXPECT_EQ(joueur.Jeu().VmPartie, VmPartie);
    EXPECT_EQ(joueur.AVu("message \"FRMParties.Valide : 9 - L'indice n'appartient pas à la sélection\""),
              VmPartie == 0);
  }
}

}  // namespace
}  // namespace sudoku
