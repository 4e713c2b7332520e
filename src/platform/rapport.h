#pragma once

#include <utility>

#include "platform/erreur.h"
#include "platform/systeme.h"

namespace sudoku {

// "procedure : 53 - Fichier introuvable", in a message box.
void MontreErreur(Systeme& systeme, TexteVue procedure, const Erreur& erreur);

// Runs the body of a procedure whose failures are reported under its name, such as "FRMSudoku.JeuLoad". False
// when it failed: the report has been answered, and what was done before the failure stays. Only Erreur is
// caught: the end of the program passes through.
template <class Corps>
bool Rapport(Systeme& systeme, TexteVue procedure, Corps&& corps) {
  try {
    std::forward<Corps>(corps)();
    return true;
  } catch (const Erreur& erreur) {
    MontreErreur(systeme, procedure, erreur);
    return false;
  }
}

}  // namespace sudoku
