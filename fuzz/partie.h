#pragma once

#include <functional>
#include <sstream>
#include <string>

#include "fichiers_memoire.h"
#include "octets.h"
#include "play/invariants.h"
#include "scenario/session.h"

namespace sudoku::fuzz {

// A game on a disk in memory, played by the commands of a session that the bytes of an input choose: all
// commands, on what is there most of the time, so that hardly a byte is wasted. What must hold between two
// commands is looked at before each. A run of the solver that might go on for long is not begun, or cut short
// where it opens too many boxes.
class Partie : private std::streambuf {
 public:
  // `depart` is the first line of the session. etatsDuJeu: as for Invariants.
  Partie(Octets& octets, FichiersMemoire& fichiers, std::string depart, bool etatsDuJeu);
  void Joue() { session_.Joue(); }
  // Many commands instead of a hundred: the program isn't ended, nothing is typed that a file can't keep,
  // no supposition is made where many cells are open, and the disk doesn't fail, for every save that fails
  // leaves a copy.
  void Longue(int commandes);

  // Called before each command, with the number of those left.
  std::function<void(int)> avant = [](int) {};
  // How often a game came to its end, a saved file was read back, a window was answered.
  int fins = 0, relectures = 0, fenetres = 0;

 private:
  int_type underflow() override;
  void Verifie();
  void VerifieFichier();
  std::string Difference(Programme& relu);

  std::string Commande();
  std::string LigneBrute();
  std::string Reponse(GenreBoite genre);
  TexteVue Symboles();
  std::string DansFenetre();
  std::string Clique();
  std::string Montre();
  std::string Tape();
  static std::string Touche(int tirage);
  std::string Case();
  std::string Chaine();
  std::string Chemin();
  bool ResoutVite();
  GameState& Jeu() { return session_.LeProgramme().Jeu(); }

  Octets& octets_;
  FichiersMemoire& fichiers_;
  std::string depart_;
  std::string ligne_;
  int restantes_ = 100;
  bool longue_ = false;
  std::int32_t etatAvant_ = kSansGrille;
  std::istream entree_{this};
  std::ostringstream sortie_;
  Session session_{entree_, sortie_, fichiers_};
  Invariants invariants_;
};

}  // namespace sudoku::fuzz
