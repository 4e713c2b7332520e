#include "solver/travail_noyau.h"

#include <algorithm>
#include <bit>

#include "grid/game_state.h"

namespace sudoku {
namespace {

constexpr int kCases = 81;
constexpr int kTous = 0x1FF;

std::size_t At(int i) {
  return static_cast<std::size_t>(i);
}

}  // namespace

bool Travail9::Convient(const Grille& grille) {
  if (grille.N() != 9) return false;
  const Bloc& bloc = grille.Donnees();
  for (int p = 0; p < 9; ++p) {
    if (bloc.alphabet->Premiere(p) != p) return false;
  }
  for (int i = 1; i <= kCases; ++i) {
    const bool symbole = bloc.saisie[At(i)] == kVide || bloc.alphabet->Position(bloc.saisie[At(i)]) >= 0;
    if (!symbole || bloc.etat[At(i)] < kDonnee || bloc.etat[At(i)] > kProuvee) return false;
  }
  return true;
}

void Travail9::Commence(const Grille& grille) {
  grille_ = grille;
  auGeneral_ = detachee_ = montree_ = base_ = false;
  cases_.Vide();
  const Bloc& bloc = grille.Donnees();
  for (int i = 1; i <= kCases; ++i) {
    if (bloc.saisie[At(i)] != kVide) cases_.Pose(i - 1, bloc.alphabet->Position(bloc.saisie[At(i)]));
  }
}

Grille Travail9::Rend(bool contenus) {
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
  if (auGeneral_) {
    rendue = general_.Rend();
  } else {
    Ecrit(rendue);
    if (!contenus) moteur_.Evaluation(rendue, 2);
  }
  rendue.Donnees().jeu->VgEtat = kJeu;
  grille_ = Grille();
  return rendue;
}

// The contents that the run has written into `cases_`: proved ones while there is no base, or in it, all
// others rest on suppositions.
void Travail9::Ecrit(Grille& grille) const {
  Bloc& bloc = grille.Donnees();
  for (int i = 1; i <= kCases; ++i) {
    if (bloc.saisie[At(i)] != kVide || cases_.valeur[i - 1] == 0) continue;
    bloc.saisie[At(i)] = cases_.valeur[i - 1] - 1;
    bloc.etat[At(i)] = !base_ || casesBase_.valeur[i - 1] != 0 ? kProuvee : kPossible;
  }
}

std::int16_t Travail9::JeuSolve(bool possibles) {
  if (!auGeneral_) {
    jeuSolve_(cases_, base_ ? Appui::kPossible : Appui::kSur, passe_);
    candidats_ = passe_.candidats;
    // The kernel stops at the first cell without candidates; the engine then says what is left to the others.
    const bool complete = !passe_.erronee && (passe_.verdict >= 0 || !possibles);
    if (complete) return passe_.verdict;
    PasseAuGeneral();
  }
  return general_.JeuSolve(possibles);
}

void Travail9::PrendBase() {
  base_ = true;
  casesBase_ = cases_;
  std::ranges::copy(passe_.candidats, candidatsBase_);
}

void Travail9::Reconstruit() {
  auGeneral_ = false;
  cases_ = casesBase_;
  candidats_ = candidatsBase_;
  passe_.erronee = false;
}

void Travail9::Suppose(int cellule, Code symbole) {
  if (!auGeneral_ && (candidats_[cellule - 1] >> symbole & 1) != 0) {
    cases_.Pose(cellule - 1, symbole);
    return;
  }
  if (!auGeneral_) PasseAuGeneral();
  general_.Suppose(cellule, symbole);
}

// The attempt goes on with the engine: the base, evaluated, with what the attempt has written since.
void Travail9::PasseAuGeneral() {
  Montre();
  Grille grille;
  GrilleCopy(grille_, grille);
  general_.Commence(grille);
  general_.PrendBase();
  general_.Detache();
  grille = Grille();
  for (int i = 1; i <= kCases; ++i) {
    if (casesBase_.valeur[i - 1] != 0 || cases_.valeur[i - 1] == 0) continue;
    const bool erronee = passe_.erronee && passe_.erronees[i - 1];
    general_.Charge(i, cases_.valeur[i - 1] - 1, erronee ? kErronee : kPossible);
  }
  auGeneral_ = true;
}

int Travail9::CelluleOuverte(int cellule, Essai& Possible) {
  if (auGeneral_) return general_.CelluleOuverte(cellule, Possible);
  for (int i = cellule + 1; i <= kCases; ++i) {
    std::uint32_t candidats = candidats_[i - 1];
    if (cases_.valeur[i - 1] != 0 || std::popcount(candidats) < 2) continue;
    Possible.clear();
    for (; candidats != 0; candidats &= candidats - 1) Possible.push_back(std::countr_zero(candidats));
    return i;
  }
  return 0;
}

bool Travail9::SymboleEnDouble() {
  if (auGeneral_) return general_.SymboleEnDouble();
  for (int u = 0; u < 9; ++u) {
    if ((cases_.symboles[0][u] & cases_.symboles[1][u] & cases_.symboles[2][u]) != kTous) return true;
  }
  return false;
}

// The base has no wrong entries, and every cell that is open after a pass has several candidates, so that the
// kernel itself never comes here.
std::int16_t Travail9::Acheve() {
  return auGeneral_ ? general_.Acheve() : passe_.verdict;
}

void Travail9::Montre() {
  if (montree_) return;
  montree_ = true;
  EcritBase();
  moteur_.Evaluation(grille_, 2);
}

void Travail9::EcritBase() {
  Bloc& bloc = grille_.Donnees();
  for (int i = 1; i <= kCases; ++i) {
    if (bloc.saisie[At(i)] != kVide || casesBase_.valeur[i - 1] == 0) continue;
    bloc.saisie[At(i)] = casesBase_.valeur[i - 1] - 1;
    bloc.etat[At(i)] = kProuvee;
  }
}

}  // namespace sudoku
