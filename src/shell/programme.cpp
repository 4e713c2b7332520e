#include "shell/programme.h"

namespace sudoku {

Programme::Programme(Systeme& systeme)
    : principale_(systeme),
      assistant_(principale_),
      dialogue_(systeme),
      stockage_(principale_, dialogue_),
      aPropos_(systeme, principale_.LaFenetre()) {
  principale_.Relie(assistant_, stockage_, aPropos_);
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
