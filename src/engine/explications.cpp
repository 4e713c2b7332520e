#include "engine/explications.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace sudoku {
namespace {

using Genre = Argument::Genre;

constexpr TexteVue kDe[] = {U" de la colonne ", U" de la ligne ", U" du carré "};
constexpr TexteVue kDes[] = {U" des colonnes ", U" des lignes ", U" des carrés "};
constexpr TexteVue kUnites[] = {U"colonnes ", U"lignes ", U"carrés "};
constexpr TexteVue kCette[] = {U"cette colonne ", U"cette ligne ", U"ce carré "};
constexpr TexteVue kAutres[] = {U"colonnes que celles spécifiées", U"lignes que celles spécifiées",
                                U"carrés que ceux spécifiés"};
// Two blanks after "possible": the first belongs to the sentence, the second to the ending.
constexpr TexteVue kSeule[] = {U"Seule solution possible  en colonne", U"Seule solution possible  en ligne",
                               U"Seule solution possible  dans le carré"};

// Makes sentences of the facts of one grid.
class Redacteur {
 public:
  explicit Redacteur(const Bloc& bloc) : bloc_(bloc) {}

  Texte Phrase(const Fait& fait) const {
    const Argument& a = bloc_.journal.arguments[fait.argument];
    switch (a.genre) {
      case Genre::kSeule:
        return Texte(kSeule[a.type]);
      case Genre::kInference:
        return U"Le " + Symbole(a) + Unite(a) + U" se trouve dans les cases " + Cases(a, a.masques, 1);
      case Genre::kCachee:
        return Sequence(a) + U", ce qui exclut de cette case les éléments " +
               AvecTirets(Symboles(static_cast<std::uint32_t>(fait.exclus)));
      case Genre::kNue:
        return Sequence(a);
      case Genre::kFigure:
        break;
    }
    return Texte(U"Le ") + Symbole(a) + Texte(kDes[a.type]) + Numeros(a.masques) + U" se trouve dans les " +
           Texte(kUnites[a.type2]) + Numeros(MasqueB(a)) + U", ce qui exclut sa présence dans " +
           Texte(kCette[a.type2]) + U"dans d'autres " + Texte(kAutres[a.type]);
  }

 private:
  std::uint32_t MasqueB(const Argument& a) const {
    return a.masques + static_cast<std::uint32_t>(bloc_.mots);
  }
  Texte Symbole(const Argument& a) const { return bloc_.alphabet->TexteDe(a.symbole); }
  static Texte Unite(const Argument& a) { return Texte(kDe[a.type]) + Decimal(a.unite); }

  Texte Sequence(const Argument& a) const {
    const Texte symboles = a.genre == Genre::kNue && a.symbole != kVide ? Symbole(a) : Symboles(a.masques);
    return U"La séquence " + AvecTirets(symboles) + Unite(a) + U" se trouve dans les cases " +
           Cases(a, MasqueB(a), a.fois);
  }

  // Calls f with each number of the set of words that begins at `debut`.
  template <class F>
  void Chaque(std::uint32_t debut, F f) const {
    for (int n = 0; n < 64 * bloc_.mots; ++n) {
      if (((bloc_.journal.mots[debut + Rang(n / 64)] >> (n % 64)) & 1U) != 0) f(n);
    }
  }
  Texte Symboles(std::uint32_t debut) const {
    Texte texte;
    Chaque(debut, [&](int p) { texte += bloc_.alphabet->Symboles()[Rang(p)]; });
    return texte;
  }
  Texte Numeros(std::uint32_t debut) const {
    Texte texte;
    Chaque(debut, [&](int u) { Joint(texte, u + 1); });
    return texte;
  }
  Texte Cases(const Argument& a, std::uint32_t debut, int fois) const {
    Texte texte;
    for (int i = 0; i < fois; ++i) {
      Chaque(debut, [&](int place) { Joint(texte, bloc_.geometrie->Serie(a.type, a.unite)[Rang(place)]); });
    }
    return texte;
  }
  static void Joint(Texte& texte, int nombre) {
    if (!texte.empty()) texte += U", ";
    texte += Decimal(nombre);
  }

