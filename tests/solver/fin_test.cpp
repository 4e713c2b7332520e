#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <vector>

#include "plain/comparaison.h"

// Every evaluation and every run of the solver ends, within the numbers of steps that are proved beside
// Evaluateur::Evaluation, DeductionsSur::Deduit, TravailGrille::JeuSolve and AutoDriver::Cherche. Steps are
// counted, not time; a loop without end would keep the test from ending.

namespace sudoku {
namespace {

using plain::Hasard;

// Suppositions on a grid of side 9 that has no solution can go on through more boards than anybody counts: a
// run is left at this many boxes. Those of side 4 are all run to their end.
constexpr int kBoitesMax = 100;

class Compteur : public PlateauAuto {
 public:
  struct Assez {};

  void Charge(const plain::Plateau& plateau) {
    plain::Pose(plateau, jeu_, evaluateur_);
    Evalue(plateau.cases.empty() ? 1 : 2);
  }
  void Tape(Hasard& hasard) {
    const int i = 1 + hasard.Entier(Cases());
    jeu_.VmGrille(i).Valeur(plain::SaisieAuHasard(hasard, jeu_.VmValeurs, jeu_.VmGrille(i).Possible()));
    Evalue(jeu_.VgEtat == kSaisieGrille ? 1 : 2);
  }
  void Joue() { jeu_.VgEtat = kJeu; }
  void Evalue(int passes);
  // A run on a copy, with suppositions.
  void Resous();

  int Cases() const { return jeu_.VmGrille.Borne(); }
  int Boites() const { return boites_; }
  std::uint64_t ReprisesMax() const { return reprisesMax_; }
  void Affiche() override {}
  void Message(TexteVue) override;

 private:
  std::uint64_t N() const { return static_cast<std::uint64_t>(jeu_.VmGrille.N()); }
  std::uint64_t BorneReprises() const { return 1 + N() * N() * (2 * N() + 2); }
  // The lengths of what the cells hold.
  std::vector<std::uint64_t> Longueurs() const;

  GameState jeu_;
  Evaluateur evaluateur_{jeu_};
  AutoDriver driver_{jeu_, evaluateur_, *this};
  std::uint64_t toursVus_ = 0;  // of the search, up to the last box
  std::uint64_t parBoite_ = 0;
  int boites_ = 0;
  std::uint64_t reprisesMax_ = 0;
};

std::vector<std::uint64_t> Compteur::Longueurs() const {
  std::vector<std::uint64_t> longueurs;
  for (int i = 1; i <= Cases(); ++i) longueurs.push_back(jeu_.VmGrille(i).ValeurSaisie().size());
  return longueurs;
}

void Compteur::Evalue(int passes) {
  const std::uint64_t reprisesAvant = evaluateur_.Reprises(), toursAvant = evaluateur_.Tours();
  const std::vector<std::uint64_t> longueurs = Longueurs();
  const auto textes = std::accumulate(longueurs.begin(), longueurs.end(), std::uint64_t{0});
  evaluateur_.Evaluation(jeu_.VmGrille, passes);
  const std::uint64_t reprises = evaluateur_.Reprises() - reprisesAvant;
  ASSERT_LE(reprises, BorneReprises());
  ASSERT_LE(evaluateur_.Tours() - toursAvant, reprises * 2 * (1 + 2 * N() * N() * N() + textes));
  reprisesMax_ = std::max(reprisesMax_, reprises);
}

void Compteur::Message(TexteVue) {
  ASSERT_LE(driver_.Tours() - toursVus_, parBoite_);
  toursVus_ = driver_.Tours();
  if (++boites_ == kBoitesMax && N() > 4) throw Assez();
}

void Compteur::Resous() {
  const std::uint64_t reprises = evaluateur_.Reprises();
  parBoite_ = 1 + N() * N() * (1 + std::max(N(), std::ranges::max(Longueurs())));
  toursVus_ = 0;
  boites_ = 0;
  const Grille joueuse = jeu_.VmGrille;
  const std::int32_t mode = jeu_.VgEtat;
  GrilleCopy(joueuse, jeu_.VmGrille);
  try {
    driver_.JeuAuto(true, true);
  } catch (const Assez&) {
  }
  // A turn makes three solve passes at most, the whole run an evaluation or two besides.
  const std::uint64_t evaluations = driver_.Tours() * 3 * (2 * N() * N() + 1) + 2;
  EXPECT_LE(evaluateur_.Reprises() - reprises, evaluations * BorneReprises());
  jeu_.VmGrille = joueuse;
  jeu_.VgEtat = mode;
}

TEST(Fin, EtatsAtteintsEnJouant) {
  constexpr int kEtats = 100'000;
  Hasard hasard(20261124);
  Compteur compteur;
  int boites = 0;
  for (int etat = 0; etat < kEtats && !testing::Test::HasFailure(); ++etat) {
    if (etat % 40 == 0) compteur.Charge({plain::SymbolesAuHasard(hasard, 4), kSaisieGrille, {}});
    if (etat % 40 == hasard.Entier(12)) compteur.Joue();
    compteur.Tape(hasard);
    if (etat % 5 != 0) continue;
    compteur.Resous();
    boites += compteur.Boites();
  }
  EXPECT_GT(compteur.ReprisesMax(), 4U);
  EXPECT_GT(boites, 1000);
}

TEST(Fin, PlateauxContradictoiresVidesEtIncomplets) {
  Hasard hasard(9);
  Compteur compteur;
  for (int k = 0; k < 3000 && !testing::Test::HasFailure(); ++k) {
    const int n = k % 2 == 0 ? 4 : 9;
    compteur.Charge(k % 3 == 0 ? plain::PlateauAResoudre(hasard, n) : plain::PlateauAuHasard(hasard, n));
    compteur.Resous();
  }
  EXPECT_GT(compteur.ReprisesMax(), 4U);
}

}  // namespace
}  // namespace sudoku
