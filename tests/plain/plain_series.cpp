#include <algorithm>

#include "plain/plain_engine.h"

namespace sudoku::plain {
namespace {

std::vector<int> Indices(const Serie& cases) {
  std::vector<int> indices;
  for (const Case& c : cases) indices.push_back(c->Index);
  return indices;
}

Texte SequenceDans(TexteVue sequence, const Texte& unite, const Serie& cases) {
  return U"La séquence " + AvecTirets(sequence) + unite + U" se trouve dans les cases " +
         Virgules(Indices(cases));
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

bool Retire(ClsPos& c, char32_t symbole, TexteVue explication) {
  if (!Porte(c.Possible, symbole)) return false;
  c.Possible = Sans(c.Possible, {&symbole, 1});
  Explique(c, explication);
  return true;
}

void Explique(ClsPos& c, TexteVue texte) {
  if (Contient(c.Explications, U"seule") || Contient(c.Explications, texte)) return;
  c.Explications.append(texte).append(U"\r\n");
}

Serie Jeu::GetSerie(int type, int num, const Grille& grille) const {
  Serie serie;
  for (const int i : unites_[type][static_cast<std::size_t>(num)]) {
    serie.push_back(grille[static_cast<std::size_t>(i)]);
  }
  return serie;
}

Serie Jeu::GetLocations(const Serie& serie, char32_t symbole) const {
  Serie locs;
  for (const Case& c : serie) {
    if (Valeur(*c).empty() && Porte(c->Possible, symbole)) locs.push_back(c);
  }
  return locs;
}

bool Jeu::IsLocated(const Serie& serie, char32_t symbole) const {
  return std::ranges::any_of(serie, [&](const Case& c) { return Egal(Valeur(*c), {&symbole, 1}); });
}

// A hidden single keeps its candidates, and is no change. Locked candidates hand over to the other unit that
// holds all the places, if there is one.
bool Jeu::TestSerie(int type, int num, const Grille& grille) {
  static const Texte de[] = {U" de la colonne ", U" de la ligne ", U" du carré "};
  static const Texte dans[] = {U" en colonne", U" en ligne", U" dans le carré"};
  const Texte unite = de[type] + Decimal(num);
  const Serie serie = GetSerie(type, num, grille);
  bool resultat = false;
  std::vector<Serie> places(VmValeurs.size());
  for (const char32_t symbole : ResteAPlacer(serie)) {
    const Serie locs = GetLocations(serie, symbole);
    if (locs.empty()) continue;
    if (locs.size() == 1) {
      Trouve(*locs[0], {&symbole, 1});
      Explique(*locs[0], U"Seule solution possible " + dans[type]);
      continue;
    }
    for (const int autre : {kLigne, kColonne, kCarre}) {
      const int premiere = locs[0]->Unite[autre];
      const bool ensemble =
          std::ranges::all_of(locs, [&](const Case& c) { return c->Unite[autre] == premiere; });
      if (autre != type && ensemble) resultat |= Inference(autre, premiere, symbole, locs, grille, unite);
    }
    Serie& place = places[Cherche(VmValeurs, {&symbole, 1})];
    place.insert(place.end(), locs.begin(), locs.end());
  }
  resultat |= SequencesCachees(unite, places);
  resultat |= SequencesNues(unite, serie);
  return resultat;
}

Texte Jeu::ResteAPlacer(const Serie& serie) const {
  Texte reste = VmValeurs;
  for (const Case& c : serie) reste = Sans(Sans(reste, Valeur(*c)), c->SolutionSure);
  return reste;
}

bool Jeu::Inference(int type, int num, char32_t symbole, const Serie& locs, const Grille& grille,
                    const Texte& origine) const {
  const Texte phrase =
      U"Le " + Texte(1, symbole) + origine + U" se trouve dans les cases " + Virgules(Indices(locs));
  bool resultat = false;
  for (const Case& c : GetSerie(type, num, grille)) {
    if (std::ranges::count(locs, c) == 0) resultat |= Retire(*c, symbole, phrase);
  }
  return resultat;
}

// Hidden sets, judged on the places as they were before the first of them acted.
bool Jeu::SequencesCachees(const Texte& unite, const std::vector<Serie>& places) const {
  bool resultat = false;
  for (std::size_t i = 0; i < places.size(); ++i) {
    Texte sequence;
    for (std::size_t j = i; j < places.size(); ++j) {
      if (places[j] == places[i]) sequence += VmValeurs[j];
    }
    if (places[i].empty() || sequence.size() != places[i].size()) continue;
    const Texte phrase = SequenceDans(sequence, unite, places[i]);
    for (const Case& c : places[i]) {
      if (Egal(c->Possible, sequence)) continue;
      Texte exclus = c->Possible;
      for (const char32_t& symbole : sequence) exclus = Sans(exclus, {&symbole, 1});
      c->Possible = sequence;
      Explique(*c, phrase + U", ce qui exclut de cette case les éléments " + AvecTirets(exclus));
      resultat = true;
    }
  }
  return resultat;
}

// Naked sets; each step sees what the steps before it removed.
bool Jeu::SequencesNues(const Texte& unite, const Serie& serie) const {
  bool resultat = false;
  for (std::size_t i = 0; i < serie.size(); ++i) {
    const Texte sequence = serie[i]->Possible;
    Serie cases;
    for (std::size_t j = i; j < serie.size(); ++j) {
      if (Egal(serie[j]->Possible, sequence)) cases.push_back(serie[j]);
    }
    if (sequence.size() <= 1 || cases.size() != sequence.size()) continue;
    const Texte phrase = SequenceDans(sequence, unite, cases);
    for (const Case& c : serie) {
      if (Egal(c->Possible, sequence)) continue;
      for (const char32_t symbole : sequence) resultat |= Retire(*c, symbole, phrase);
    }
  }
  return resultat;
}

}  // namespace sudoku::plain
