#include "storage/grid_library.h"

#include <new>
#include <utility>

#include "platform/rapport.h"
#include "storage/frm_parties.h"
#include "storage/state_string.h"

namespace sudoku {
namespace {

// Throws std::bad_alloc where the memory for a board isn't to be had, before the old one is given up for it.
void ExigeMemoire(TexteVue partie) {
  constexpr std::size_t kParCaractere = 512;
  void* volatile place = ::operator new(partie.size() * kParCaractere);
  ::operator delete(place);
}

}  // namespace

void GridLibrary::ShowParties(Mode mode) {
  const auto avant = std::exchange(jeu_.VgEtat, mode);
  AlwaysOnTop(principale_, false);
  FRMParties(jeu_, systeme_, principale_).Montre();
  AlwaysOnTop(principale_, true);
  jeu_.VgEtat = avant;
}

Chargement GridLibrary::JeuLoadPartie(Texte VpPartie) {
  Chargement issue = Chargement::kRien;
  Rapport(systeme_, U"FRMSudoku.JeuLoadPartie", [&] {
    jeu_.VmPartie = 0;
    if (jeu_.VgParties.size() > 1) ShowParties(kChargePartie);
    if (jeu_.VmPartie > 0) VpPartie = jeu_.VgParties[static_cast<std::size_t>(jeu_.VmPartie)].Grille;
    if (VpPartie.empty()) return;
    issue = Chargement::kRompu;
    const std::int16_t choisie = std::exchange(jeu_.VmPartie, 0);  // none, where there is no room for it
    ExigeMemoire(VpPartie);
    jeu_.VmPartie = choisie;
    if (!deroulement_.JeuVierge(jeu_.VmValeurs)) {
      jeu_.VmValeurs = jeu_.VmGrille.Symboles();
      jeu_.VmPartie = 0;  // the board's game is none of this library
      return;
    }
    ChargeCases(jeu_.VmGrille, VpPartie);
    deroulement_.JeuStart();
    affichage_.SetInfos();
    issue = Chargement::kEntier;
  });
  return issue;
}

}  // namespace sudoku
