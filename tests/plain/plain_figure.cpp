#include <set>
#include <unordered_map>
#include <unordered_set>

#include "plain/plain_engine.h"

namespace sudoku::plain {
namespace {

int Numero(int type, const ClsPos& c) {
  return type == kColonne ? c.Colonne : type == kLigne ? c.Ligne : c.Carre;
}

// The record's key as one string: equal for records of the same symbol, types and units. The symbol comes as
// a number, so that "-" is one like the others.
std::string Cle(const NxNEmpreinte& e) {
  return std::to_string(static_cast<std::uint32_t>(Minuscule(e.Symbole))) + ' ' + std::to_string(e.T2) + ' ' +
         std::to_string(e.T1) + e.Unites;
}

Texte Phrase(const std::vector<const NxNEmpreinte*>& groupe) {
  static const TexteVue a[] = {U" des colonnes ", U" des lignes ", U" des carrés "};
  static const TexteVue b[] = {U"colonnes ", U"lignes ", U"carrés "};
  static const TexteVue c[] = {U"cette colonne ", U"cette ligne ", U"ce carré "};
  static const TexteVue d[] = {U"colonnes que celles spécifiées", U"lignes que celles spécifiées",
                               U"carrés que ceux spécifiés"};
  const NxNEmpreinte& premiere = *groupe[0];
  Texte unites, cles;
  for (const NxNEmpreinte* e : groupe) unites += (unites.empty() ? U"" : U", ") + Decimal(e->Unite);
  for (const int n : Nombres(premiere.Unites)) cles += (cles.empty() ? U"" : U", ") + Decimal(n);
  Texte phrase = U"Le " + Texte(1, premiere.Symbole);
  phrase.append(a[premiere.T1]).append(unites).append(U" se trouve dans les ").append(b[premiere.T2]);
  phrase.append(cles).append(U", ce qui exclut sa présence dans ").append(c[premiere.T2]);
  return phrase.append(U"dans d'autres ").append(d[premiere.T1]);
}

}  // namespace

bool Jeu::NxN(const Grille& grille) {
  const std::vector<NxNEmpreinte> empreintes = Empreintes(grille);
  std::unordered_map<std::string, std::vector<const NxNEmpreinte*>> parCle;
  for (const NxNEmpreinte& e : empreintes) parCle[Cle(e)].push_back(&e);
  bool resultat = false;
  for (const NxNEmpreinte& e : empreintes) {
    // The records before this one have left the list of its key: what remains begins here.
    std::vector<const NxNEmpreinte*>& groupe = parCle[Cle(e)];
    if (groupe.size() >= 2 && groupe.size() == Nombres(e.Cases).size() && Figure(groupe, grille))
      resultat = true;
    groupe.erase(groupe.begin());
  }
  return resultat;
}

std::vector<NxNEmpreinte> Jeu::Empreintes(const Grille& grille) const {
  std::vector<NxNEmpreinte> empreintes;
  std::unordered_set<std::string> connues;
  Serie serie(static_cast<std::size_t>(VmTaille) + 1);
  for (const int t1 : {kColonne, kLigne, kCarre}) {
    for (int u = 1; u <= VmTaille; ++u) {
      GetSerie(t1, u, serie, grille);
      for (const char32_t symbole : VmValeurs) {
        if (IsLocated(serie, symbole)) continue;
        const std::vector<Case> locs = GetLocations(serie, symbole);
        const int n = static_cast<int>(locs.size());
        for (const int t2 : {kColonne, kLigne, kCarre}) {
          if (t2 == t1) continue;
          if (t2 == kCarre ? n * n >= VmTaille : n >= VmTaille) continue;
          NxNEmpreinte e{u, symbole, t2, t1, {}, {}};
          for (const Case& c : locs) {
            e.Unites += '-' + std::to_string(Numero(t2, *c));
            e.Cases += '-' + std::to_string(c->Index);
          }
          e.Unites = GetCombi(e.Unites);
          e.Cases = GetCombi(e.Cases);
          if (connues.insert(Cle(e) + '/' + e.Cases).second) empreintes.push_back(std::move(e));
        }
      }
    }
  }
  return empreintes;
}

bool Jeu::Figure(const std::vector<const NxNEmpreinte*>& groupe, const Grille& grille) const {
  const NxNEmpreinte& premiere = *groupe[0];
  const Texte phrase = Phrase(groupe);
  const std::vector<int> unites = Nombres(premiere.Unites);
  const std::set<int> dansCle(unites.begin(), unites.end());
  std::unordered_set<int> dansFigure;
  for (const NxNEmpreinte* e : groupe) {
    for (const int index : Nombres(e->Cases)) dansFigure.insert(index);
  }
  bool resultat = false;
  for (std::size_t p = 1; p < grille.size(); ++p) {
    ClsPos& c = *grille[p];
    if (!Valeur(c).empty() || !dansCle.contains(Numero(premiere.T2, c)) || dansFigure.contains(c.Index))
      continue;
    Retire(c, {&premiere.Symbole, 1}, resultat, phrase);
  }
  return resultat;
}

}  // namespace sudoku::plain
