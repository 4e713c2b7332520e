#include "storage/safe_save.h"

#include <algorithm>
#include <tuple>

#include "platform/chemin.h"
#include "platform/erreur.h"

namespace sudoku {
namespace {

constexpr std::size_t kNomMax = 255;  // bytes of a name in its folder
constexpr char32_t kMarque = U'~';
constexpr std::size_t kChiffresMax = 9;  // of the number of a copy

Texte Suite(int k) {
  return k == 1 ? Texte(1, kMarque) : kMarque + Decimal(k);
}

// Leaves out the end of the name in a path, until `reserve` more bytes have room behind it.
TexteVue Raccourci(TexteVue chemin, std::size_t reserve) {
  const std::size_t debut = chemin.rfind(U'/') + 1;  // 0 where there is no folder
  while (chemin.size() > debut && VersChemin(chemin.substr(debut)).size() + reserve > kNomMax) {
    chemin.remove_suffix(1);
  }
  return chemin;
}

// Which copy of the file has this name; 0 for none.
int RangDeCopie(TexteVue VmNom, TexteVue copie) {
  const TexteVue chiffres = copie.substr(copie.rfind(kMarque) + 1);
  if (chiffres.size() > kChiffresMax) return 0;
  int k = 0;
  for (const char32_t c : chiffres) {
    if (c < U'0' || c > U'9') return 0;
    k = 10 * k + static_cast<int>(c - U'0');
  }
  k = std::max(k, 1);
  return NomDeCopie(VmNom, k) == copie ? k : 0;
}

}  // namespace

Texte NomDeCopie(TexteVue VmNom, int k) {
  const Texte suite = Suite(k);
  return Texte(Raccourci(VmNom, suite.size())) += suite;
}

Texte DerniereCopie(Fichiers& fichiers, TexteVue VmNom) {
  Texte derniere;
  std::pair<std::int64_t, int> age;
  for (const FichierVu& vu : fichiers.Commencant(Raccourci(VmNom, 1 + kChiffresMax))) {
    const int k = RangDeCopie(VmNom, vu.chemin);
    if (k == 0 || vu.taille == 0 || std::pair(vu.change, k) < age) continue;
    age = {vu.change, k};
    derniere = vu.chemin;
  }
  return derniere;
}

SafeSave::SafeSave(Fichiers& fichiers, TexteVue VmNom)
    : fichiers_(fichiers), VmNom_(VmNom), fichier_(fichiers.Ouvre(VmNom)) {
  if (!fichier_->Neuf()) copie_ = Garde();
  fichier_->Coupe(0);
}

Texte SafeSave::Garde() {
  for (int k = 1;; ++k) {
    Texte copie = NomDeCopie(VmNom_, k);
    if (fichiers_.Copie(VmNom_, copie)) return copie;
  }
}

bool SafeSave::Tient(const ContenuConnu& connu) const {
  return connu.VmNom == VmNom_ && fichiers_.Lit(copie_) == connu.octets;
}

void SafeSave::Termine(std::string_view octets, const ContenuConnu& connu) {
  if (fichier_->Taille() > 0) Garde();
  fichier_->Ecrit(octets);
  fichier_->Coupe(static_cast<std::int64_t>(octets.size()));
  fichier_->VideSurDisque();
  fichier_->Ferme();
  if (copie_.empty()) return;
  try {
    if (Tient(connu)) fichiers_.Supprime(copie_);
  } catch (const Erreur&) {
    // The new content is safe: a copy too many harms nothing, and a report would say that the save failed.
  }
}

}  // namespace sudoku
