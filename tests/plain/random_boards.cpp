#include "plain/random_boards.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace sudoku::plain {
namespace {

// N different symbols, none equal to another when case is ignored.
Texte Distincts(int n) {
  Texte symboles = U"123456789";
  for (char32_t c = U'A'; symboles.size() < At(n) && c <= U'Z'; ++c) symboles += c;
  for (char32_t c = 0x4E00; symboles.size() < At(n); ++c) symboles += c;
  return symboles.substr(0, At(n));
}

char32_t AutreCasse(char32_t c) {
  const char32_t bas = Minuscule(c);
  if (bas != c) return bas;
  return c >= U'a' && c <= U'z' ? c - 0x20 : c;
}

// Two symbols change places in cells that hang together, which leaves no unit with one of them twice.
void Echange(Hasard& hasard, int n, int s, std::vector<int>& grille) {
  const int a = hasard.Entier(n), b = (a + 1 + hasard.Entier(n - 1)) % n;
  std::vector<int> reste;
  for (int i = 0; i < n * n; ++i) {
    if (grille[At(i)] == a || grille[At(i)] == b) reste.push_back(i);
  }
  hasard.Melange(reste);
  std::vector<int> chaine{reste[0]};
  reste[0] = -1;
  // NOLINTNEXTLINE(modernize-loop-convert): the chain grows on the way
  for (std::size_t k = 0; k < chaine.size(); ++k) {
    const int i = chaine[k];
    for (int& j : reste) {
      const bool carre = i / n / s == j / n / s && i % n / s == j % n / s;
      if (j < 0 || (i / n != j / n && i % n != j % n && !carre)) continue;
      chaine.push_back(j);
      j = -1;  // it is in the chain
    }
  }
  for (const int i : chaine) grille[At(i)] = a + b - grille[At(i)];
}

Texte Symbole(Hasard& hasard, TexteVue symboles) {
  return Texte(1, symboles[At(hasard.Entier(static_cast<int>(symboles.size())))]);
}

// Neighbours in `symboles`, several symbols at random, one written twice, one in the other case, a stranger.
Texte TexteEtrange(Hasard& hasard, TexteVue symboles) {
  const int n = static_cast<int>(symboles.size());
  const int genre = hasard.Entier(6);
  const Texte un = Symbole(hasard, symboles);
  if (genre <= 1) return Texte(symboles.substr(At(hasard.Entier(n)), At(2 + hasard.Entier(3))));
  if (genre == 2) return un + Symbole(hasard, symboles);
  if (genre == 3) return un + un + (hasard.UneFoisSur(2) ? Symbole(hasard, symboles) : Texte());
  if (genre == 4) return Texte(1, AutreCasse(un[0]));
  return hasard.UneFoisSur(2) ? U"ß" : un + U"?";
}

// A board that few deductions can enter. Symbols that stand nowhere, two at least, are possible in every open
// cell: no cell and hardly a symbol is settled at once. The others are scattered over the closed cells. Some
// neighbouring rows or columns may be open in the same few places alone, so that figures stand there.
void Disperse(Hasard& hasard, Plateau& plateau) {
  const int n = static_cast<int>(plateau.symboles.size());
  Texte usages = plateau.symboles;
  hasard.Melange(usages);
  usages.resize(At(1 + hasard.Entier(hasard.UneFoisSur(2) ? std::min(n, 2) : std::max(1, n - 2))));
  const int etats = hasard.UneFoisSur(3) ? 1 + hasard.Entier(40) : 0;
  const bool etranges = hasard.UneFoisSur(8);
  const int densite = 15 + hasard.Entier(75), lignes = hasard.Entier(5), debut = hasard.Entier(n);
  const bool couchees = hasard.UneFoisSur(2);
  std::set<int> places;
  for (int k = 0; k < lignes; ++k) places.insert(hasard.Entier(n));
  for (int i = 0; i < n * n; ++i) {
    const int ligne = couchees ? i / n : i % n, place = couchees ? i % n : i / n;
    const bool figure = ligne >= debut && ligne < debut + lignes;
    const bool ouverte = figure ? places.contains(place) : hasard.Pourcent(densite);
    Contenu c;
    if (!ouverte || hasard.UneFoisSur(40)) c.valeur = Symbole(hasard, usages);
    if (etranges && !ouverte && hasard.UneFoisSur(10)) c.valeur = TexteEtrange(hasard, usages);
    if (!c.valeur.empty() && hasard.Pourcent(etats)) c.etat = 1 + hasard.Entier(3);
    plateau.cases.push_back(c);
  }
}

// How one board is filled. Percentages are of cells, but `fautes`, `etrangers`: of the filled cells.
struct Recette {
  int remplies = 0, fautes = 0, entrees = 0, etrangers = 0;
  bool etatsRares = false;
};

Contenu CaseAuHasard(Hasard& hasard, const Recette& r, const Texte& symboles, int juste) {
  Contenu c;
  if (!hasard.Pourcent(r.remplies)) {
    const bool saisie = hasard.Pourcent(r.entrees);
    if (!saisie || hasard.UneFoisSur(3)) {
      c.etat = hasard.UneFoisSur(8) ? 1 : 0;
      if (r.etatsRares && hasard.UneFoisSur(6)) c.etat = 1 + hasard.Entier(9);
      return c;
    }
    c.etat = 1 + hasard.Entier(3);
    c.valeur = hasard.UneFoisSur(2) ? Texte(1, symboles[At(juste)]) : Symbole(hasard, symboles);
  } else {
    c.valeur = hasard.Pourcent(r.fautes) ? Symbole(hasard, symboles) : Texte(1, symboles[At(juste)]);
    if (hasard.Pourcent(r.entrees)) c.etat = hasard.Entier(4);
  }
  if (hasard.Pourcent(r.etrangers)) c.valeur = TexteEtrange(hasard, symboles);
  if (r.etatsRares && hasard.UneFoisSur(8)) c.etat = 4 + hasard.Entier(6);
  return c;
}

void Remplit(Hasard& hasard, const Recette& recette, Plateau& plateau) {
  for (const int juste : GrillePleine(hasard, static_cast<int>(plateau.symboles.size()))) {
    plateau.cases.push_back(CaseAuHasard(hasard, recette, plateau.symboles, juste));
  }
}

}  // namespace

