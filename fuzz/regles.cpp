// A game on the engine and on the plain rules at once. The input: a byte for the symbols, one for the mode,
// one for the number of cells that are filled, two for each of them, then the steps. Whatever they are, no
// field, sentence, box or verdict differs.
#include <algorithm>

#include "cible.h"
#include "octets.h"
#include "plain/parties.h"

namespace sudoku::fuzz {
namespace {

using plain::Contenu;
using plain::Plateau;

// Side 4 mostly, for the plain rules are slow.
constexpr TexteVue kSymboles[] = {U"1234", U"aBcd", U"1234", U"aAbB", U"1123",      U"Σσς🙂",
                                  U"12-4", U"1111", U"1234", U"5",    U"123456789", U"aAbBcCdDe"};

// One symbol, several, or none that the grid has.
Texte Contenance(Octets& octets, TexteVue symboles) {
  const int n = static_cast<int>(symboles.size());
  const int genre = octets.Tire(n + 4);
  if (genre < n) return Texte(1, symboles[static_cast<std::size_t>(genre)]);
  if (genre == n) return {};
  if (genre == n + 1) return U"?";
  return Texte(symboles.substr(static_cast<std::size_t>(octets.Tire(n)), genre == n + 2 ? 2 : 3));
}

Plateau TirePlateau(Octets& octets) {
  constexpr int kEtats[] = {0, 0, 0, 0, 0, 0, 1, 2, 3, 2, 3, 4, 9};
  Plateau plateau;
  plateau.symboles = kSymboles[octets.Tire(static_cast<int>(std::size(kSymboles)))];
  plateau.mode = 1 + octets.Tire(2);
  const int cases = static_cast<int>(plateau.symboles.size() * plateau.symboles.size());
  plateau.cases.resize(static_cast<std::size_t>(cases));
  for (int n = octets.Tire(cases + 1); n > 0 && !octets.Epuise(); --n) {
    Contenu& c = plateau.cases[static_cast<std::size_t>(octets.Tire(cases))];
    c.valeur = Contenance(octets, plateau.symboles);
    c.etat = kEtats[octets.Tire(static_cast<int>(std::size(kEtats)))];
  }
  return plateau;
}

std::string Saisit(Octets& octets, plain::Paire& paire) {
  const plain::Jeu& jeu = paire.Simple();
  const int cellule = 1 + octets.Tire(jeu.VmTaille * jeu.VmTaille);
  const Texte& possible = jeu.VmGrille[static_cast<std::size_t>(cellule - 1)]->Possible;
  const bool permise = !possible.empty() && octets.Tire(3) != 0;
  return paire.Saisit(cellule, Contenance(octets, permise ? TexteVue(possible) : TexteVue(jeu.VmValeurs)));
}

// Suppositions where there are few levels of them.
std::string Resout(Octets& octets, plain::Paire& paire) {
  const auto vides =
      std::ranges::count_if(paire.Simple().VmGrille, [](const auto& c) { return c->ValeurSaisie.empty(); });
  const int choix = octets.Tire(16);
  return paire.Joue({.reset = choix % 2 == 0,
                     .guess = choix / 2 % 2 == 0 && vides <= 16,
                     .silence = choix / 4 % 2 == 1,
                     .contenus = choix / 8 == 1});
}

std::string Avance(Octets& octets, plain::Paire& paire) {
  const int etat = paire.Simple().VgEtat;
  const int choix = octets.Tire(8);
  if (choix == 0) {
    // With one pass an evaluation takes the mode as it is; only the entry of a grid and the game ask for
    // that.
    const bool une = etat == plain::kEntree || (etat == plain::kJeu && octets.Tire(8) == 7);
    return paire.Evalue(une ? 1 : 2);
  }
  if (choix == 1) return paire.Recopie();
  if (choix <= 3 && etat != plain::kEntree) return paire.Remplit();
  return choix == 4 ? Resout(octets, paire) : Saisit(octets, paire);
}

}  // namespace

void Joue(std::string_view octets) {
  constexpr int kPasMax = 12;
  Octets choix(octets);
  plain::Paire paire;
  std::string ecarts = paire.Charge(TirePlateau(choix));
  for (int pas = 0; pas < kPasMax && ecarts.empty() && !choix.Epuise() && !paire.Abandonnee(); ++pas) {
    ecarts = Avance(choix, paire);
  }
  if (!ecarts.empty()) Echoue(ecarts);
}

}  // namespace sudoku::fuzz
