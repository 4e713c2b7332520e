#include "lot/solutions.h"

namespace sudoku::lot {
namespace {

constexpr int kParChoix = 4;
constexpr int kLimite = 2;

}  // namespace

int CompteurSolutions::Compte(const Geometrie& geometrie, std::span<const int> donnees) {
  geo_ = &geometrie;
  return Prepare(donnees) ? Cherche() : 0;
}

// The number of a condition, from 1: a cell, or a symbol in the unit of kind k - 1 that holds the cell.
int CompteurSolutions::Condition(int k, int cellule, int symbole) const {
  if (k == 0) return cellule;
  return k * geo_->Cases() + (geo_->Unite(k - 1, cellule) - 1) * geo_->N() + symbole + 1;
}

// Builds the matrix of what the givens leave open. False if they contradict each other.
bool CompteurSolutions::Prepare(std::span<const int> donnees) {
  conditions_ = kParChoix * geo_->Cases();
  if (!PlaceDonnees(donnees)) return false;
  noeuds_.resize(Rang(conditions_ + 1));
  tetes_.assign(Rang(conditions_ + 1), Tete{0, 0, 0});
  choix_.clear();
  for (std::int32_t c = 0; c <= conditions_; ++c) {
    noeuds_[Rang(c)] = {c, c, c};
    if (c == 0 || couvertes_[Rang(c)]) continue;
    tetes_[Rang(c)] = {tetes_[0].gauche, 0, 0};
    tetes_[Rang(tetes_[0].gauche)].droite = c;
    tetes_[0].gauche = c;
  }
  for (int cellule = 1; cellule <= geo_->Cases(); ++cellule) {
    if (donnees[Rang(cellule)] >= 0) continue;
    for (int s = 0; s < geo_->N(); ++s) AjouteChoix(cellule, s);
  }
  return true;
}

bool CompteurSolutions::PlaceDonnees(std::span<const int> donnees) {
  couvertes_.assign(Rang(conditions_ + 1), 0);
  solution_.assign(donnees.begin(), donnees.end());
  for (int cellule = 1; cellule <= geo_->Cases(); ++cellule) {
    if (donnees[Rang(cellule)] < 0) continue;
    for (int k = 0; k < kParChoix; ++k) {
      char& couverte = couvertes_[Rang(Condition(k, cellule, donnees[Rang(cellule)]))];
      if (couverte) return false;
      couverte = 1;
    }
  }
  return true;
}

void CompteurSolutions::AjouteChoix(int cellule, int symbole) {
  for (int k = 1; k < kParChoix; ++k) {
    if (couvertes_[Rang(Condition(k, cellule, symbole))]) return;
  }
  choix_.push_back(cellule * geo_->N() + symbole);
  for (int k = 0; k < kParChoix; ++k) {
    const std::int32_t c = Condition(k, cellule, symbole);
    const auto noeud = static_cast<std::int32_t>(noeuds_.size());
    const std::int32_t dernier = noeuds_[Rang(c)].haut;
    noeuds_.push_back({dernier, c, c});
    noeuds_[Rang(dernier)].bas = noeud;
    noeuds_[Rang(c)].haut = noeud;
    ++tetes_[Rang(c)].taille;
  }
}

// Depth first, as a loop: a grid is as deep as it has open cells.
int CompteurSolutions::Cherche() {
  int trouvees = 0;
  pile_.clear();
  for (bool descend = true;;) {
    if (descend && tetes_[0].droite == 0) {
      if (trouvees == 0) Note();
      if (++trouvees == kLimite) return trouvees;
      descend = false;
    }
    std::int32_t noeud = 0;
    if (descend) {
      const std::int32_t colonne = PlusContrainte();
      Couvre(colonne);
      noeud = noeuds_[Rang(colonne)].bas;
    } else {
      if (pile_.empty()) return trouvees;
      Rend(pile_.back());
      noeud = noeuds_[Rang(pile_.back())].bas;
      pile_.pop_back();
    }
    descend = noeud > conditions_;
    if (descend) {
      Prend(noeud);
      pile_.push_back(noeud);
    } else {
      Decouvre(noeud);  // the head of the column: all its choices are tried
    }
  }
}

void CompteurSolutions::Note() {
  for (const std::int32_t noeud : pile_) {
    const std::int32_t choix = choix_[Rang((noeud - conditions_ - 1) / kParChoix)];
    solution_[Rang(choix / geo_->N())] = choix % geo_->N();
  }
}

std::int32_t CompteurSolutions::PlusContrainte() const {
  std::int32_t meilleure = tetes_[0].droite;
  for (std::int32_t c = meilleure; c != 0 && tetes_[Rang(meilleure)].taille > 1; c = tetes_[Rang(c)].droite) {
    if (tetes_[Rang(c)].taille < tetes_[Rang(meilleure)].taille) meilleure = c;
  }
  return meilleure;
}

// Takes a condition out of the list, and every choice that would cover it again out of the other columns.
void CompteurSolutions::Couvre(std::int32_t colonne) {
  const Tete& tete = tetes_[Rang(colonne)];
  tetes_[Rang(tete.gauche)].droite = tete.droite;
  tetes_[Rang(tete.droite)].gauche = tete.gauche;
  for (std::int32_t n = noeuds_[Rang(colonne)].bas; n != colonne; n = noeuds_[Rang(n)].bas) {
    const std::int32_t premier = PremierDuChoix(n);
    for (std::int32_t m = premier; m < premier + kParChoix; ++m) {
      if (m == n) continue;
      const Noeud& noeud = noeuds_[Rang(m)];
      noeuds_[Rang(noeud.haut)].bas = noeud.bas;
      noeuds_[Rang(noeud.bas)].haut = noeud.haut;
      --tetes_[Rang(noeud.colonne)].taille;
    }
  }
}

// The same backwards.
void CompteurSolutions::Decouvre(std::int32_t colonne) {
  for (std::int32_t n = noeuds_[Rang(colonne)].haut; n != colonne; n = noeuds_[Rang(n)].haut) {
    const std::int32_t premier = PremierDuChoix(n);
    for (std::int32_t m = premier + kParChoix - 1; m >= premier; --m) {
      if (m == n) continue;
      const Noeud& noeud = noeuds_[Rang(m)];
      noeuds_[Rang(noeud.haut)].bas = m;
      noeuds_[Rang(noeud.bas)].haut = m;
      ++tetes_[Rang(noeud.colonne)].taille;
    }
  }
  const Tete& tete = tetes_[Rang(colonne)];
  tetes_[Rang(tete.gauche)].droite = colonne;
  tetes_[Rang(tete.droite)].gauche = colonne;
}

// The other conditions of a choice whose own column is covered.
void CompteurSolutions::Prend(std::int32_t noeud) {
  const std::int32_t premier = PremierDuChoix(noeud);
  for (std::int32_t m = premier; m < premier + kParChoix; ++m) {
    if (m != noeud) Couvre(noeuds_[Rang(m)].colonne);
  }
}

void CompteurSolutions::Rend(std::int32_t noeud) {
  const std::int32_t premier = PremierDuChoix(noeud);
  for (std::int32_t m = premier + kParChoix - 1; m >= premier; --m) {
    if (m != noeud) Decouvre(noeuds_[Rang(m)].colonne);
  }
}

}  // namespace sudoku::lot
