#include "solver/travail_noyau.h"

#include <algorithm>
#include <bit>

#include "engine/lieux.h"
#include "grid/game_state.h"
#include "solver/noyau.h"

namespace sudoku {
namespace {

template <int S>
class TravailVoies : public Travail {
 public:
  explicit TravailVoies(Evaluateur& evaluateur)
      : evaluateur_(evaluateur), noyau_(VersionsNoyau<S>().front()) {}

  void Commence(const Grille& grille) override;
  Grille Rend(bool contenus) override;

  std::int16_t JeuSolve(bool possibles) override;
  void PrendBase() override;
  void Reconstruit() override;
  void Detache() override { detachee_ = true; }
  void Suppose(int cellule, Code symbole) override;
  bool CommeRejouee() const override { return passe_.sansOrdre; }
  int CelluleOuverte(int cellule, Essai& Possible) override;
  bool SymboleEnDouble() override;
  std::int16_t Acheve() override;
  void Montre() override;

 private:
  static constexpr int N = S * S;
  static constexpr int kCases = N * N;
  using Mot = typename Largeur<S>::Mot;
  using Bits = typename Largeur<S>::Bits;

  // The board is the base.
  void CommenceTentative() {
    passe_.suite = false;
    passe_.paires = true;
  }
  void Ecrit(Grille& grille) const;
  // The base's contents go to the player's grid.
  void EcritBase();

