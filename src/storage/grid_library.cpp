#include "storage/grid_library.h"

#include <utility>

#include "platform/rapport.h"
#include "play/frm_sudoku.h"
#include "storage/frm_parties.h"
#include "storage/state_string.h"

namespace sudoku {

void GridLibrary::ShowParties(Mode mode) {
  GameState& jeu = frm_.Jeu();
  const auto avant = std::exchange(jeu.VgEtat, mode);
  AlwaysOnTop(frm_.LaFenetre(), false);
  FRMParties(jeu, frm_.LeSysteme(), frm_.LaFenetre()).Montre();
  AlwaysOnTop(frm_.LaFenetre(), true);
  jeu.VgEtat = avant;
}

void GridLibrary::JeuLoadPartie(Texte VpPartie) {
  GameState& jeu = frm_.Jeu();
  Rapport(frm_.LeSysteme(), U"FRMSudoku.JeuLoadPartie", [&] {
    jeu.VmPartie = 0;
    if (jeu.VgParties.size() > 1) ShowParties(kChargePartie);
    if (jeu.VmPartie > 0) VpPartie = jeu.VgParties[static_cast<std::size_t>(jeu.VmPartie)].Grille;
    if (VpPartie.empty()) return;
    if (!frm_.Deroulement().JeuVierge(jeu.VmValeurs)) {
      jeu.VmValeurs = jeu.VmGrille.Symboles();
      return;
    }
    ChargeCases(jeu.VmGrille, VpPartie);
    frm_.Deroulement().JeuStart();
    frm_.SetInfos();
  });
}

void GridLibrary::MnuPartie_Click() {
  if (frm_.LeSysteme().Question(U"Etes-vous certain de vouloir quitter le jeu ?")) JeuLoadPartie({});
}

}  // namespace sudoku
