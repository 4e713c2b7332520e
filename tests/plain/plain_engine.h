#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <vector>

#include "text/texte.h"

// The rules of the deductions and of the solver once more, on strings and one step after the other, as a
// person would carry them out with pencil and rubber: the measure that the engine's bit sets and short cuts
// are held against. Nothing here is shared with the engine but the type of text. Slow on purpose; the only
// liberties taken are tables for what a plain search of the whole grid would find again and again.
namespace sudoku::plain {

// What Etat and VgEtat may be, where a rule asks for it.
inline constexpr int kDonnee = 0, kSure = 1, kEssai = 2, kFausse = 3;
inline constexpr int kEntree = 1, kJeu = 2, kSecondePasse = 3, kFini = 4;
inline constexpr int kColonne = 0, kLigne = 1, kCarre = 2;

struct ClsPos {
  int Index = 0, Etat = 0;
  int Unite[3] = {};  // the numbers of its column, row and block, by type
  Texte ValeurSaisie, Possible, SolutionSure, SolutionPoss, Explications;

  void Load(TexteVue valeur, int etat) {
    ValeurSaisie = valeur;
    Etat = etat;
  }
};

using Case = std::shared_ptr<ClsPos>;
using Serie = std::vector<Case>;   // a unit, or some of its cells
using Grille = std::vector<Case>;  // all cells: cell i at position i - 1

// Where symbol Symbole can go in unit Unite of type T1, seen through the units of type T2.
struct NxNEmpreinte {
  int Unite = 0;
  char32_t Symbole = 0;
  int T2 = 0, T1 = 0;
  std::set<int> Unites, Cases;
};

struct TSupposition {
  int Index = 0;
  Texte Essais, Valeur, Possible;
};
using Pile = std::vector<TSupposition>;

// One game with all that the rules read and write.
class Jeu {
 public:
  int VgEtat = 0;
  bool VgSilence = false;
  int VmTaille = 0;
  Texte VmValeurs;
  Grille VmGrille, VmGrilleEtat;
  bool VsResolu = false;
  // Every box that opens.
  std::function<void(TexteVue)> Message = [](TexteVue) {};

  // A new grid in mode 1, evaluated once.
  void JeuVierge(TexteVue valeurs);

  TexteVue Valeur(const ClsPos& c) const;
  void DonneValeur(ClsPos& c, TexteVue valeur);

  Grille GrilleCopy(const Grille& source) const;
  int Evaluation(const Grille& grille, int passes, bool suite = false);
  int JeuSolve(const Grille& grille);
  void JeuAuto(bool reset, bool guess);

 private:
  int NbARemplir(const Grille& grille) const;
  // The verdict; nothing when a judgement changed and the grid is to be evaluated again.
  std::optional<int> GrilleCheck(const Grille& grille, std::vector<int>& releves);
  int Juge(ClsPos& c, bool relevable) const;

  void Passes(const Grille& grille, int passes, bool suite);
  bool ParcoursCases(const Grille& grille, bool suite);
  bool ParcoursSeries(const Grille& grille);
  Texte ListePossibles(const ClsPos& c, const Grille& grille) const;
  // Writes the symbol found for a cell where the mode has it.
  void Trouve(ClsPos& c, TexteVue symbole) const;

  Serie GetSerie(int type, int num, const Grille& grille) const;
  Serie GetLocations(const Serie& serie, char32_t symbole) const;
  bool IsLocated(const Serie& serie, char32_t symbole) const;

  bool TestSerie(int type, int num, const Grille& grille);
  Texte ResteAPlacer(const Serie& serie) const;
  bool Inference(int type, int num, char32_t symbole, const Serie& locs, const Grille& grille,
                 const Texte& origine) const;
  bool SequencesCachees(const Texte& unite, const std::vector<Serie>& places) const;
  bool SequencesNues(const Texte& unite, const Serie& serie) const;

  bool NxN(const Grille& grille);
  std::vector<NxNEmpreinte> Empreintes(const Grille& grille) const;
  bool Figure(const std::vector<const NxNEmpreinte*>& groupe, const Grille& grille) const;

  bool GuessResult(int resultat, Pile& supp);
  bool Guess(Grille& grille, const Grille& base, Pile& supp);
  void CorrigeFausses(const Grille& grille, const Grille& base);
  bool Recherche(Grille& travail, bool guess, Pile& supp, int& verdict);
  Texte MessageFinal(int verdict, const Pile& supp) const;
  bool UniteBrisee(const Grille& grille) const;

  std::vector<std::vector<int>> unites_[3];  // by type and number: the positions in a grid, ascending
};

// Contient for one symbol: most of the time goes there, so the lower case comes from a table.
bool Porte(TexteVue texte, char32_t symbole);

// Takes `symbole` out of the candidates of `c`, ignoring case; True if it was there, and then it is
// explained.
bool Retire(ClsPos& c, char32_t symbole, TexteVue explication);
void Explique(ClsPos& c, TexteVue texte);

// "3, 7, 12".
template <class Nombres>
Texte Virgules(const Nombres& nombres) {
  Texte texte;
  for (const int n : nombres) texte += (texte.empty() ? U"" : U", ") + Decimal(n);
  return texte;
}

}  // namespace sudoku::plain
