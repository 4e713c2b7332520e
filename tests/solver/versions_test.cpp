// The hot code is compiled for several instruction sets. Each version that this machine runs has to give what
// the others give, on boards of every kind that a search meets.

#include <gtest/gtest.h>

#include <cstring>
#include <random>

#include "engine/explications.h"
#include "engine/moteur.h"
#include "solver/noyau.h"

namespace sudoku {
namespace {

// A full grid's symbol, by shifted rows.
int Pleine(int N, int S, int cellule) {
  return (cellule / N % S * S + cellule / N / S + cellule % N) % N;
}

// A board from right to hopeless: `erreurs` in a thousand contents are others, and every tenth of these a
// wrong entry.
template <int S>
Cases<S> Alea(std::mt19937& suite, std::uint_fast32_t remplissage, std::uint_fast32_t erreurs) {
  constexpr int N = S * S;
  Cases<S> cases;
  cases.Efface();
  for (int i = 0; i < N * N; ++i) {
    if (suite() % 100 >= remplissage) continue;
    const bool autre = suite() % 1000 < erreurs;
    const int symbole = autre ? static_cast<int>(suite() % N) : Pleine(N, S, i);
    if (autre && suite() % 10 == 0) {
      cases.PoseFausse(i, symbole);
    } else {
      cases.Pose(i, symbole);
    }
  }
  return cases;
}

template <int S>
void CompareNoyaux(int tours, int voulues) {
  constexpr int N = S * S;
  const auto versions = VersionsNoyau<S>();
  std::mt19937 suite(N);
  int avances = 0;
  for (int tour = 0; tour < tours; ++tour) {
    const Cases<S> depart = Alea<S>(suite, 15 + suite() % 50, tour % 3 == 0 ? 900 / N : 0);
    for (const Appui appui : {Appui::kSur, Appui::kPossible}) {
      Passe<S> attendue;
      attendue.possibles = tour % 2 == 0;
      attendue.suite = true;
      const Passe<S> demande = attendue;
      Cases<S> attendues = depart;
      versions.back()(attendues, appui, attendue);
      avances += attendue.verdict > 0 ? 1 : 0;
      for (const Noyau<S> version : versions) {
        Cases<S> cases = depart;
        Passe<S> passe = demande;
        version(cases, appui, passe);
        ASSERT_EQ(std::memcmp(cases.valeur, attendues.valeur, sizeof cases.valeur), 0) << tour;
        ASSERT_EQ(std::memcmp(cases.fausse, attendues.fausse, sizeof cases.fausse), 0) << tour;
        ASSERT_EQ(passe.verdict, attendue.verdict) << tour;
        ASSERT_EQ(passe.sansOrdre, attendue.sansOrdre) << tour;
        if (passe.verdict == 0 || (passe.verdict < 0 && !passe.possibles)) continue;
        for (int i = 0; i < N * N; ++i) {
          const bool egaux = cases.valeur[i] != 0 || passe.candidats[i] == attendue.candidats[i];
          ASSERT_TRUE(egaux) << tour << ' ' << i;
        }
      }
    }
  }
  EXPECT_GT(avances, voulues) << "too few boards on which the deductions go to their end";
}

TEST(Noyau, ToutesLesVersionsDonnentLeMeme) {
  CompareNoyaux<3>(4000, 200);
  CompareNoyaux<4>(1000, 50);
  CompareNoyaux<5>(500, 50);
  CompareNoyaux<6>(100, 10);
  CompareNoyaux<7>(50, 10);
  CompareNoyaux<8>(50, 10);
}

// A candidate of an open cell, in both boards.
void Suppose(std::mt19937& suite, const Passe<3>& passe, Cases<3>& cases, Cases<3>& depart) {
  int cellule = 0;
  do cellule = static_cast<int>(suite() % 81);
  while (cases.valeur[cellule] != 0);
  int symbole = 0;
  do symbole = static_cast<int>(suite() % 9);
  while ((passe.candidats[cellule] >> symbole & 1) == 0);
  cases.Pose(cellule, symbole);
  depart.Pose(cellule, symbole);
}

// Where a pass says that the order makes no difference, suppositions made at once leave the same board.
TEST(Noyau, SansOrdre) {
  const Noyau<3> noyau = VersionsNoyau<3>().front();
  std::mt19937 suite(3);
  int dites = 0;
  int differents = 0;
  for (int tour = 0; tour < 25'000; ++tour) {
    Cases<3> depart;
    depart.Efface();
    Cases<3> cases = depart;
    Passe<3> passe;
    noyau(cases, Appui::kPossible, passe);
    while (passe.verdict > 0) {
      passe.suite = true;
      Suppose(suite, passe, cases, depart);
      noyau(cases, Appui::kPossible, passe);
      Cases<3> aLaFois = depart;
      Passe<3> attendue;
      noyau(aLaFois, Appui::kPossible, attendue);
      const bool memes = std::memcmp(cases.valeur, aLaFois.valeur, sizeof cases.valeur) == 0;
      ASSERT_TRUE(memes || !passe.sansOrdre) << tour;
      dites += passe.sansOrdre ? 1 : 0;
      differents += memes ? 0 : 1;
      // On with what a search goes on with.
      cases = aLaFois;
      passe = attendue;
    }
  }
  EXPECT_GT(dites, 0);
  EXPECT_GT(differents, 0) << "the order never makes a difference here";
}

TEST(Moteur, ToutesLesVersionsDonnentLeMeme) {
  std::vector<FabriqueMoteur> versions = VersionsMoteur();
  versions.push_back(FabriqueTextes);
  std::mt19937 suite(4);
  std::size_t faits = 0;
  for (int tour = 0; tour < 500; ++tour) {
    const int S = 2 + tour % 12;
    const int N = S * S;
    Texte symboles;
    for (int p = 0; p < N; ++p) symboles += U'\u4E00' + static_cast<char32_t>(p);
    GameState jeu;
    Grille depart = Grille::Nouvelle(jeu, symboles);
    // Without whole symbols there are sets in every unit, and figures.
    const int sans = tour / 12 % 2 == 0 ? 0 : N / 2;
    for (int i = 0; i < N * N; ++i) {
      if (sans == 0 ? suite() % 100 >= 45 : Pleine(N, S, i) < sans && suite() % 12 != 0) continue;
      const int s = suite() % 50 == 0 ? static_cast<int>(suite() % symboles.size()) : Pleine(N, S, i);
      depart(i + 1).Load(TexteVue(symboles).substr(static_cast<std::size_t>(s), 1), suite() % 8 == 0 ? 2 : 0);
    }
    Grille attendue;
    for (const FabriqueMoteur version : versions) {
      // The plain one takes long on large sides.
      if (version == FabriqueTextes && (S > 9 || (S > 6 && tour % 60 >= 12))) continue;
      Grille grille;
      GrilleCopy(depart, grille);
      version(N)->Passes(jeu, grille, 2, false);
      if (attendue.Borne() == 0) attendue = grille;
      const Bloc& a = attendue.Donnees();
      const Bloc& b = grille.Donnees();
      ASSERT_EQ(a.candidats, b.candidats) << tour;
      ASSERT_EQ(a.sure, b.sure) << tour;
      ASSERT_EQ(a.poss, b.poss) << tour;
      faits += b.journal.faits.size();
      for (int i = 1; i <= grille.Borne(); i += S > 8 ? 1 + N : 1)
        ASSERT_EQ(Phrases(attendue, i), Phrases(grille, i)) << tour;
    }
  }
  EXPECT_GT(faits, 1000U) << "too few deductions to compare";
}

}  // namespace
}  // namespace sudoku
