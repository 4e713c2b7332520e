#pragma once

#include <istream>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "headless/ecriture.h"
#include "headless/scene.h"
#include "headless/systeme_sans_ecran.h"
#include "platform/fichiers.h"
#include "shell/programme.h"

namespace sudoku {

// Plays a written session of the whole game and prints what a person would see. One command a line; each is
// printed behind "> ", a refused one is followed by "! " and why, and changes nothing. While a box or a modal
// window is open, the lines go on inside it.
class Session {
 public:
  Session(std::istream& entree, std::ostream& sortie, Fichiers& fichiers,
          const FabriqueScene& scene = SceneSurPapier);

  // To the last line, or to the end of the program.
  void Joue();
  // Runs the next command. False: there is none left.
  bool Avance();
  // What is played, and where.
  Programme& LeProgramme() { return programme_; }
  SystemeSansEcran& LeSysteme() { return systeme_; }

 private:
  using Arguments = std::vector<Mot>;
  // A command carried out, or why it wasn't.
  using Refus = std::optional<Texte>;
  struct Commande {
    TexteVue nom;
    TexteVue forme;  // a letter an argument, see Conforme
    Refus (Session::*fait)(const Arguments&);
    bool avantDepart = false;
  };
  // A window that a command aims at, and the list in it if it aims at one.
  struct Cible {
    Fenetre* fenetre = nullptr;
    Refus refus = {};
    Element* liste = nullptr;
  };

  static const std::vector<Commande>& Commandes();
  static bool Conforme(TexteVue forme, const Arguments& arguments);
  Refus Execute(const std::vector<Mot>& mots);

  Refus Start(const Arguments& a);
  Refus Now(const Arguments& a);
  Refus Registre(const Arguments& a);
  Refus Type(const Arguments& a);
  Refus Focus(const Arguments& a);
  Refus Annule(const Arguments& a);
  Refus Retablit(const Arguments& a);
  Refus Colle(const Arguments& a);
  Refus Key(const Arguments& a);
  Refus Tick(const Arguments& a);
  Refus Click(const Arguments& a);
  Refus Press(const Arguments& a);
  Refus Release(const Arguments& a);
  Refus Close(const Arguments& a);
  Refus Select(const Arguments& a);
  Refus Edit(const Arguments& a);
  Refus DblClick(const Arguments& a);
  Refus Answer(const Arguments& a);
  Refus Show(const Arguments& a);

  Refus SansModale();
  Refus CaseDuPlateau(const Mot& mot, int& Index);
  Cible Vise(TexteVue commande, TexteVue nom);
  Cible ViseListe(TexteVue commande, TexteVue nom);
  Fenetre& Principale() { return programme_.Principale(); }

  std::istream& entree_;
  std::ostream& sortie_;
  SystemeSansEcran systeme_;
  std::unique_ptr<Scene> scene_;
  Programme programme_;
  std::vector<Fenetre> modales_;  // the tables of the windows that come up and go
  bool partie_ = false;           // `start` has run
};

}  // namespace sudoku
