#include "lot/repondeur.h"

#include <algorithm>

namespace sudoku::lot {

void Repondeur::Message(TexteVue texte) {
  if (texte == U"Retour arrière ! Procédure à vérifier") {
    ++retours_;
    return;
  }
  if (texte == dernier_) return;
  dernier_ = texte;
  final_ = VersUtf8(texte);
}

std::string_view Repondeur::Nombre(int n) const {
  constexpr std::string_view kChiffres = "0123456789";
  std::string_view reste = final_;
  for (;; --n) {
    const std::size_t debut = reste.find_first_of(kChiffres);
    if (debut == std::string_view::npos) return "0";
    reste.remove_prefix(debut);
    const std::size_t longueur = std::min(reste.find_first_not_of(kChiffres), reste.size());
    if (n == 0) return reste.substr(0, longueur);
    reste.remove_prefix(longueur);
  }
}

}  // namespace sudoku::lot
