#pragma once

#include <map>
#include <string>
#include <vector>

#include "plain/plain_engine.h"
#include "plain/random_boards.h"
#include "solver/auto_driver.h"

namespace sudoku::plain {

// How the automatic play of a step goes.
struct Auto {
  bool reset = false, guess = false, silence = false;
  bool contenus = false;  // by a driver that owes contents and Etat alone
};

// Puts a board into a game of the engine: a new grid for its symbols, evaluated; its cells loaded; its mode.
void Pose(const Plateau& plateau, GameState& jeu, Evaluateur& evaluateur);

// A game that is played on the engine and on the plain rules at once. The two sides live on from one grid to
// the next, as in the program.
class Paire : private PlateauAuto {
 public:
  Paire();

  // The steps. Each gives what differs after it, in words, behind it the steps since the grid; nothing if
  // nothing does.
  // A new grid for the board's symbols, evaluated; its cells loaded; its mode.
  std::string Charge(const Plateau& plateau);
  std::string Evalue(int passes);
  // `texte` typed into the cell, and the evaluation that the mode asks for.
  std::string Saisit(int index, TexteVue texte);
  // What the last evaluation found written into the cells, and an evaluation with two passes.
  std::string Remplit();
  // A copy of the grid evaluated with two passes, the grid itself left alone.
  std::string Recopie();
  // Automatic play, given up where it opens more than a few boxes.
  std::string Joue(const Auto& comment);

  const Jeu& Simple() const { return simple_; }
  // The last step was a run that both sides gave up: nothing but Charge can follow.
  bool Abandonnee() const { return abandonnee_; }
  // How many sentences of each kind were compared, and how many boxes of each text.
  const std::map<std::string, int>& Bilan() const { return bilan_; }

 private:
  void Affiche() override {}
  void Message(TexteVue texte) override { rapide_.Message(texte); }

  void Ouvre(std::vector<Texte>& boites, TexteVue texte, const Texte& grille) const;
  void Commence(const std::string& recit);
  std::string Finit(std::string ecarts = {});
  void EvalueLesDeux(int passes);
  std::string Compare();
  std::string Compare(const Grille& simple, const sudoku::Grille& rapide);
  std::string CompareContenus();
  std::string ComparePhrases(const ClsPos& simple, const sudoku::Grille& rapide);

  Jeu simple_;
  GameState rapide_;
  Evaluateur evaluateur_{rapide_};
  AutoDriver auto_{rapide_, evaluateur_, *this};
  AutoDriver autoContenus_{rapide_, evaluateur_, *this, Lecture::kContenus};
  // The boxes that the last step opened, each with the grid that stood on the board.
  std::vector<Texte> boitesSimple_, boitesRapide_;
  bool avecGrille_ = true;
  int verdictSimple_ = 0, verdictRapide_ = 0;
  bool abandonnee_ = false;
  std::string recit_;  // the steps since the grid
  std::map<std::string, int> bilan_;
};

}  // namespace sudoku::plain
