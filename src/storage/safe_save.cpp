#include "storage/safe_save.h"

#include "platform/erreur.h"

namespace sudoku {

Texte NomDeCopie(TexteVue VmNom) {
  return Texte(VmNom) += U'~';
}

SafeSave::SafeSave(Fichiers& fichiers, TexteVue VmNom)
    : fichiers_(fichiers), fichier_(fichiers.Ouvre(VmNom)) {
  if (!fichier_->Neuf()) copie_ = NomDeCopie(VmNom);
  for (int k = 2; !copie_.empty() && !fichiers_.Copie(VmNom, copie_); ++k) {
    copie_ = NomDeCopie(VmNom) + Decimal(k);
  }
  fichier_->Tronque();
}

void SafeSave::Termine(std::string_view octets) {
  fichier_->Ecrit(octets);
  fichier_->VideSurDisque();
  fichier_->Ferme();
  if (copie_.empty()) return;
  try {
    fichiers_.Supprime(copie_);
  } catch (const Erreur&) {
    // The new content is safe: a copy too many harms nothing, and a report would say that the save failed.
  }
}

}  // namespace sudoku
