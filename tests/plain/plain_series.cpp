#include <algorithm>
#include <set>

#include "plain/plain_engine.h"

namespace sudoku::plain {
namespace {

TexteVue Vue(const char32_t& symbole) {
  return {&symbole, 1};
}

// " du carré 5": the unit of type `type` in which cell `c` lies.
Texte DeUnite(int type, const ClsPos& c) {
  if (type == kCarre) return U" du carré " + Decimal(c.Carre);
  if (type == kLigne) return U" de la ligne " + Decimal(c.Ligne);
  return U" de la colonne " + Decimal(c.Colonne);
}

Texte Virgules(const std::vector<int>& nombres) {
  Texte texte;
  for (const int n : nombres) texte += (texte.empty() ? U"" : U", ") + Decimal(n);
  return texte;
}

Texte SequenceDans(TexteVue sequence, const Texte& unite, const std::vector<int>& cases) {
  return U"La séquence " + AvecTirets(sequence) + unite + U" se trouve dans les cases " + Virgules(cases);
}

}  // namespace

bool Porte(TexteVue texte, char32_t symbole) {
  static const std::vector<char32_t> minuscules = [] {
    std::vector<char32_t> table(0x10000);
    for (std::size_t c = 0; c < table.size(); ++c) table[c] = Minuscule(static_cast<char32_t>(c));
    return table;
  }();
  const auto bas = [](char32_t c) { return c < minuscules.size() ? minuscules[c] : Minuscule(c); };
  const char32_t cherche = bas(symbole);
  return std::ranges::any_of(texte, [&](char32_t c) { return bas(c) == cherche; });
}

void Retire(ClsPos& c, TexteVue valeur, bool& trouve, TexteVue explication) {
  if (!Contient(c.Possible, valeur)) return;
  c.Possible = Sans(c.Possible, valeur);
  trouve = true;
  if (!explication.empty()) Explique(c, explication);
}

void Explique(ClsPos& c, TexteVue texte) {
  if (texte.empty()) return;
  if (Contient(c.Explications, U"seule")) return;
  if (Contient(c.Explications, texte)) return;
  c.Explications += texte;
  c.Explications += U"\r\n";
}

std::vector<int> Nombres(const Tirets& liste) {
  std::vector<int> nombres;
  for (const char c : liste) {
    if (c == '-') {
      nombres.push_back(0);
    } else {
      nombres.back() = nombres.back() * 10 + (c - '0');
    }
  }
  return nombres;
}

Tirets GetCombi(const Tirets& liste) {
  std::vector<int> nombres = Nombres(liste);
  std::ranges::sort(nombres);
  Tirets resultat;
  int dernier = 0;
  for (const int n : nombres) {
    if (n != dernier) resultat += '-' + std::to_string(n);
    dernier = n;
  }
  return resultat;
}

void Jeu::GetSerie(int type, int num, Serie& serie, const Grille& grille) const {
  std::size_t position = 1;
  for (const int index : unites_[type][static_cast<std::size_t>(num)]) {
    serie[position++] = grille[static_cast<std::size_t>(index)];
  }
}

std::vector<Case> Jeu::GetLocations(const Serie& serie, char32_t symbole) const {
  std::vector<Case> locs;
  for (std::size_t i = 1; i < serie.size(); ++i) {
    if (Valeur(*serie[i]).empty() && Porte(serie[i]->Possible, symbole)) locs.push_back(serie[i]);
  }
  return locs;
}

bool Jeu::IsLocated(const Serie& serie, char32_t symbole) const {
  for (std::size_t i = 1; i < serie.size(); ++i) {
    if (Egal(Valeur(*serie[i]), Vue(symbole))) return true;
  }
  return false;
}

bool Jeu::TestSerie(const Serie& serie, int type, Grille& grille) {
  bool resultat = false;
  std::vector<Tirets> places(VmValeurs.size());
  for (const char32_t symbole : ResteAPlacer(serie)) {
    const std::vector<Case> locs = GetLocations(serie, symbole);
    if (locs.empty()) continue;
    if (locs.size() == 1) {
      SeuleCase(*locs[0], symbole, type);
      continue;
    }
    if (Confine(locs, symbole, type, grille)) resultat = true;
    Tirets& place = places[Cherche(VmValeurs, Vue(symbole))];
    for (const Case& c : locs) place += '-' + std::to_string(c->Index);
  }
  if (SequencesCachees(serie, type, places, grille)) resultat = true;
  if (SequencesNues(serie, type)) resultat = true;
  return resultat;
}

Texte Jeu::ResteAPlacer(const Serie& serie) const {
  Texte reste = VmValeurs;
  for (std::size_t i = 1; i < serie.size(); ++i) {
    reste = Sans(reste, Valeur(*serie[i]));
    reste = Sans(reste, serie[i]->SolutionSure);
  }
  return reste;
}

// Hidden single: its candidates stay, and it is no change.
void Jeu::SeuleCase(ClsPos& c, char32_t symbole, int type) const {
  (VgEtat == kEntree || VgEtat == kJeu ? c.SolutionSure : c.SolutionPoss) = symbole;
  const TexteVue fin = type == kCarre ? U" dans le carré" : type == kLigne ? U" en ligne" : U" en colonne";
  Explique(c, Texte(U"Seule solution possible ") += fin);
}

// Locked candidates: hands over to the other unit that holds all the places, if there is one.
bool Jeu::Confine(const std::vector<Case>& locs, char32_t symbole, int type, Grille& grille) const {
  bool ligne = true, colonne = true, carre = true;
  const ClsPos& c = *locs[0];
  for (const Case& autre : locs) {
    if (autre->Ligne != c.Ligne) ligne = false;
    if (autre->Colonne != c.Colonne) colonne = false;
    if (autre->Carre != c.Carre) carre = false;
  }
  const Texte origine = DeUnite(type, c);
  bool resultat = false;
  if (type != kLigne && ligne) resultat |= Inference(kLigne, c.Ligne, symbole, locs, grille, origine);
  if (type != kColonne && colonne) resultat |= Inference(kColonne, c.Colonne, symbole, locs, grille, origine);
  if (type != kCarre && carre) resultat |= Inference(kCarre, c.Carre, symbole, locs, grille, origine);
  return resultat;
}

bool Jeu::Inference(int type, int num, char32_t symbole, const std::vector<Case>& locs, Grille& grille,
                    const Texte& origine) const {
  Serie serie(static_cast<std::size_t>(VmTaille) + 1);
  GetSerie(type, num, serie, grille);
  std::vector<int> cases;
  for (const Case& c : locs) cases.push_back(c->Index);
  const Texte phrase = U"Le " + Texte(1, symbole) + origine + U" se trouve dans les cases " + Virgules(cases);
  const std::set<int> epargnees(cases.begin(), cases.end());
  bool resultat = false;
  for (std::size_t i = 1; i < serie.size(); ++i) {
    if (!epargnees.contains(serie[i]->Index)) Retire(*serie[i], Vue(symbole), resultat, phrase);
  }
  return resultat;
}

// Hidden sets, judged on the places as they were before the first of them acted.
bool Jeu::SequencesCachees(const Serie& serie, int type, const std::vector<Tirets>& places,
                           Grille& grille) const {
  bool resultat = false;
  for (std::size_t i = 0; i < places.size(); ++i) {
    if (places[i].empty()) continue;
    Texte sequence(1, VmValeurs[i]);
    for (std::size_t j = i + 1; j < places.size(); ++j) {
      if (places[j] == places[i]) sequence += VmValeurs[j];
    }
    const std::vector<int> cases = Nombres(places[i]);
    if (sequence.size() != cases.size()) continue;
    const Texte phrase = SequenceDans(sequence, DeUnite(type, *serie[1]), cases);
    for (const int index : cases) {
      ClsPos& c = *grille[static_cast<std::size_t>(index)];
      if (Egal(c.Possible, sequence)) continue;
      Texte exclus = c.Possible;
      for (const char32_t& symbole : sequence) exclus = Sans(exclus, Vue(symbole));
      c.Possible = sequence;
      Explique(c, phrase + U", ce qui exclut de cette case les éléments " + AvecTirets(exclus));
      resultat = true;
    }
  }
  return resultat;
}

// Naked sets; each step sees what the steps before it removed.
bool Jeu::SequencesNues(const Serie& serie, int type) const {
  bool resultat = false;
  for (std::size_t i = 1; i < serie.size(); ++i) {
    const Texte sequence = serie[i]->Possible;
    if (sequence.size() <= 1) continue;
    std::vector<int> cases{serie[i]->Index};
    for (std::size_t j = i + 1; j < serie.size(); ++j) {
      if (Egal(serie[j]->Possible, sequence)) cases.push_back(serie[j]->Index);
    }
    if (cases.size() != sequence.size()) continue;
    const Texte phrase = SequenceDans(sequence, DeUnite(type, *serie[1]), cases);
    for (std::size_t j = 1; j < serie.size(); ++j) {
      if (Egal(serie[j]->Possible, sequence)) continue;
      for (const char32_t& symbole : sequence) Retire(*serie[j], Vue(symbole), resultat, phrase);
    }
  }
  return resultat;
}

}  // namespace sudoku::plain
