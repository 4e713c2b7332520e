#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

#include "engine/compteur_masques.h"
#include "engine/masque.h"
#include "grid/game_state.h"

namespace sudoku::SUDOKU_MOTEUR {

// The working state of the engine over one grid: candidates a cell (in the grid's own block), and the same
// turned round, places a symbol in each unit, kept in step. A symbol stands here for all positions of
// VmValeurs equal to it and is named by the first of them.
//
// A cell is "open" when its content doesn't count (it is empty, or the mode hides it). Only open cells have
// candidates and places; the Possible of the others is their content, in Bloc::possibleTexte. Contents of
// several symbols that count (`longs`) are the rare case that is done with texts.
template <int W>
struct Tableau {
  using M = Masque<W>;

  GameState* jeu = nullptr;
  Bloc* bloc = nullptr;
  const Geometrie* geo = nullptr;  // of the grid; held, so that a new grid is told from the last one
  const Alphabet* alphabet = nullptr;
  std::shared_ptr<const Geometrie> geometrieTenue;
  std::shared_ptr<const Alphabet> alphabetTenu;
  int cases = 0;

  int N() const { return geo->N(); }
  int S() const { return geo->S(); }

  M plein;                // all positions
  M premieres;            // first of equal positions
  std::vector<M> classe;  // a position: all that equal it
  bool doublons = false;  // some symbol stands twice
  std::vector<M> groupe;  // S places in a row of a block, of a line: places kS to kS+S-1
  std::vector<M> residu;  // S places in a column of a block: places congruent to k modulo S

  M* candidats = nullptr;      // by cell
  std::vector<char> ouverte;   // by cell
  std::vector<M> valeurs[3];   // by type and unit - 1: symbols that count there, all equal positions
  std::vector<M> ouvertes[3];  // by type and unit - 1: places of open cells
  std::vector<M> sures[3];     // by type and unit - 1: places with a SolutionSure that isn't the content
  std::vector<M> places[3];    // by type, (unit - 1) * N + symbol
  std::vector<std::uint8_t> comptes;     // by cell: how many candidates
  std::vector<std::uint8_t> nombres[3];  // by type, symbol * N + unit - 1: how many places
  std::vector<char> sale[3];      // by type and unit - 1: some field of a cell changed since its last run
  std::vector<char> saleSymbole;  // its places changed since the last search for figures
  bool longs = false;
  bool versSure = true;   // solutions go to SolutionSure (modes 1 and 2), else to SolutionPoss
  bool aRemplir = false;  // some empty cell has a solution

  CompteurMasques<W> compteur;

  // Makes the tables for the grid's alphabet and size, unless they are made already.
  void Adopte(GameState& jeuDeLaGrille, Grille& grille);

  M& Places(int type, int unite, int symbole) { return places[type][At((unite - 1) * N() + symbole)]; }
  // How many places a symbol has in each unit of a kind.
  const std::uint8_t* Nombres(int type, int symbole) const { return &nombres[type][At(symbole * N())]; }

  // Step 2 of a pass: candidates from nothing but the contents. True if some cell has Etat 2. AmorceSuite
  // does it for a second pass that follows the first.
  bool Amorce();
  void AmorceSuite();
  // Cells with one candidate get it as a solution.
  void Releve();
  // Turns the candidates round into places; everything is to be looked at.
  void Retourne();

  // Writes a solution of the present kind.
  void PoseSolution(int cellule, Code code);
  // Takes the symbol out of an open cell that has it.
  void Enleve(int cellule, int symbole);
  // Possible of an open cell becomes `sequence`.
  void Remplace(int cellule, const M& sequence);
  // Takes the symbol out of the text of a cell that isn't open. True if something went.
  bool EnleveDuTexte(int cellule, TexteVue symbole);
  void ToutSale();
  void Salit(int cellule);

  // Text of a set of positions, in the order of VmValeurs.
  Texte TexteDe(const M& positions) const;

  // Journal. The numbers returned go into Fait::argument.
  std::uint32_t Note(Argument argument);
  std::uint32_t Note(Argument argument, const M& a);
  std::uint32_t Note(Argument argument, const M& a, const M& b);
  void NoteFait(int cellule, std::uint32_t argument);
  void NoteFait(int cellule, std::uint32_t argument, const M& exclus);

 private:
  // Calls f(cell, its units' numbers - 1 by kind, its places there by kind) for every cell.
  template <class F>
  void ChaqueCase(F f) const;
  bool PoseContenus();
  void Compte(Code code, const int (&unites)[3]);
  void NoteSures();
  void PlacesDesContenus();
  void PlacesDansLaBande(int g, int s);
  void PlacesDansLesPiles(int s);
  void PlacesDesCandidats();
  void CompteLesPlaces();
  void ChangePlaces(int cellule, int symbole, bool la);
  M Etend(const std::vector<M>& parties, const M& unites, int premiere, int pas) const;
  void ListePossibles();
  M ListeAvecTextes(int cellule) const;
  M RetireTous(M liste, int type, int unite, int cellule) const;
  std::uint32_t Mots(const M& m);

  std::vector<std::array<M, 3>> unites_;  // by symbol and type: the units that have it, their numbers - 1
};

// `positions` without the occurrences of `texte`, as deleting it from their string would do.
template <int W>
Masque<W> SansTexte(const Alphabet& alphabet, Masque<W> positions, TexteVue texte);

}  // namespace sudoku::SUDOKU_MOTEUR
