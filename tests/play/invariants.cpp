#include "play/invariants.h"

namespace sudoku {
namespace {

std::string Case(int i, const char* quoi) {
  return "case " + std::to_string(i) + " : " + quoi;
}

}  // namespace

std::string Invariants::Rompu() {
  if (std::string rompu = EtatRompu(); !rompu.empty()) return rompu;
  const Plateau& plateau = LePlateau();
  if (plateau.Cases() != Jeu().VmGrille.Borne()) return "autant de boîtes que de cases";
  if (Jeu().VmCase > plateau.Cases()) return "VmCase hors du plateau";
  // A grid just made is not painted, and stays so where loading its cells fails: its boxes are new.
  if (plateau.Constructions() != construction_) {
    redessin_ = plateau.Redessins();
    neuf_ = true;
    for (int i = 1; i <= plateau.Cases(); ++i) neuf_ = neuf_ && plateau.TxtCase(i).Text.empty();
  }
  construction_ = plateau.Constructions();
  if (neuf_ && plateau.Redessins() == redessin_) return {};
  const Grille& grille = Jeu().VgSilence ? Jeu().VmGrilleEtat : Jeu().VmGrille;
  for (int i = 1; i <= grille.Borne(); ++i) {
    if (std::string rompu = BoiteRompue(grille, i); !rompu.empty()) return rompu;
  }
  return {};
}

std::string Invariants::EtatRompu() const {
  const std::int32_t etat = Jeu().VgEtat;
  if (etat != kSansGrille && etat != kSaisieGrille && etat != kJeu && etat != kTermine) {
    return "VgEtat " + std::to_string(etat);
  }
  const Grille& grille = Jeu().VmGrille;
  if (etat != kSansGrille && grille.N() != Jeu().VmTaille) return "VmTaille";
  if (LePlateau().Cadres() != grille.N()) return "autant de cadres que de carrés";
  if (Jeu().VmPartie >= static_cast<int>(Jeu().VgParties.size())) return "VmPartie";
  for (int i = 1; i <= grille.Borne() && etatsDuJeu_; ++i) {
    if (grille(i).Etat() >= kPossible && grille(i).ValeurSaisie().empty()) return Case(i, "vide et jugée");
  }
  return {};
}

std::string Invariants::BoiteRompue(const Grille& grille, int i) const {
  const CaseTexte& boite = LePlateau().TxtCase(i);
  const ClsPos cellule = grille(i);
  const bool donnee = !cellule.ValeurSaisie().empty() && cellule.Etat() == kDonnee;
  if (boite.Text != cellule.ValeurSaisie()) return Case(i, "Text");
  if (boite.TabStop == boite.Locked) return Case(i, "TabStop");
  if (boite.Appearance != (i == LePlateau().Focus() ? 1 : 0)) return Case(i, "Appearance");
  // A given that the solver has overwritten leaves its box locked.
  if (donnee && boite.Locked != (Jeu().VgEtat != kSaisieGrille)) return Case(i, "Locked");
  return {};
}

}  // namespace sudoku
