#include "storage/state_string.h"

#include "platform/erreur.h"

namespace sudoku {
namespace {

constexpr char32_t kCaseVide = U' ';

char32_t Contenu(const ClsPos& cellule) {
  const Texte& saisie = cellule.ValeurSaisie();
  return saisie.empty() ? kCaseVide : saisie.front();
}

}  // namespace

Texte ChaineEtats(const Grille& VpGrille) {
  Texte chaine;
  for (int i = 1; i <= VpGrille.Borne(); ++i) {
    chaine += Contenu(VpGrille(i));
    chaine += U'0' + static_cast<char32_t>(VpGrille(i).Etat());
  }
  return chaine;
}

Texte ChaineInitiale(const Grille& VpGrille) {
  Texte chaine;
  for (int i = 1; i <= VpGrille.Borne(); ++i) {
    chaine += VpGrille(i).Etat() == kDonnee ? Contenu(VpGrille(i)) : kCaseVide;
    chaine += U'0';
  }
  return chaine;
}

bool Jouee(const Grille& VpGrille) {
  for (int i = 1; i <= VpGrille.Borne(); ++i) {
    if (Contenu(VpGrille(i)) != kCaseVide && VpGrille(i).Etat() != kDonnee) return true;
  }
  return false;
}

void ChargeCases(const Grille& VpGrille, TexteVue chaine) {
  for (int i = 1; i <= VpGrille.Borne(); ++i) {
    const auto debut = static_cast<std::size_t>(2 * (i - 1));
    if (debut + 1 >= chaine.size()) throw Erreur(kTypeIncompatible);
    const char32_t etat = chaine[debut + 1];
    if (etat < U'0' || etat > U'9') throw Erreur(kTypeIncompatible);
    const TexteVue contenu = chaine[debut] == kCaseVide ? TexteVue() : chaine.substr(debut, 1);
    VpGrille(i).Load(contenu, static_cast<std::int32_t>(etat - U'0'));
  }
}

}  // namespace sudoku
