#include "shell/programme.h"

namespace sudoku {

Programme::Programme(Systeme& systeme)
    : fenetre_(TableFRMSudoku()),
      assistant_(fenetre_.plateau),
      principale_(systeme, jeu_, fenetre_, assistant_),
      dialogue_(systeme),
      stockage_(jeu_, systeme, fenetre_, principale_.Deroulement(), principale_.Affichage(), dialogue_),
      aPropos_(systeme, principale_.LaFenetre()) {
  assistant_.Branche(jeu_, principale_.Pilote(), principale_.Affichage());
  principale_.Relie(stockage_, aPropos_);
  systeme.Ajoute(principale_.LaFenetre());
  systeme.Ajoute(assistant_.LaFenetre());
}

Programme::~Programme() {
  // The main window owns the other, and goes last.
  principale_.LeSysteme().Retire(assistant_.LaFenetre());
  principale_.LeSysteme().Retire(principale_.LaFenetre());
}

void Programme::Demarre(TexteVue ligneDeCommande) {
  principale_.Form_Load(ligneDeCommande);
}

}  // namespace sudoku
