#include <map>
#include <tuple>

#include "plain/plain_engine.h"

namespace sudoku::plain {
namespace {

// Records of one figure have the same symbol, types and units.
using Cle = std::tuple<char32_t, int, int, std::set<int>>;

Cle CleDe(const NxNEmpreinte& e) {
  return {Minuscule(e.Symbole), e.T2, e.T1, e.Unites};
}

Texte Phrase(const std::vector<const NxNEmpreinte*>& groupe) {
  static const Texte pluriel[] = {U"colonnes", U"lignes", U"carrés"};
  static const Texte cette[] = {U"cette colonne", U"cette ligne", U"ce carré"};
  const NxNEmpreinte& e = *groupe[0];
  std::vector<int> unites;
  for (const NxNEmpreinte* une : groupe) unites.push_back(une->Unite);
  return U"Le " + Texte(1, e.Symbole) + U" des " + pluriel[e.T1] + U" " + Virgules(unites) +
         U" se trouve dans les " + pluriel[e.T2] + U" " + Virgules(e.Unites) +
         U", ce qui exclut sa présence dans " + cette[e.T2] + U" dans d'autres " + pluriel[e.T1] +
         (e.T1 == kCarre ? U" que ceux spécifiés" : U" que celles spécifiées");
}

}  // namespace

bool Jeu::NxN(const Grille& grille) {
  const std::vector<NxNEmpreinte> empreintes = Empreintes(grille);
  std::map<Cle, std::vector<const NxNEmpreinte*>> parCle;
  for (const NxNEmpreinte& e : empreintes) parCle[CleDe(e)].push_back(&e);
  bool resultat = false;
  for (const NxNEmpreinte& e : empreintes) {
    // The records before this one have left the list of its key: what remains begins here.
    std::vector<const NxNEmpreinte*>& groupe = parCle[CleDe(e)];
    if (groupe.size() >= 2 && groupe.size() == e.Cases.size() && Figure(groupe, grille)) resultat = true;
    groupe.erase(groupe.begin());
  }
  return resultat;
}

std::vector<NxNEmpreinte> Jeu::Empreintes(const Grille& grille) const {
  std::vector<NxNEmpreinte> empreintes;
  std::set<std::pair<Cle, std::set<int>>> connues;
  for (const int t1 : {kColonne, kLigne, kCarre}) {
    for (int u = 1; u <= VmTaille; ++u) {
      const Serie serie = GetSerie(t1, u, grille);
      for (const char32_t symbole : VmValeurs) {
        if (IsLocated(serie, symbole)) continue;
        const Serie locs = GetLocations(serie, symbole);
        const int n = static_cast<int>(locs.size());
        for (const int t2 : {kColonne, kLigne, kCarre}) {
          if (t2 == t1 || (t2 == kCarre ? n * n : n) >= VmTaille) continue;
          NxNEmpreinte e{u, symbole, t2, t1, {}, {}};
          for (const Case& c : locs) {
            e.Unites.insert(c->Unite[t2]);
            e.Cases.insert(c->Index);
          }
          if (connues.insert({CleDe(e), e.Cases}).second) empreintes.push_back(e);
        }
      }
    }
  }
  return empreintes;
}

bool Jeu::Figure(const std::vector<const NxNEmpreinte*>& groupe, const Grille& grille) const {
  const NxNEmpreinte& premiere = *groupe[0];
  const Texte phrase = Phrase(groupe);
  std::set<int> dansFigure;
  for (const NxNEmpreinte* e : groupe) dansFigure.insert(e->Cases.begin(), e->Cases.end());
  bool resultat = false;
  for (const Case& c : grille) {
    const bool visee = Valeur(*c).empty() && premiere.Unites.contains(c->Unite[premiere.T2]);
    if (visee && !dansFigure.contains(c->Index)) resultat |= Retire(*c, premiere.Symbole, phrase);
  }
  return resultat;
}

}  // namespace sudoku::plain
