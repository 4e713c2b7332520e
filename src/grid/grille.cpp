#include "grid/grille.h"

#include <algorithm>
#include <bit>
#include <utility>

#include "grid/game_state.h"

namespace sudoku {
namespace {

// The verdict on one player's entry whose Etat is 2 after the chance of step 3 -> 2.
std::int32_t Juge(const Bloc& bloc, int cellule) {
  if (!bloc.Permet(cellule, bloc.saisie[Rang(cellule)])) return kErronee;
  if (bloc.sure[Rang(cellule)] == kVide) return kPossible;
  return bloc.alphabet->Egaux(bloc.sure[Rang(cellule)], bloc.saisie[Rang(cellule)]) ? kProuvee : kErronee;
}

// Cells side by side that GrilleCheck looks over together, without a branch.
constexpr int kLot = 16;

struct Survol {
  int pleines = 0;             // given or proved
  std::uint32_t aVisiter = 0;  // bit i: cell i has no candidate or an entry to judge
};

// The cells have that many words of candidates.
template <int kMots>
Survol Survole(const Bloc& bloc, int premiere) {
  const std::int32_t* const etat = &bloc.etat[Rang(premiere)];
  const Code* const saisie = &bloc.saisie[Rang(premiere)];
  const Code* const possible = &bloc.possibleTexte[Rang(premiere)];
  const std::uint64_t* const candidats = &bloc.candidats[Rang(premiere * kMots)];
  bool visites[kLot];
  int pleines = 0;
  for (int i = 0; i < kLot; ++i) {
    std::uint64_t mots = 0;
    for (int m = 0; m < kMots; ++m) mots |= candidats[i * kMots + m];
    const auto moities = static_cast<std::uint32_t>(mots) | static_cast<std::uint32_t>(mots >> 32);
    const bool vide = (possible[i] == kVide) & (moities == 0);
    const std::int32_t paire = etat[i] & ~1;
    visites[i] = vide | (paire == kPossible);              // or kErronee
    pleines += (paire == kDonnee) & (saisie[i] != kVide);  // or kProuvee
  }
  std::uint32_t aVisiter = 0;
  for (int i = 0; i < kLot; ++i) aVisiter |= std::uint32_t{visites[i]} << i;
  return {pleines, aVisiter};
}

}  // namespace

bool Bloc::SansCandidat(int cellule) const {
  if (possibleTexte[Rang(cellule)] != kVide) return false;
  for (int m = 0; m < mots; ++m) {
    if (candidats[Rang(cellule * mots + m)] != 0) return false;
  }
  return true;
}

bool Bloc::Compte(int cellule) const {
  const std::int32_t e = etat[Rang(cellule)];
  return saisie[Rang(cellule)] != kVide && e >= kDonnee && e <= DernierEtatQuiCompte(jeu->VgEtat);
}

bool Bloc::Permet(int cellule, Code code) const {
  const Code possible = possibleTexte[Rang(cellule)];
  if (code == kVide || code == possible) return true;  // the empty text stands in every text
  if (possible != kVide) {
    if (!alphabet->Long(possible)) return alphabet->Egaux(possible, code);
    return Contient(alphabet->TexteDe(possible), alphabet->TexteDe(code));
  }
  if (!alphabet->Long(code)) {
    const int position = alphabet->Position(code);
    return position >= 0 &&
           std::ranges::any_of(alphabet->Egales(position), [&](int p) { return Candidat(cellule, p); });
  }
  return Contient(ClsPos(const_cast<Bloc*>(this), cellule).Possible(), alphabet->TexteDe(code));
}

Grille Grille::Nouvelle(GameState& jeu, TexteVue VmValeurs) {
  Grille grille;
  grille.bloc_ = std::make_shared<Bloc>();
  Bloc& bloc = *grille.bloc_;
  bloc.jeu = &jeu;
  bloc.geometrie = std::make_shared<const Geometrie>(static_cast<int>(VmValeurs.size()));
  bloc.alphabet = std::make_shared<Alphabet>(VmValeurs);
  bloc.mots = static_cast<int>(std::bit_ceil(static_cast<unsigned>(bloc.geometrie->N() + 63) / 64));
  const std::size_t taille = Rang(bloc.geometrie->Cases() + 1);
  bloc.etat.assign(taille, kDonnee);
  for (auto* codes : {&bloc.saisie, &bloc.sure, &bloc.poss, &bloc.possibleTexte})
    codes->assign(taille, kVide);
  bloc.candidats.assign(taille * Rang(bloc.mots), 0);
  return grille;
}

void GrilleCopy(const Grille& VpSource, Grille& VpDest) {
  if (VpDest.bloc_ && VpDest.bloc_.use_count() == 1 && VpDest.bloc_ != VpSource.bloc_) {
    *VpDest.bloc_ = *VpSource.bloc_;
  } else {
    VpDest.bloc_ = std::make_shared<Bloc>(*VpSource.bloc_);
  }
}

bool SymboleEnDouble(const Grille& VpGrille) {
  const Bloc& bloc = VpGrille.Donnees();
  std::vector<int> vu(Rang(VpGrille.N()), 0);
  int tour = 0;
  for (int type = kColonne; type <= kCarre; ++type) {
    for (int u = 1; u <= VpGrille.N(); ++u) {
      ++tour;
      for (const int cellule : bloc.geometrie->Serie(type, u)) {
        const int position = bloc.alphabet->Position(bloc.saisie[Rang(cellule)]);
        if (position >= 0 && std::exchange(vu[Rang(position)], tour) == tour) return true;
      }
    }
  }
  return false;
}

Visite VisiteCase(Bloc& bloc, int cellule, Revisions& revisions) {
  const std::size_t i = Rang(cellule);
  if (bloc.SansCandidat(cellule)) return Visite::kSansCandidat;
  std::int32_t& etat = bloc.etat[i];
  const std::int32_t avant = etat;
  if (etat == kDonnee || etat == kProuvee)
    return bloc.saisie[i] != kVide ? Visite::kPleine : Visite::kARemplir;
  std::vector<std::int16_t>& levees = revisions.levees;
  if (etat == kErronee) {
    const bool levable = levees.empty() || levees[i] < bloc.geometrie->N();
    if (levable && bloc.Permet(cellule, bloc.saisie[i])) etat = kPossible;
  }
  if (etat != kPossible) return Visite::kARemplir;
  etat = Juge(bloc, cellule);
  if (etat == avant) return etat == kPossible ? Visite::kPleine : Visite::kARemplir;
  if (avant == kErronee && etat == kPossible) {
    if (levees.empty()) levees.assign(bloc.etat.size(), 0);
    ++levees[i];
  }
  revisions.cellule = cellule;
  return Visite::kChange;
}

namespace {

template <int kMots>
std::int32_t Check(Bloc& bloc, int derniere, Revisions& revisions) {
  int pleines = 0;
  for (int premiere = 1; premiere <= derniere; premiere += kLot) {
    const int combien = std::min(kLot, derniere + 1 - premiere);
    Survol survol{.aVisiter = (1U << combien) - 1};
    if (combien == kLot) survol = Survole<kMots>(bloc, premiere);
    pleines += survol.pleines;
    for (std::uint32_t reste = survol.aVisiter; reste != 0; reste &= reste - 1) {
      const Visite visite = VisiteCase(bloc, premiere + std::countr_zero(reste), revisions);
      if (visite == Visite::kSansCandidat) return -1;
      if (visite == Visite::kChange) return kReevaluer;
      if (visite == Visite::kPleine) ++pleines;
    }
  }
  return derniere - pleines;
}

}  // namespace

std::int32_t GrilleCheck(Grille& VpGrille, Revisions& revisions) {
  Bloc& bloc = VpGrille.Donnees();
  if (bloc.mots == 1) return Check<1>(bloc, VpGrille.Borne(), revisions);
  if (bloc.mots == 2) return Check<2>(bloc, VpGrille.Borne(), revisions);
  return Check<4>(bloc, VpGrille.Borne(), revisions);
}

}  // namespace sudoku
