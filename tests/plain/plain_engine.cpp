#include "plain/plain_engine.h"

#include <algorithm>
#include <cmath>

namespace sudoku::plain {

TexteVue Jeu::Valeur(const ClsPos& c) const {
  const bool compte = c.Etat == kDonnee || c.Etat == kSure || (c.Etat == kEssai && VgEtat == kSecondePasse);
  return compte ? TexteVue(c.ValeurSaisie) : TexteVue();
}

void Jeu::DonneValeur(ClsPos& c, TexteVue valeur) {
  if (VgEtat == kFini) VgEtat = kJeu;
  const bool possible = Contient(c.Possible, valeur);
  if (valeur.empty()) {
    c.Load(U"", kSure);
  } else if (VgEtat == kEntree) {
    if (possible && (c.SolutionSure.empty() || Egal(c.SolutionSure, valeur))) {
      c.Load(valeur, kDonnee);
    } else {
      Message(U"Impossible");
    }
  } else if (c.SolutionSure.empty()) {
    c.Load(valeur, possible ? kEssai : kFausse);
  } else {
    c.Load(valeur, Egal(c.SolutionSure, valeur) ? kSure : kFausse);
  }
}

void Jeu::JeuVierge(TexteVue valeurs) {
  VgEtat = kEntree;
  VmValeurs = valeurs;
  VmTaille = static_cast<int>(valeurs.size());
  VmGrille.clear();
  VmGrilleEtat.clear();
  VsResolu = false;
  for (auto& type : unites_) type.assign(valeurs.size() + 1, {});
  const int n = VmTaille;
  const int s = static_cast<int>(std::lround(std::sqrt(n)));
  for (int i = 0; i < n * n; ++i) {
    const int ligne = i / n, colonne = i % n, carre = ligne / s * s + colonne / s;
    VmGrille.push_back(std::make_shared<ClsPos>());
    VmGrille.back()->Index = i + 1;
    for (const auto& [type, num] : {std::pair{kColonne, colonne}, {kLigne, ligne}, {kCarre, carre}}) {
      VmGrille.back()->Unite[type] = num + 1;
      unites_[type][static_cast<std::size_t>(num + 1)].push_back(i);
    }
  }
  Evaluation(VmGrille, 1);
}

Grille Jeu::GrilleCopy(const Grille& source) const {
  Grille copie;
  for (const Case& c : source) copie.push_back(std::make_shared<ClsPos>(*c));
  return copie;
}

int Jeu::NbARemplir(const Grille& grille) const {
  return static_cast<int>(std::ranges::count_if(grille, [](const Case& c) {
    return c->ValeurSaisie.empty() && !(c->SolutionSure.empty() && c->SolutionPoss.empty());
  }));
}

// Steps 3 to 5 of a visit: revises Etat and gives what the cell adds to the count.
int Jeu::Juge(ClsPos& c, bool relevable) const {
  if (c.Etat == kDonnee || c.Etat == kSure) return c.ValeurSaisie.empty() ? 0 : 1;
  const bool possible = Contient(c.Possible, c.ValeurSaisie);
  if (c.Etat == kFausse && possible && relevable) c.Etat = kEssai;
  if (c.Etat != kEssai) return 0;
  if (!possible) {
    c.Etat = kFausse;
    return 0;
  }
  if (c.SolutionSure.empty()) return 1;
  c.Etat = Egal(c.SolutionSure, c.ValeurSaisie) ? kSure : kFausse;
  return c.Etat == kSure ? 1 : 0;
}

std::optional<int> Jeu::GrilleCheck(const Grille& grille, std::vector<int>& releves) {
  int nombre = 0;
  for (std::size_t i = 0; i < grille.size(); ++i) {
    ClsPos& c = *grille[i];
    if (c.Possible.empty()) return -1;
    const int avant = c.Etat;
    nombre += Juge(c, releves[i] < VmTaille);
    if (avant == kFausse && c.Etat == kEssai) ++releves[i];
    if (c.Etat != avant) return std::nullopt;
  }
  return VmTaille * VmTaille - nombre;
}

// The evaluations that GrilleCheck asks for follow one another here; each has two passes.
int Jeu::Evaluation(const Grille& grille, int passes, bool suite) {
  if (suite) {
    Passes(grille, passes, true);
    return 0;
  }
  std::vector<int> releves(grille.size(), 0);  // by cell: how often a judgement of 3 was lifted to 2
  for (;; passes = 2) {
    Passes(grille, passes, false);
    const std::optional<int> verdict = GrilleCheck(grille, releves);
    if (!verdict) continue;
    if (passes == 2) VgEtat = kJeu;
    return *verdict;
  }
}

void Jeu::Passes(const Grille& grille, int passes, bool suite) {
  bool saisies = false;
  for (int p = 1; p <= passes; ++p) {
    if (passes == 2) VgEtat = p + 1;
    if (ParcoursCases(grille, suite)) saisies = true;
    if (NbARemplir(grille) > 0) return;
    if (ParcoursSeries(grille)) Evaluation(grille, 1, true);
    if (NbARemplir(grille) > 0) return;
    if (NxN(grille)) Evaluation(grille, 1, true);
    if (NbARemplir(grille) > 0) return;
    if (!saisies) return;
  }
}

// The cell scan; whether there are unproved entries.
bool Jeu::ParcoursCases(const Grille& grille, bool suite) {
  bool saisies = false;
  for (const Case& c : grille) {
    if (c->Etat == kEssai) saisies = true;
    if (!suite) {
      c->Explications.clear();
      c->SolutionPoss.clear();
      if (VgEtat != kSecondePasse) c->SolutionSure.clear();
      c->Possible = ListePossibles(*c, grille);
    }
    if (c->Possible.size() == 1) Trouve(*c, c->Possible);
  }
  return saisies;
}

bool Jeu::ParcoursSeries(const Grille& grille) {
  bool change = false;
  for (int num = 1; num <= VmTaille; ++num) {
    for (const int type : {kCarre, kLigne, kColonne}) {
      if (TestSerie(type, num, grille)) change = true;
    }
  }
  return change;
}

Texte Jeu::ListePossibles(const ClsPos& c, const Grille& grille) const {
  if (!Valeur(c).empty()) return c.ValeurSaisie;
  Texte possible = VmValeurs;
  for (const int type : {kCarre, kLigne, kColonne}) {
    for (const Case& autre : GetSerie(type, c.Unite[type], grille)) {
      const TexteVue valeur = autre->Index == c.Index ? TexteVue() : Valeur(*autre);
      if (valeur.size() > 1 || (valeur.size() == 1 && Porte(possible, valeur[0]))) {
        possible = Sans(possible, valeur);
      }
    }
  }
  return possible;
}

void Jeu::Trouve(ClsPos& c, TexteVue symbole) const {
  (VgEtat == kEntree || VgEtat == kJeu ? c.SolutionSure : c.SolutionPoss) = symbole;
}

}  // namespace sudoku::plain
