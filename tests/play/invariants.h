#pragma once

#include <cstdint>
#include <string>

#include "shell/programme.h"

namespace sudoku {

// What holds of a running game whenever no box is open: the mode is a lasting one, no empty cell is judged,
// and the board shows what the records hold.
class Invariants {
 public:
  // etatsDuJeu: every Etat comes from a game; a file may hold any.
  explicit Invariants(Programme& programme, bool etatsDuJeu = true)
      : programme_(programme), etatsDuJeu_(etatsDuJeu) {}
  // The first that is broken, in words; empty if none is. To be called after every command, as a board that
  // is new and not yet painted owes nothing.
  std::string Rompu();

 private:
  std::string EtatRompu() const;
  std::string BoiteRompue(const Grille& grille, int i) const;
  const GameState& Jeu() const { return programme_.Jeu(); }
  const Plateau& LePlateau() const { return programme_.Principale().plateau; }

  Programme& programme_;
  bool etatsDuJeu_;
  std::uint32_t construction_ = 0;
  std::uint32_t redessin_ = 0;
  bool neuf_ = false;
};

}  // namespace sudoku