std::vector<int> GrillePleine(Hasard& hasard, int n) {
  const int s = static_cast<int>(std::lround(std::sqrt(n)));
  std::vector<int> grille;
  for (int i = 0; i < n * n; ++i) grille.push_back((i / n % s * s + i / n / s + i % n) % n);
  for (int k = n > 1 ? std::min(4 * n, 64) : 0; k > 0; --k) Echange(hasard, n, s, grille);
  return grille;
}

Texte SymbolesAuHasard(Hasard& hasard, int n) {
  Texte symboles = Distincts(n);
  switch (hasard.Entier(10)) {
    case 0:  // letters that differ by case alone
      for (std::size_t i = 0; i < symboles.size(); ++i) {
        const auto lettre = static_cast<char32_t>(i / 2 % 26);
        symboles[i] = (i % 2 == 0 ? U'a' : U'A') + lettre;
      }
      if (hasard.UneFoisSur(2)) hasard.Melange(symboles);
      break;
    case 1:  // some symbols stand twice or more: "1123"
      for (int i = 0; i <= n / 4; ++i) symboles[At(hasard.Entier(n))] = symboles[At(hasard.Entier(n))];
      break;
    case 2: {  // strangers, and what means something elsewhere
      const Texte rares = U"-\".\\0 éÉŒœИиÿŸİi";
      for (const char32_t c : rares) symboles[At(hasard.Entier(n))] = c;
      break;
    }
    case 3:
      hasard.Melange(symboles);
      break;
    default:
      break;
  }
  return symboles;
}

Plateau PlateauAuHasard(Hasard& hasard, int n) {
  Plateau plateau;
  plateau.symboles = SymbolesAuHasard(hasard, n);
  plateau.mode = hasard.UneFoisSur(4) ? 1 : 2;
  if (hasard.UneFoisSur(2)) {
    Disperse(hasard, plateau);
    return plateau;
  }
  Recette r;
  const int genre = hasard.Entier(10);
  if (genre > 0) r.remplies = genre == 1 ? 92 + hasard.Entier(9) : 10 + hasard.Entier(60);
  if (hasard.UneFoisSur(4)) r.fautes = hasard.UneFoisSur(3) ? 100 : 1 + hasard.Entier(30);
  if (hasard.UneFoisSur(2)) r.entrees = 3 + hasard.Entier(50);
  if (hasard.UneFoisSur(4)) r.etrangers = 2 + hasard.Entier(40);
  r.etatsRares = hasard.UneFoisSur(10);
  Remplit(hasard, r, plateau);
  return plateau;
}

Plateau PlateauAResoudre(Hasard& hasard, int n) {
  Plateau plateau;
  plateau.symboles = hasard.UneFoisSur(5) ? SymbolesAuHasard(hasard, n) : Distincts(n);
  Recette recette;
  recette.remplies = 16 + hasard.Entier(30) + std::min(n, 25);
  if (hasard.UneFoisSur(4)) recette.fautes = 1 + hasard.Entier(10);
  if (hasard.UneFoisSur(4)) recette.entrees = 1 + hasard.Entier(20);
  Remplit(hasard, recette, plateau);
  return plateau;
}

Texte SaisieAuHasard(Hasard& hasard, TexteVue symboles, TexteVue possible) {
  const int n = static_cast<int>(possible.size());
  const int genre = hasard.Entier(10);
  if (genre == 0) return {};
  if (genre == 2) return TexteEtrange(hasard, symboles);
  if (genre == 3 && n > 1) return Texte(possible.substr(At(hasard.Entier(n - 1)), 2));
  return Symbole(hasard, genre == 1 || n == 0 ? symboles : possible);
}

}  // namespace sudoku::plain
