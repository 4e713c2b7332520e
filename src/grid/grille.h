#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "grid/alphabet.h"
#include "grid/cls_pos.h"
#include "grid/faits.h"
#include "grid/geometrie.h"

namespace sudoku {

struct GameState;

// The cells of one grid, a field an array, index = cell number, element 0 unused. Candidates are bits: bit p
// of a cell's words stands for position p of VmValeurs.
struct Bloc {
  GameState* jeu = nullptr;
  std::shared_ptr<const Geometrie> geometrie;
  std::shared_ptr<Alphabet> alphabet;
  int mots = 1;  // 64-bit words a cell: 1, 2 or 4, which vector registers hold

  std::vector<std::int32_t> etat;
  std::vector<Code> saisie;
  std::vector<Code> sure;
  std::vector<Code> poss;
  // Candidates: the text `possibleTexte` where that isn't kVide (a cell whose content counted, and whose
  // Possible is therefore what was typed), the bits otherwise.
  std::vector<Code> possibleTexte;
  std::vector<std::uint64_t> candidats;
  Journal journal;

  bool Candidat(int cellule, int position) const {
    const auto mot = candidats[static_cast<std::size_t>(cellule * mots + position / 64)];
    return ((mot >> (position % 64)) & 1U) != 0;
  }
  // Possible is empty.
  bool SansCandidat(int cellule) const;
  // What the cell holds counts for the engine in the mode of the game.
  bool Compte(int cellule) const;
  // `code` stands in Possible as a piece of text, ignoring case.
  bool Permet(int cellule, Code code) const;
};

// A grid: a handle to one block of cells. Assigning it makes both see the same cells; GrilleCopy alone makes
// new ones.
class Grille {
 public:
  Grille() = default;

  // An empty grid for the symbols `VmValeurs`, whose number TailleAcceptable allows. Nothing is evaluated.
  static Grille Nouvelle(GameState& jeu, TexteVue VmValeurs);

  // N*N; 0 for a grid that has no cells.
  int Borne() const { return bloc_ ? bloc_->geometrie->Cases() : 0; }
  int N() const { return bloc_ ? bloc_->geometrie->N() : 0; }
  // The symbols it was made for; empty for a grid that has no cells.
  Texte Symboles() const { return bloc_ ? bloc_->alphabet->Symboles() : Texte(); }
  // Cell i, from 1 to Borne().
  ClsPos operator()(int i) const { return ClsPos(bloc_.get(), i); }
  // The two see the same cells.
  bool MemesCases(const Grille& autre) const { return bloc_ == autre.bloc_; }

  Bloc& Donnees() const { return *bloc_; }

  friend void GrilleCopy(const Grille& VpSource, Grille& VpDest);

 private:
  std::shared_ptr<Bloc> bloc_;
};

// Makes VpDest a grid of its own with the contents of VpSource, field by field. Cells that another Grille
// still sees through VpDest's old handle stay as they were.
void GrilleCopy(const Grille& VpSource, Grille& VpDest);

// A symbol stands twice in some unit, as the cells hold them, whatever their Etat.
bool SymboleEnDouble(const Grille& VpGrille);

// What GrilleCheck did to entries within one outermost evaluation.
struct Revisions {
  std::vector<std::int16_t>
      levees;       // lifts of wrong entries to possible ones, a cell a count; empty: none yet
  int cellule = 0;  // whose Etat changed last
};

// What GrilleCheck makes of one cell.
enum class Visite {
  kSansCandidat,
  kARemplir,  // empty, or judged wrong
  kPleine,    // a given, a proved or a possible entry
  kChange     // its Etat is another now
};

// Judges the entry of a cell of an evaluated grid anew. A cell found at 3 and left at 2 is noted as lifted;
// after N of those it stays at 3, which ends the evaluation of entries of several symbols that would go to
// and fro for ever.
Visite VisiteCase(Bloc& bloc, int cellule, Revisions& revisions);

// The verdict on an evaluated grid: -1 where a cell has no candidate, otherwise the number of cells that are
// empty or judged wrong. It visits cell by cell; kReevaluer at the first change of an Etat: what the
// deductions rested on has moved, and the caller has to evaluate with two passes again.
inline constexpr std::int32_t kReevaluer = -2;
std::int32_t GrilleCheck(Grille& VpGrille, Revisions& revisions);

}  // namespace sudoku