  Evaluateur& evaluateur_;
  Noyau<S> noyau_;
  Grille grille_;  // the player's: what was given, then the base
  Grille copie_;   // what the last attempt is delivered in
  bool detachee_ = false;
  bool montree_ = false;
  bool base_ = false;  // the base has been taken
  Cases<S> casesBase_;
  Cases<S> cases_;
  Passe<S> passe_;
  Mot candidatsBase_[Taille(kCases)];
  const Mot* candidats_ = nullptr;  // of `cases_`, as the last evaluation or the base has them
};

template <int S>
void TravailVoies<S>::Commence(const Grille& grille) {
  grille_ = grille;
  detachee_ = montree_ = base_ = false;
  CommenceTentative();
  cases_.Efface();
  const Bloc& bloc = grille.Donnees();
  for (int i = 1; i <= kCases; ++i) {
    if (bloc.saisie[Rang(i)] != kVide) cases_.Pose(i - 1, bloc.alphabet->Position(bloc.saisie[Rang(i)]));
  }
}

template <int S>
Grille TravailVoies<S>::Rend(bool contenus) {
  Grille rendue = grille_;
  if (detachee_) {
    if (contenus) {
      EcritBase();
    } else {
      Montre();
    }
    GrilleCopy(grille_, copie_);
    rendue = copie_;
    // The cells given out are the game's now; the old ones, unless somebody still sees them, serve the next
    // run.
    copie_ = grille_;
  }
  Ecrit(rendue);
  if (!contenus) evaluateur_.Evaluation(rendue, 2);
  rendue.Donnees().jeu->VgEtat = kJeu;
  grille_ = Grille();
  return rendue;
}

// The contents that the run has written into `cases_`: proved ones while there is no base, or in it, all
// others rest on suppositions.
template <int S>
void TravailVoies<S>::Ecrit(Grille& grille) const {
  Bloc& bloc = grille.Donnees();
  for (int i = 1; i <= kCases; ++i) {
    const int symbole = cases_.valeur[i - 1] - 1;
    const int fausse = cases_.fausse[i - 1] - 1;
    if (bloc.saisie[Rang(i)] != kVide || std::max(symbole, fausse) < 0) continue;
    bloc.saisie[Rang(i)] = std::max(symbole, fausse);
    const bool prouvee = !base_ || casesBase_.valeur[i - 1] != 0;
    bloc.etat[Rang(i)] = fausse >= 0 ? kErronee : prouvee ? kProuvee : kPossible;
  }
}

template <int S>
std::int16_t TravailVoies<S>::JeuSolve(bool possibles) {
  passe_.possibles = possibles;
  noyau_(cases_, base_ ? Appui::kPossible : Appui::kSur, passe_);
  passe_.suite = true;
  candidats_ = passe_.candidats;
  return passe_.verdict;
}

template <int S>
void TravailVoies<S>::PrendBase() {
  base_ = true;
  CommenceTentative();
  casesBase_ = cases_;
  std::ranges::copy(passe_.candidats, candidatsBase_);
}

template <int S>
void TravailVoies<S>::Reconstruit() {
  CommenceTentative();
  cases_ = casesBase_;
  candidats_ = candidatsBase_;
}

template <int S>
void TravailVoies<S>::Suppose(int cellule, Code symbole) {
  if ((candidats_[cellule - 1] >> symbole & 1) != 0) {
    cases_.OteFausse(cellule - 1);
    cases_.Pose(cellule - 1, symbole);
  } else {
    cases_.PoseFausse(cellule - 1, symbole);
    passe_.paires = false;
  }
}

template <int S>
int TravailVoies<S>::CelluleOuverte(int cellule, Essai& Possible) {
  for (int i = cellule + 1; i <= kCases; ++i) {
    Bits candidats = candidats_[i - 1];
    if (cases_.valeur[i - 1] != 0 || std::popcount(candidats) < 2) continue;
    Possible.clear();
    for (; candidats != 0; candidats &= candidats - 1) Possible.push_back(std::countr_zero(candidats));
    return i;
  }
  return 0;
}

template <int S>
bool TravailVoies<S>::SymboleEnDouble() {
  for (int u = 0; u < N; ++u) {
    const auto& symboles = cases_.symboles;
    if ((symboles[0][u] & symboles[1][u] & symboles[2][u]) != kLieux<S>.tous) return true;
  }
  return false;
}

// The base has no wrong entries, and another pass would do nothing that the last one didn't.
template <int S>
std::int16_t TravailVoies<S>::Acheve() {
  return passe_.verdict;
}

template <int S>
void TravailVoies<S>::Montre() {
  if (montree_) return;
  montree_ = true;
  EcritBase();
  evaluateur_.Evaluation(grille_, 2);
}

template <int S>
void TravailVoies<S>::EcritBase() {
  Bloc& bloc = grille_.Donnees();
  for (int i = 1; i <= kCases; ++i) {
    if (bloc.saisie[Rang(i)] != kVide || casesBase_.valeur[i - 1] == 0) continue;
    bloc.saisie[Rang(i)] = casesBase_.valeur[i - 1] - 1;
    bloc.etat[Rang(i)] = kProuvee;
  }
}

}  // namespace

bool NoyauConvient(const Grille& grille) {
  if (grille.N() < 9 || grille.N() > 64) return false;
  const Bloc& bloc = grille.Donnees();
  for (int p = 0; p < grille.N(); ++p) {
    if (bloc.alphabet->Premiere(p) != p) return false;
  }
  for (int i = 1; i <= grille.Borne(); ++i) {
    const bool symbole = bloc.saisie[Rang(i)] == kVide || bloc.alphabet->Position(bloc.saisie[Rang(i)]) >= 0;
    if (!symbole || bloc.etat[Rang(i)] < kDonnee || bloc.etat[Rang(i)] > kProuvee) return false;
  }
  return true;
}

std::unique_ptr<Travail> FabriqueTravailNoyau(int N, Evaluateur& evaluateur) {
  switch (N) {
    case 9:
      return std::make_unique<TravailVoies<3>>(evaluateur);
    case 16:
      return std::make_unique<TravailVoies<4>>(evaluateur);
    case 25:
      return std::make_unique<TravailVoies<5>>(evaluateur);
    case 36:
      return std::make_unique<TravailVoies<6>>(evaluateur);
    case 49:
      return std::make_unique<TravailVoies<7>>(evaluateur);
    default:
      return std::make_unique<TravailVoies<8>>(evaluateur);
  }
}

}  // namespace sudoku
