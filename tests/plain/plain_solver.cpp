#include "plain/plain_engine.h"

namespace sudoku::plain {

int Jeu::JeuSolve(const Grille& grille) {
  for (;;) {
    const int resultat = Evaluation(grille, 2);
    if (resultat == -1) return -1;
    bool fini = true;
    for (const Case& c : grille) {
      const bool sure = !c->SolutionSure.empty() && !Egal(c->ValeurSaisie, c->SolutionSure);
      const bool poss = c->ValeurSaisie.empty() && !c->SolutionPoss.empty();
      if (!sure && !poss) continue;
      DonneValeur(*c, Texte(sure ? c->SolutionSure : c->SolutionPoss));
      fini = false;
    }
    if (fini) return resultat;
  }
}

// True when the search is over, false when Guess is to go on.
bool Jeu::GuessResult(int resultat, Pile& supp) {
  if (resultat == 0) return true;
  if (resultat > 0) return false;
  while (supp.size() > 1) {
    TSupposition& haut = supp.back();
    haut.Essais += haut.Valeur;
    haut.Valeur.clear();
    if (!Egal(haut.Possible, haut.Essais)) return false;
    Message(U"Retour arrière ! Procédure à vérifier");
    supp[0].Essais += haut.Essais;
    supp.pop_back();
  }
  return true;
}

// The next supposition; false when it finds no cell for one.
bool Jeu::Guess(Grille& grille, const Grille& base, Pile& supp) {
  grille = GrilleCopy(base);
  const auto suppose = [&](const TSupposition& s) {
    DonneValeur(*grille[static_cast<std::size_t>(s.Index - 1)], s.Valeur);
  };
  for (std::size_t niveau = 1; niveau < supp.size(); ++niveau) {
    if (!supp[niveau].Valeur.empty()) suppose(supp[niveau]);
  }
  if (supp.size() > 1) {
    TSupposition& haut = supp.back();
    if (haut.Valeur.empty()) {
      haut.Valeur = haut.Possible.substr(haut.Essais.size(), 1);
      suppose(haut);
      return true;
    }
    JeuSolve(grille);
  }
  for (const Case& c : grille) {
    if (c->Index <= supp.back().Index || c->Possible.size() <= 1) continue;
    supp.push_back({c->Index, {}, c->Possible.substr(0, 1), c->Possible});
    suppose(supp.back());
    return true;
  }
  return false;
}

// No cell is left to suppose a symbol for: wrong entries of the player that stand in the way of their cells'
// only candidates give way to them.
void Jeu::CorrigeFausses(const Grille& grille, const Grille& base) {
  for (std::size_t i = 0; i < grille.size(); ++i) {
    ClsPos& c = *grille[i];
    if (!base[i]->ValeurSaisie.empty() && c.Etat == kFausse && c.Possible.size() == 1) {
      DonneValeur(c, Texte(c.Possible));
    }
  }
}

// A symbol of the grid stands twice in a unit; contents that are no symbol don't count.
bool Jeu::UniteBrisee(const Grille& grille) const {
  for (const int type : {kColonne, kLigne, kCarre}) {
    for (int num = 1; num <= VmTaille; ++num) {
      Texte vus;
      for (const Case& c : GetSerie(type, num, grille)) {
        if (c->ValeurSaisie.size() != 1 || !Contient(VmValeurs, c->ValeurSaisie)) continue;
        if (Contient(vus, c->ValeurSaisie)) return true;
        vus += c->ValeurSaisie;
      }
    }
  }
  return false;
}

// The loop of solve pass and supposition; false when it ends with a grid that can be neither completed nor
// refuted.
bool Jeu::Recherche(Grille& travail, bool guess, Pile& supp, int& verdict) {
  Grille base;
  for (;;) {
    verdict = JeuSolve(travail);
    if (verdict == 0 && supp.size() > 1 && UniteBrisee(travail)) verdict = -1;
    if (base.empty()) base = GrilleCopy(travail);
    if (GuessResult(verdict, supp) || !guess) return true;
    if (Guess(travail, base, supp)) continue;
    CorrigeFausses(travail, base);
    verdict = JeuSolve(travail);
    if (verdict == 0 && !UniteBrisee(travail)) return true;
    if (supp.size() == 1) return false;
    verdict = -1;
    if (GuessResult(verdict, supp)) return true;
    Guess(travail, base, supp);
  }
}

void Jeu::JeuAuto(bool reset, bool guess) {
  if (reset) VsResolu = false;
  if (VsResolu) {
    if (!VgSilence) VmGrille = VmGrilleEtat;
    return;
  }
  if (VgSilence) VmGrilleEtat = GrilleCopy(VmGrille);
  Grille travail = VgSilence ? VmGrilleEtat : VmGrille;
  Pile supp(1);
  int verdict = 0;
  const bool tranche = Recherche(travail, guess, supp, verdict);
  const bool resolu = tranche && verdict == 0;
  if (resolu) VsResolu = true;
  if (VgSilence) {
    VgEtat = kJeu;
  } else {
    VmGrille = travail;
    Message(tranche ? MessageFinal(verdict, supp) : U"Non résolu");
  }
  if (resolu) VmGrilleEtat = travail;
}

Texte Jeu::MessageFinal(int verdict, const Pile& supp) const {
  if (verdict == -1) return U"Insoluble (état initial incorrect)";
  if (verdict != 0) return U"Non résolu";
  std::size_t suppositions = 0, erreurs = 0;
  for (const TSupposition& s : supp) {
    suppositions += s.Valeur.size() + s.Essais.size();
    erreurs += s.Essais.size();
  }
  if (suppositions == 0) return U"Résolu sans supposition";
  return U"Résolu avec " + Decimal(static_cast<std::int64_t>(suppositions)) + U" supposition(s), dont " +
         Decimal(static_cast<std::int64_t>(erreurs)) + U" erreur(s)";
}

}  // namespace sudoku::plain
