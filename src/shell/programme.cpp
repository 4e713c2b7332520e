#include "shell/programme.h"

#include "play/conforts_jeu.h"
#include "play/frm_sudoku.h"
#include "storage/frm_parties.h"

namespace sudoku {

Programme::Programme(Systeme& systeme)
    : systeme_(systeme),
      principale_(TableFRMSudoku()),
      assistant_(principale_.plateau),
      evaluateur_(jeu_),
      affichage_(jeu_, principale_, systeme, assistant_),
      solveur_(jeu_, evaluateur_, affichage_),
      chrono_(jeu_, systeme, principale_, assistant_),
      saisies_(jeu_, principale_.plateau),
      deroulement_(jeu_, systeme, saisies_, evaluateur_, solveur_, affichage_, chrono_),
      dialogue_(systeme),
      stockage_(jeu_, systeme, principale_, deroulement_, affichage_, dialogue_),
      aPropos_(systeme, principale_),
      saisie_(jeu_, principale_.plateau, saisies_, evaluateur_, affichage_, chrono_, assistant_, stockage_),
      commandes_(jeu_, systeme, principale_, affichage_, deroulement_, assistant_, stockage_) {
  jeu_.Message = [&systeme](TexteVue texte) { systeme.Message(texte); };
  assistant_.Branche(jeu_, solveur_, affichage_);
  BrancheFRMSudoku(principale_, commandes_, saisie_, chrono_, stockage_, aPropos_);
  principale_.conforts = ConfortsDuJeu(jeu_, principale_.plateau, saisies_, commandes_);
  systeme.Ajoute(principale_);
  systeme.Ajoute(assistant_.LaFenetre());
}

std::vector<Fenetre> Programme::Modales() {
  return {FRMParties::Table(principale_), FRMNRVAbout::Table(principale_)};
}

Programme::~Programme() {
  // The main window owns the other, and goes last.
  systeme_.Retire(assistant_.LaFenetre());
  systeme_.Retire(principale_);
}

}  // namespace sudoku
