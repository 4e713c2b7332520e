#include "platform/rapport.h"

namespace sudoku {

void MontreErreur(Systeme& systeme, TexteVue procedure, const Erreur& erreur) {
  systeme.Message(Texte(procedure) + U" : " + Decimal(erreur.Numero()) + U" - " + erreur.Description());
}

}  // namespace sudoku
