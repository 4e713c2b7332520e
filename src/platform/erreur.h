#pragma once

#include "text/texte.h"

namespace sudoku {

// Numbers of unexpected failures.
enum NumeroErreur : int {
  kArgumentIncorrect = 5,
  kIndiceHorsSelection = 9,
  kTypeIncompatible = 13,
  kFichierIntrouvable = 53,
  kFinDeFichier = 62,
  kAccesFichier = 75
};

// The French description of a failure.
TexteVue DescriptionErreur(int numero);

// An unexpected failure inside a procedure. Thrown where it happens, caught by Rapport alone.
class Erreur {
 public:
  // `suite` goes on after the description of the number.
  explicit Erreur(NumeroErreur numero, TexteVue suite = {});

  int Numero() const { return numero_; }
  const Texte& Description() const { return description_; }

 private:
  int numero_;
  Texte description_;
};

}  // namespace sudoku
