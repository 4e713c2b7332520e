// The engine and the solver against the same rules done on plain strings: random games, every field of every
// cell after every step.
#include <gtest/gtest.h>

#include "plain/parties.h"

namespace sudoku::plain {
namespace {

// What the games are for has to come up in them.
void Attend(const Paire& paire, std::initializer_list<const char*> sortes) {
  for (const char* sorte : sortes) EXPECT_TRUE(paire.Bilan().contains(sorte)) << sorte << " never came up";
}

Plateau Lit(TexteVue symboles, TexteVue cases) {
  Plateau plateau;
  plateau.symboles = symboles;
  for (const char32_t c : cases) plateau.cases.push_back({c == U'.' ? Texte() : Texte(1, c), 0});
  return plateau;
}

TEST(Comparaison, PetitesGrilles) {
  Paire paire;
  EXPECT_EQ(JoueAuHasard(0, 2500, {.tailles = {1, 4}, .actions = 12}, paire), "");
  Attend(paire, {"seule", "confinée", "cachée", "nue", "Impossible"});
}

TEST(Comparaison, GrillesDeNeuf) {
  Paire paire;
  EXPECT_EQ(JoueAuHasard(0, 200, {.tailles = {9}, .actions = 12}, paire), "");
  Attend(paire, {"seule", "confinée", "cachée", "nue", "Impossible", "figure 0 1", "figure 1 0"});
}

TEST(Comparaison, GrandesGrilles) {
  Paire paire;
  EXPECT_EQ(JoueAuHasard(0, 50, {.tailles = {16, 16, 16, 25}, .actions = 5}, paire), "");
  Attend(paire, {"seule", "confinée", "cachée", "nue", "figure 0 1", "figure 0 2", "figure 1 0", "figure 1 2",
                 "figure 2 0", "figure 2 1"});
}

// Candidates take one whole word, two, three. Each game has more than most to deduce, for its time.
TEST(Comparaison, UnDeuxEtTroisMotsDeCandidats) {
  Paire paire;
  for (const auto& [cote, partie] : {std::pair{64, 11U}, {64, 12U}, {81, 10U}, {100, 4U}, {169, 0U}}) {
    EXPECT_EQ(JoueAuHasard(partie, 1, {.tailles = {cote}, .actions = 1}, paire), "") << cote;
  }
  Attend(paire, {"seule", "confinée", "cachée", "nue", "Impossible"});
}

TEST(Comparaison, Solveur) {
  Paire paire;
  EXPECT_EQ(JoueAuHasard(0, 150, {.tailles = {4, 9}, .actions = 3, .solveur = true}, paire), "");
  EXPECT_EQ(JoueAuHasard(0, 2, {.tailles = {16}, .actions = 2, .solveur = true}, paire), "");
  Attend(paire, {"Insoluble ", "Non résolu", "Retour arr", "Résolu ave", "Résolu san"});
}

// Short games that once told the two apart.
TEST(Comparaison, PartiesConnues) {
  // A character that the grid doesn't have, in a naked set.
  Plateau etranger = Lit(U"1234", U"................");
  etranger.cases[0].valeur = etranger.cases[1].valeur = U"1?";
  // A text whose cell a supposition takes, so that it counts no more.
  Plateau texte = Lit(U"1234", U".1..14.11..41..4");
  texte.cases[6].valeur = U"44";
  // Two symbols proved for one cell, one after the other.
  const Plateau deuxFois = Lit(U"123456789",
                               U"...6.....1.26........853.......995......2...."
                               U".................6..1...9..2..6...2.");
  // A silent run that fails, contents alone: the solved copy stays at the base.
  const Plateau echec = Lit(U"123456789",
                            U"838.57....17..9.4..2..8......2....5..98......"
                            U"...7.6.8.....93..5..16..9......4....");
  // A text that takes the first of two equal letters: the sets still go by the first one's position.
  const Plateau lettres = Lit(U"EBdhgfGcCFHbAeaD",
                              U"..........................................G....f................"
                              U"...................G........GfG...............GfffGffffGffGGfGff"
                              U".......................................................f..G....."
                              U"....G.....................................f.....GGf..GG...Gf...G");
  // The same where another symbol stands between the two.
  Plateau entreDeux = Lit(U"DcBACaebd",
                          U".D.........D...D....D.............D.D.DDD...D"
                          U"D.DDD...DD.DDD...DD.DDD...D.........");
  entreDeux.cases[16] = {U"C", 2};
  const auto joue = [](const Plateau& plateau, auto pas) {
    Paire paire;
    EXPECT_EQ(paire.Charge(plateau), "");
    EXPECT_EQ(pas(paire), "");
  };
  joue(etranger, [](Paire& p) { return p.Evalue(2); });
  joue(Lit(U"aAbB", U"................"), [](Paire& p) { return p.Saisit(1, U"Ab"); });
  joue(texte, [](Paire& p) { return p.Joue({.reset = true, .guess = true}); });
  joue(deuxFois, [](Paire& p) { return p.Joue({.reset = true, .silence = true}); });
  joue(echec, [](Paire& p) { return p.Joue({.guess = true, .silence = true, .contenus = true}); });
  joue(lettres, [](Paire& p) { return p.Saisit(110, U"EB"); });
  joue(entreDeux, [](Paire& p) { return p.Saisit(61, U"BA"); });
}

}  // namespace
}  // namespace sudoku::plain
