#include "qt/saisies.h"

namespace sudoku {

void Saisies::SuitLesOublis() {
  if (oublis_ == fenetre_.plateau.Oublis()) return;
  oublis_ = fenetre_.plateau.Oublis();
  liste_.clear();
  place_ = 0;
}

// Types, and tells whether the game has kept the text.
bool Saisies::Tient(int i, const Texte& texte) {
  Plateau& plateau = fenetre_.plateau;
  if (i < 1 || i > plateau.Cases() || plateau.TxtCase(i).Locked) return false;
  plateau.Saisit(i, texte);
  return i <= plateau.Cases() && plateau.TxtCase(i).Text == texte;
}

bool Saisies::TapeEtNote(int i, const Texte& texte) {
  SuitLesOublis();
  const Texte avant = fenetre_.plateau.TxtCase(i).Text;
  const bool tient = Tient(i, texte);
  SuitLesOublis();
  if (tient && avant != texte) {
    liste_.resize(place_);
    liste_.push_back({i, avant, texte});
    ++place_;
  }
  return tient;
}

void Saisies::Tape(int i, TexteVue texte) {
  const Texte propre = SansControles(texte);
  pilote_.Execute([&] { TapeEtNote(i, propre); });
}

void Saisies::Annule() {
  SuitLesOublis();
  if (place_ == 0) return;
  pilote_.Execute([&] {
    const Saisie saisie = liste_[place_ - 1];
    fenetre_.plateau.SetFocus(saisie.Index);
    if (Tient(saisie.Index, saisie.avant) && place_ > 0) --place_;
  });
}

void Saisies::Retablit() {
  SuitLesOublis();
  if (place_ == liste_.size()) return;
  pilote_.Execute([&] {
    const Saisie saisie = liste_[place_];
    fenetre_.plateau.SetFocus(saisie.Index);
    if (Tient(saisie.Index, saisie.apres) && place_ < liste_.size()) ++place_;
  });
}

bool Saisies::TapeGrille(TexteVue texte) {
  if (!fenetre_.conforts.LitGrille) return false;
  const std::vector<Texte> contenus = fenetre_.conforts.LitGrille(texte);
  if (contenus.empty()) return false;
  pilote_.Execute([&] {
    Plateau& plateau = fenetre_.plateau;
    const int n = std::min(static_cast<int>(contenus.size()), plateau.Cases());
    const auto contenu = [&](int i) -> const Texte& { return contenus[static_cast<std::size_t>(i - 1)]; };
    // What stands in the way goes first: a box takes another symbol only once it is empty.
    for (int i = 1; i <= n; ++i) {
      if (plateau.TxtCase(i).Text.empty() || plateau.TxtCase(i).Text == contenu(i)) continue;
      plateau.SetFocus(i);
      if (!TapeEtNote(i, {})) return;
    }
    for (int i = 1; i <= n; ++i) {
      if (plateau.TxtCase(i).Text == contenu(i)) continue;
      plateau.SetFocus(i);
      if (!TapeEtNote(i, contenu(i))) return;
    }
  });
  return true;
}

}  // namespace sudoku
