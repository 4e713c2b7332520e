#include "storage/grid_library.h"

#include <utility>

#include "platform/rapport.h"
#include "storage/frm_parties.h"
#include "storage/state_string.h"

namespace sudoku {

void GridLibrary::ShowParties(Mode mode) {
  const auto avant = std::exchange(jeu_.VgEtat, mode);
  AlwaysOnTop(principale_, false);
  FRMParties(jeu_, systeme_, principale_).Montre();
  AlwaysOnTop(principale_, true);
  jeu_.VgEtat = avant;
}

void GridLibrary::JeuLoadPartie(Texte VpPartie) {
  Rapport(systeme_, U"FRMSudoku.JeuLoadPartie", [&] {
    jeu_.VmPartie = 0;
    if (jeu_.VgParties.size() > 1) ShowParties(kChargePartie);
    if (jeu_.VmPartie > 0) VpPartie = jeu_.VgParties[static_cast<std::size_t>(jeu_.VmPartie)].Grille;
    if (VpPartie.empty()) return;
    if (!deroulement_.JeuVierge(jeu_.VmValeurs)) {
      jeu_.VmValeurs = jeu_.VmGrille.Symboles();
      return;
    }
    ChargeCases(jeu_.VmGrille, VpPartie);
    deroulement_.JeuStart();
    affichage_.SetInfos();
  });
}

void GridLibrary::MnuPartie_Click() {
  if (systeme_.Question(U"Etes-vous certain de vouloir quitter le jeu ?")) JeuLoadPartie({});
}

}  // namespace sudoku
