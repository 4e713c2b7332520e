#pragma once

#include <optional>
#include <ostream>
#include <string_view>
#include <vector>

#include "headless/ecriture.h"
#include "headless/systeme_sans_ecran.h"
#include "shell/programme.h"

namespace sudoku {

// " nom=valeur", as `show` writes a property.
Texte Paire(TexteVue nom, TexteVue valeur);
Texte Paire(TexteVue nom, std::int64_t valeur);

// Prints the game's records and view elements, for the command `show` of a session.
class SessionVue {
 public:
  SessionVue(Programme& programme, SystemeSansEcran& systeme, std::ostream& sortie);

  // The words behind `show` are as it takes them.
  static bool Conforme(const std::vector<Mot>& arguments);
  // Prints what they name; otherwise why it can't.
  std::optional<Texte> Montre(const std::vector<Mot>& arguments);

 private:
  void State();
  void Grid();
  void Etats();
  void Menus();
  void Scores();
  void Library();
  void Boxes();
  std::optional<Texte> Cell(const Nombre& Index);
  std::optional<Texte> File(TexteVue chemin);
  bool Nom(TexteVue nom);
  bool CaseOuCadre(TexteVue nom);
  bool ArticleOuMenu(std::string_view nom);
  bool DansFenetre(Fenetre& fenetre, std::string_view nom);
  void EcritListe(const Element& liste);
  void EcritLigne(TexteVue ligne);
  void EcritEnRetrait(TexteVue ligne);  // behind four blanks

  GameState& jeu_;
  Fenetre& principale_;
  SystemeSansEcran& systeme_;
  std::ostream& sortie_;
};

}  // namespace sudoku