  const Bloc& bloc_;
};

// Adds the sentence of one more fact of a cell. False: nothing follows it.
bool AjoutePhrase(const Redacteur& redacteur, const Bloc& bloc, const Fait& fait,
                  std::vector<Texte>& phrases) {
  Texte phrase = redacteur.Phrase(fait);
  const auto tient = [&](const Texte& ancienne) { return Contient(ancienne, phrase); };
  if (std::ranges::none_of(phrases, tient)) phrases.push_back(std::move(phrase));
  return bloc.journal.arguments[fait.argument].genre != Genre::kSeule;
}

}  // namespace

std::vector<Texte> Phrases(const Grille& VpGrille, int cellule) {
  const Bloc& bloc = VpGrille.Donnees();
  const Redacteur redacteur(bloc);
  std::vector<Texte> phrases;
  for (const Fait& fait : bloc.journal.faits) {
    if (fait.cellule == cellule && !AjoutePhrase(redacteur, bloc, fait, phrases)) break;
  }
  return phrases;
}

Explicateur::Explicateur(const Grille& VpGrille)
    : bloc_(VpGrille.Donnees()), debuts_(Rang(VpGrille.Borne() + 2)), faits_(bloc_.journal.faits.size()) {
  for (const Fait& fait : bloc_.journal.faits) ++debuts_[Rang(fait.cellule)];
  // The ends of all; filling in from behind makes them the beginnings.
  std::partial_sum(debuts_.begin(), debuts_.end(), debuts_.begin());
  for (auto fait = bloc_.journal.faits.rbegin(); fait != bloc_.journal.faits.rend(); ++fait) {
    faits_[--debuts_[Rang(fait->cellule)]] = *fait;
  }
}

std::vector<Texte> Explicateur::Phrases(int cellule) const {
  const Redacteur redacteur(bloc_);
  std::vector<Texte> phrases;
  for (std::uint32_t i = debuts_[Rang(cellule)]; i < debuts_[Rang(cellule + 1)]; ++i) {
    if (!AjoutePhrase(redacteur, bloc_, faits_[i], phrases)) break;
  }
  return phrases;
}

void Nomme(const Grille& VpGrille, int cellule, std::vector<UniteNommee>& unites, std::vector<int>& cases) {
  const Bloc& bloc = VpGrille.Donnees();
  const auto chaque = [&bloc](std::uint32_t debut, auto f) {
    for (int n = 0; n < 64 * bloc.mots; ++n) {
      if (((bloc.journal.mots[debut + Rang(n / 64)] >> (n % 64)) & 1U) != 0) f(n);
    }
  };
  for (const Fait& fait : bloc.journal.faits) {
    if (fait.cellule != cellule) continue;
    const Argument& a = bloc.journal.arguments[fait.argument];
    const std::uint32_t masqueB = a.masques + static_cast<std::uint32_t>(bloc.mots);
    if (a.genre == Genre::kSeule) {
      unites.push_back({a.type, bloc.geometrie->Unite(a.type, cellule)});
      break;
    }
    if (a.genre == Genre::kFigure) {
      chaque(a.masques, [&](int u) { unites.push_back({a.type, u + 1}); });
      chaque(masqueB, [&](int u) { unites.push_back({a.type2, u + 1}); });
      continue;
    }
    unites.push_back({a.type, a.unite});
    chaque(a.genre == Genre::kInference ? a.masques : masqueB,
           [&](int place) { cases.push_back(bloc.geometrie->Serie(a.type, a.unite)[Rang(place)]); });
  }
}

Texte Explications(const Grille& VpGrille, int cellule) {
  Texte texte;
  for (const Texte& phrase : Phrases(VpGrille, cellule)) texte += phrase + U"\r\n";
  return texte;
}

}  // namespace sudoku
