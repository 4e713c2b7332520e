#include "plain/plain_engine.h"

#include <cmath>

namespace sudoku::plain {

void ClsPos::Load(TexteVue valeur, int etat) {
  VmValeur = valeur;
  Etat = etat;
}

TexteVue Jeu::Valeur(const ClsPos& c) const {
  switch (c.Etat) {
    case kDonnee:
    case kSure:
      return c.VmValeur;
    case kEssai:
      return VgEtat == kSecondePasse ? TexteVue(c.VmValeur) : TexteVue();
    default:
      return {};
  }
}

void Jeu::DonneValeur(ClsPos& c, TexteVue valeur) {
  if (VgEtat == kFini) VgEtat = kJeu;
  if (valeur.empty()) {
    c.Load(U"", kSure);
    return;
  }
  const bool possible = Contient(c.Possible, valeur);
  if (VgEtat == kEntree) {
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

Case Jeu::Cellule(int index) const {
  const int n = VmTaille;
  const int s = static_cast<int>(std::sqrt(static_cast<double>(n)));
  auto c = std::make_shared<ClsPos>();
  c->Index = index;
  c->Colonne = (index - 1) % n + 1;
  c->Ligne = (index - 1) / n + 1;
  c->Carre = (c->Ligne - 1) / s * s + (c->Colonne - 1) / s + 1;
  return c;
}

bool Jeu::JeuVierge(TexteVue valeurs) {
  const double r = std::sqrt(static_cast<double>(valeurs.size()));
  if (valeurs.empty() || valeurs.size() > 169 || std::floor(r) != r) return false;
  VgEtat = kEntree;
  VmValeurs = valeurs;
  VmTaille = static_cast<int>(valeurs.size());
  VmGrille.assign(1, nullptr);
  VmGrilleEtat.clear();
  VsResolu = false;
  for (auto& type : unites_) type.assign(static_cast<std::size_t>(VmTaille) + 1, {});
  for (int i = 1; i <= VmTaille * VmTaille; ++i) {
    const Case c = Cellule(i);
    VmGrille.push_back(c);
    unites_[kColonne][static_cast<std::size_t>(c->Colonne)].push_back(i);
    unites_[kLigne][static_cast<std::size_t>(c->Ligne)].push_back(i);
    unites_[kCarre][static_cast<std::size_t>(c->Carre)].push_back(i);
  }
  Evaluation(VmGrille, 1);
  return true;
}

Grille Jeu::GrilleCopy(const Grille& source) const {
  Grille copie(1);
  for (std::size_t i = 1; i < source.size(); ++i) {
    copie.push_back(Cellule(static_cast<int>(i)));
    const ClsPos& de = *source[i];
    ClsPos& vers = *copie.back();
    vers.Load(de.ValeurSaisie(), de.Etat);
    vers.Possible = de.Possible;
    vers.SolutionSure = de.SolutionSure;
    vers.SolutionPoss = de.SolutionPoss;
    vers.Explications = de.Explications;
  }
  return copie;
}

int Jeu::NbARemplir(const Grille& grille) const {
  int nombre = 0;
  for (std::size_t i = 1; i < grille.size(); ++i) {
    const ClsPos& c = *grille[i];
    if (c.ValeurSaisie().empty() && !(c.SolutionSure.empty() && c.SolutionPoss.empty())) ++nombre;
  }
  return nombre;
}

// Steps 3 to 5 of a visit: revises Etat and gives what the cell adds to the count.
int Jeu::Juge(ClsPos& c, bool relevable) const {
  const Texte& saisie = c.ValeurSaisie();
  if (c.Etat == kDonnee || c.Etat == kSure) return saisie.empty() ? 0 : 1;
  const bool possible = Contient(c.Possible, saisie);
  if (c.Etat == kFausse && possible && relevable) c.Etat = kEssai;
  if (c.Etat != kEssai) return 0;
  if (!possible) {
    c.Etat = kFausse;
    return 0;
  }
  if (c.SolutionSure.empty()) return 1;
  c.Etat = Egal(c.SolutionSure, saisie) ? kSure : kFausse;
  return c.Etat == kSure ? 1 : 0;
}

std::optional<int> Jeu::GrilleCheck(const Grille& grille, std::vector<int>& releves) {
  int nombre = 0;
  for (std::size_t i = 1; i < grille.size(); ++i) {
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
int Jeu::Evaluation(Grille& grille, int passes, bool suite) {
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

void Jeu::Passes(Grille& grille, int passes, bool suite) {
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
bool Jeu::ParcoursCases(Grille& grille, bool suite) {
  bool saisies = false;
  for (std::size_t i = 1; i < grille.size(); ++i) {
    ClsPos& c = *grille[i];
    if (c.Etat == kEssai) saisies = true;
    if (!suite) {
      c.Explications.clear();
      c.SolutionPoss.clear();
      if (VgEtat != kSecondePasse) c.SolutionSure.clear();
      ListePossibles(static_cast<int>(i), grille);
    }
    if (c.Possible.size() == 1) {
      (VgEtat == kEntree || VgEtat == kJeu ? c.SolutionSure : c.SolutionPoss) = c.Possible;
    }
  }
  return saisies;
}

bool Jeu::ParcoursSeries(Grille& grille) {
  bool change = false;
  Serie serie(static_cast<std::size_t>(VmTaille) + 1);
  for (int s = 1; s <= VmTaille; ++s) {
    for (const int type : {kCarre, kLigne, kColonne}) {
      GetSerie(type, s, serie, grille);
      if (TestSerie(serie, type, grille)) change = true;
    }
  }
  return change;
}

void Jeu::ListePossibles(int pos, Grille& grille) {
  ClsPos& c = *grille[static_cast<std::size_t>(pos)];
  if (!Valeur(c).empty()) {
    c.Possible = c.ValeurSaisie();
    return;
  }
  Serie serie(static_cast<std::size_t>(VmTaille) + 1);
  c.Possible = VmValeurs;
  GetSerie(kCarre, c.Carre, serie, grille);
  c.Possible = RetireTous(c.Possible, serie, pos);
  GetSerie(kLigne, c.Ligne, serie, grille);
  c.Possible = RetireTous(c.Possible, serie, pos);
  GetSerie(kColonne, c.Colonne, serie, grille);
  c.Possible = RetireTous(c.Possible, serie, pos);
}

Texte Jeu::RetireTous(TexteVue liste, const Serie& serie, int pos) const {
  Texte copie(liste);
  for (std::size_t i = 1; i < serie.size(); ++i) {
    if (serie[i]->Index == pos) continue;
    const TexteVue valeur = Valeur(*serie[i]);
    if (valeur.empty()) continue;
    if (valeur.size() == 1 ? Porte(copie, valeur[0]) : Contient(copie, valeur)) copie = Sans(copie, valeur);
  }
  return copie;
}

}  // namespace sudoku::plain
