#include "grid/jeu_vierge.h"

#include "grid/geometrie.h"

namespace sudoku {

bool JeuVierge(GameState& jeu, PlateauVierge& plateau, Texte& VpValeurs) {
  if (VpValeurs.empty()) {
    VpValeurs = plateau.DemandeSymboles();
    if (VpValeurs.empty()) return false;
    jeu.VmNom.clear();
    jeu.VgParties.resize(1);
    jeu.VgScores.resize(1);
    jeu.VmPartie = 0;
  }
  if (!TailleAcceptable(VpValeurs.size())) {
    jeu.Message(U"Choix incorrect");
    return false;
  }
  const Grille grille = Grille::Nouvelle(jeu, VpValeurs);
  jeu.VgEtat = kSaisieGrille;
  jeu.VmValeurs = VpValeurs;
  jeu.VmTaille = static_cast<std::int16_t>(VpValeurs.size());
  jeu.VmGrille = grille;
  // A copy that was solved for another grid must not come up on this board.
  jeu.VmGrilleEtat = Grille();
  jeu.VsResolu = false;
  if (jeu.VmCase > jeu.VmGrille.Borne()) jeu.VmCase = 0;
  plateau.MetEnPlace();
  plateau.Evalue();
  plateau.SetInfos();
  return true;
}

}  // namespace sudoku
