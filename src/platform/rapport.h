#pragma once

#include <new>
#include <utility>

#include "platform/erreur.h"
#include "platform/systeme.h"

namespace sudoku {

// "procedure : 53 - Fichier introuvable", in a message box.
void MontreErreur(Systeme& systeme, TexteVue procedure, const Erreur& erreur);

// Runs the body of a procedure whose failures are reported under its name, such as "FRMSudoku.JeuLoad". False
// when it failed: the report has been answered, and what was done before the failure stays. Of what isn't an
// Erreur only the lack of memory is caught, and reported as error 75: the end of the program passes through.
template <class Corps>
bool Rapport(Systeme& systeme, TexteVue procedure, Corps&& corps) {
  try {
    std::forward<Corps>(corps)();
    return true;
  } catch (const Erreur& erreur) {
    MontreErreur(systeme, procedure, erreur);
  } catch (const std::bad_alloc&) {
    MontreErreur(systeme, procedure, Erreur(kAccesFichier));
  }
  return false;
}

}  // namespace sudoku
