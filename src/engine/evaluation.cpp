#include "engine/evaluation.h"

#include <algorithm>

#include "engine/figures.h"
#include "engine/series.h"
#include "engine/tableau.h"

namespace sudoku {
namespace {

// The engine for grids whose sets take W words.
template <int W>
class Moteur {
 public:
  // Up to VpPasses passes; GrilleCheck is the caller's.
  void Passes(GameState& jeu, Grille& grille, int VpPasses, bool premiereConnue) {
    t_.Adopte(jeu, grille);
    const bool seconde = premiereConnue && VpPasses == 2 &&
                         std::ranges::find(grille.Donnees().etat, kPossible) != grille.Donnees().etat.end();
    for (int passe = seconde ? 2 : 1; passe <= VpPasses; ++passe) {
      if (VpPasses == 2) jeu.VgEtat = passe == 1 ? kJeu : kSecondePasse;
      const bool saisies = t_.Amorce();
      t_.Releve();
      if (t_.aRemplir) return;
      t_.Retourne();
      Deduit();
      if (t_.aRemplir || !saisies) return;
    }
  }

 private:
  // Series, then figures, from the simplest again after each removal, until nothing goes any more or a cell
  // can be filled. Each turn is a continuation of the evaluation: cells left with one candidate are solutions.
  void Deduit() {
    for (;;) {
      if (!series_.Balaye()) {
        if (t_.aRemplir || !figures_.NxN()) return;
      }
      t_.Releve();
      if (t_.aRemplir) return;
    }
  }

  Tableau<W> t_;
  Series<W> series_{t_};
  Figures<W> figures_{t_};
};

}  // namespace

class Evaluateur::Travail {
 public:
  void Passes(GameState& jeu, Grille& grille, int VpPasses, bool premiereConnue) {
    switch (grille.Donnees().mots) {
      case 1:
        return Lance(un_, jeu, grille, VpPasses, premiereConnue);
      case 2:
        return Lance(deux_, jeu, grille, VpPasses, premiereConnue);
      default:
        return Lance(trois_, jeu, grille, VpPasses, premiereConnue);
    }
  }

  Levees levees;

 private:
  template <int W>
  static void Lance(std::unique_ptr<Moteur<W>>& moteur, GameState& jeu, Grille& grille, int VpPasses, bool premiereConnue) {
    if (!moteur) moteur = std::make_unique<Moteur<W>>();
    moteur->Passes(jeu, grille, VpPasses, premiereConnue);
  }

  std::unique_ptr<Moteur<1>> un_;
  std::unique_ptr<Moteur<2>> deux_;
  std::unique_ptr<Moteur<3>> trois_;
};

Evaluateur::Evaluateur(GameState& jeu) : jeu_(jeu), travail_(std::make_unique<Travail>()) {}
Evaluateur::~Evaluateur() = default;

// A changed Etat changes what the deductions rest on: everything is worked out again, with two passes. It ends:
// an entry goes from 2 to 1 or 3 and from 3 to 1 at most once between two lifts from 3 to 2, and GrilleCheck
// allows each cell N lifts.
std::int16_t Evaluateur::Evaluation(Grille& VpGrille, int VpPasses, bool premiereConnue) {
  travail_->levees.clear();
  for (int passes = VpPasses;; passes = 2) {
    travail_->Passes(jeu_, VpGrille, passes, premiereConnue);
    const std::int32_t verdict = GrilleCheck(VpGrille, travail_->levees);
    if (passes == 2) jeu_.VgEtat = kJeu;
    if (verdict != kReevaluer) return static_cast<std::int16_t>(verdict);
  }
}

}  // namespace sudoku
