#include "plain/random_boards.h"

#include <algorithm>
#include <cmath>

namespace sudoku::plain {
namespace {

std::size_t At(int i) {
  return static_cast<std::size_t>(i);
}

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

// Rows and columns shuffled within bands, bands shuffled.
std::vector<int> Ordre(Hasard& hasard, int s) {
  std::vector<int> bandes, ordre;
  for (int b = 0; b < s; ++b) bandes.push_back(b);
  hasard.Melange(bandes);
  for (const int b : bandes) {
    std::vector<int> lignes;
    for (int k = 0; k < s; ++k) lignes.push_back(b * s + k);
    hasard.Melange(lignes);
    ordre.insert(ordre.end(), lignes.begin(), lignes.end());
  }
  return ordre;
}

// A full grid without a symbol twice in a unit: each row is the one above, shifted; then shuffled.
std::vector<int> GrillePleine(Hasard& hasard, int n) {
  const int s = static_cast<int>(std::lround(std::sqrt(n)));
  std::vector<int> noms;
  for (int p = 0; p < n; ++p) noms.push_back(p);
  hasard.Melange(noms);
  std::vector<int> pleine;
  const std::vector<int> lignes = Ordre(hasard, s), colonnes = Ordre(hasard, s);
  for (const int r : lignes) {
    for (const int c : colonnes) pleine.push_back(noms[At((r % s * s + r / s + c) % n)]);
  }
  return pleine;
}

Texte Symbole(Hasard& hasard, TexteVue symboles) {
  return Texte(1, symboles[At(hasard.Entier(static_cast<int>(symboles.size())))]);
}

// Neighbours in `symboles`, several symbols at random, one written twice, one in the other case, a stranger.
Texte TexteEtrange(Hasard& hasard, TexteVue symboles) {
  const int n = static_cast<int>(symboles.size());
  switch (hasard.Entier(6)) {
    case 0:
    case 1:
      return Texte(symboles.substr(At(hasard.Entier(n)), At(2 + hasard.Entier(3))));
    case 2:
      return Symbole(hasard, symboles) + Symbole(hasard, symboles);
    case 3: {
      const Texte deux = Symbole(hasard, symboles);
      return deux + deux + (hasard.UneFoisSur(2) ? Symbole(hasard, symboles) : Texte());
    }
    case 4:
      return Texte(1, AutreCasse(Symbole(hasard, symboles)[0]));
    default:
      return hasard.UneFoisSur(2) ? U"ß" : Symbole(hasard, symboles) + U"?";
  }
}

// The places of unit u, seen as a row, a column or a block.
int CaseDe(int forme, int u, int place, int n, int s) {
  const int ligne = forme == 0 ? u : forme == 1 ? place : u / s * s + place / s;
  const int colonne = forme == 0 ? place : forme == 1 ? u : u % s * s + place % s;
  return ligne * n + colonne;
}

// Closes the cells that are the only open ones of a unit: a symbol would be settled there.
void FermeSeules(std::vector<bool>& ouvertes, int n, int s) {
  for (int tour = 0; tour < 3; ++tour) {
    for (int u = 0; u < 3 * n; ++u) {
      std::vector<int> seules;
      for (int p = 0; p < n; ++p) {
        const int i = CaseDe(u / n, u % n, p, n, s);
        if (ouvertes[At(i)]) seules.push_back(i);
      }
      if (seules.size() == 1) ouvertes[At(seules[0])] = false;
    }
  }
}

// Which cells stay open in a board that few deductions can enter: some at random, but k units of a kind,
// often neighbours, only in the same k places (blocks: in the same few lines), so that a figure of size k is
// there.
std::vector<bool> Motif(Hasard& hasard, int n) {
  const int s = static_cast<int>(std::lround(std::sqrt(n)));
  const int forme = hasard.Entier(3), densite = 15 + hasard.Entier(75);
  std::vector<bool> ouvertes;
  for (int i = 0; i < n * n; ++i) ouvertes.push_back(hasard.Pourcent(densite));
  for (int figures = hasard.Entier(3); figures > 0 && n > 1; --figures) {
    const int k = 2 + hasard.Entier(std::min(4, n - 1));
    const int debut = hasard.Entier(n), ecart = hasard.UneFoisSur(2) ? 1 : 1 + hasard.Entier(n - 1);
    std::vector<int> places;
    for (int m = 0; m < k; ++m)
      places.push_back(forme == 2 ? hasard.Entier(std::min(n, 2 * s)) : hasard.Entier(n));
    for (int m = 0; m < k; ++m) {
      const int u = (debut + m * ecart) % n;
      for (int p = 0; p < n; ++p) ouvertes[At(CaseDe(forme, u, p, n, s))] = false;
      for (const int p : places) {
        const int dans = forme == 2 ? p / s * s + hasard.Entier(s) : p;
        ouvertes[At(CaseDe(forme, u, dans, n, s))] = true;
      }
    }
  }
  if (!hasard.UneFoisSur(4)) FermeSeules(ouvertes, n, s);
  return ouvertes;
}

// Symbols that stand nowhere, two at least, are possible in every open cell: no cell and hardly a symbol is
// settled at once. The others are scattered over the closed cells.
std::vector<Contenu> RemplitMotif(Hasard& hasard, const Texte& symboles, int n) {
  Texte usages = symboles;
  hasard.Melange(usages);
  usages.resize(At(1 + hasard.Entier(hasard.UneFoisSur(2) ? std::min(n, 2) : std::max(1, n - 2))));
  const int etats = hasard.UneFoisSur(3) ? 1 + hasard.Entier(40) : 0;
  const bool etranges = hasard.UneFoisSur(8);
  std::vector<Contenu> cases;
  for (const bool ouverte : Motif(hasard, n)) {
    Contenu c;
    if (!ouverte || hasard.UneFoisSur(40)) c.valeur = Symbole(hasard, usages);
    if (etranges && !ouverte && hasard.UneFoisSur(10)) c.valeur = TexteEtrange(hasard, usages);
    if (!c.valeur.empty() && hasard.Pourcent(etats)) c.etat = 1 + hasard.Entier(3);
    cases.push_back(c);
  }
  return cases;
}

// How one board is filled. Percentages are of cells, but `fautes`, `etrangers`: of the filled cells.
struct Recette {
  int remplies = 0, fautes = 0, entrees = 0, etrangers = 0;
  bool etatsRares = false;
};

Recette RecetteAuHasard(Hasard& hasard) {
  Recette r;
  switch (hasard.Entier(10)) {
    case 0:
      break;
    case 1:
      r.remplies = 92 + hasard.Entier(9);
      break;
    default:
      r.remplies = 10 + hasard.Entier(60);
  }
  if (hasard.UneFoisSur(4)) r.fautes = hasard.UneFoisSur(3) ? 100 : 1 + hasard.Entier(30);
  if (hasard.UneFoisSur(2)) r.entrees = 3 + hasard.Entier(50);
  if (hasard.UneFoisSur(4)) r.etrangers = 2 + hasard.Entier(40);
  r.etatsRares = hasard.UneFoisSur(10);
  return r;
}

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
    plateau.cases = RemplitMotif(hasard, plateau.symboles, n);
    return plateau;
  }
  Remplit(hasard, RecetteAuHasard(hasard), plateau);
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
  switch (hasard.Entier(10)) {
    case 0:
      return {};
    case 1:
      return Symbole(hasard, symboles);
    case 2:
      return TexteEtrange(hasard, symboles);
    case 3:
      if (n > 1) return Texte(possible.substr(At(hasard.Entier(n - 1)), 2));
      [[fallthrough]];
    default:
      return Symbole(hasard, n > 0 ? possible : symboles);
  }
}

std::string Decrit(const Plateau& plateau) {
  std::string texte =
      "symbols " + VersUtf8(plateau.symboles) + ", mode " + std::to_string(plateau.mode) + ":";
  for (std::size_t i = 0; i < plateau.cases.size(); ++i) {
    const Contenu& c = plateau.cases[i];
    if (c == Contenu{}) continue;
    texte += " " + std::to_string(i + 1) + "=\"" + VersUtf8(c.valeur) + "\"/" + std::to_string(c.etat);
  }
  return texte;
}

}  // namespace sudoku::plain
