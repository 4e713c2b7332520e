#pragma once

#include <map>
#include <string>
#include <vector>

#include "plain/plain_engine.h"
#include "plain/random_boards.h"
#include "solver/auto_driver.h"

namespace sudoku::plain {

// One step of a game that is played on the engine and on the plain rules at once.
struct Action {
  enum class Genre {
    kCharge,   // a new grid for the board's symbols, evaluated; its cells loaded; its mode
    kEvalue,   // an evaluation with `nombre` passes
    kSaisit,   // `texte` typed into cell `nombre`, and the evaluation that the mode asks for
    kRemplit,  // what the last evaluation found written into the cells, and an evaluation with two passes
    kRecopie,  // a copy of the grid evaluated with two passes, the grid itself left alone
    kJoue      // automatic play, given up where it opens more than a few boxes
  };
  Genre genre;
  int nombre = 0;
  Texte texte = {};
  bool reset = false, guess = false, silence = false;  // kJoue
  bool contenus = false;                               // kJoue, by a driver that owes contents and Etat alone
  Plateau plateau = {};                                // kCharge
};

// Puts a board into a game of the engine: a new grid for its symbols, evaluated; its cells loaded; its mode.
void Pose(const Plateau& plateau, GameState& jeu, Evaluateur& evaluateur);

// The two sides. They live on from one grid to the next, as in the program.
class Paire : private PlateauAuto {
 public:
  Paire();
  // Carries the step out on both. What differs then, in words; nothing if nothing.
  std::string Fait(const Action& action);

  const Jeu& Simple() const { return simple_; }
  // The last step was a run that both sides gave up: nothing but kCharge can follow.
  bool Abandonnee() const { return abandonnee_; }
  // How many sentences of each kind were compared, and how many boxes of each text.
  const std::map<std::string, int>& Bilan() const { return bilan_; }

 private:
  void Affiche() override {}
  void Message(TexteVue texte) override { rapide_.Message(texte); }

  void Ouvre(std::vector<Texte>& boites, TexteVue texte, const Texte& grille) const;
  void Charge(const Plateau& plateau);
  void Saisit(int index, TexteVue texte);
  void Remplit();
  std::string Recopie();
  std::string Joue(const Action& action);
  void Evalue(int passes);
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
  std::map<std::string, int> bilan_;
};

}  // namespace sudoku::plain
