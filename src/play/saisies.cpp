#include "play/saisies.h"

#include "grid/grille_texte.h"

namespace sudoku {

void Saisies::Note(int i, TexteVue avant, TexteVue apres) {
  if (repete_ || avant == apres) return;
  liste_.resize(place_);
  liste_.push_back({i, Texte(avant), Texte(apres), suite_});
  ++place_;
  suite_ = groupe_;
}

void Saisies::Oublie() {
  liste_.clear();
  place_ = 0;
}

// Types, and tells whether the game has kept the text.
bool Saisies::Tient(int i, const Texte& texte) {
  if (i > plateau_.Cases() || plateau_.TxtCase(i).Locked) return false;
  plateau_.SetFocus(i);
  plateau_.Saisit(i, texte);
  return i <= plateau_.Cases() && plateau_.TxtCase(i).Text == texte;
}

bool Saisies::Repete(int i, const Texte& texte) {
  repete_ = true;
  const bool tient = Tient(i, texte);
  repete_ = false;
  return tient;
}

Texte Saisies::Annule() {
  if (place_ == 0) return U"Rien à annuler";
  for (bool suite = true; suite && place_ > 0;) {
    const Saisie saisie = liste_[place_ - 1];
    if (!Repete(saisie.Index, saisie.avant) || place_ == 0) break;
    --place_;
    suite = saisie.suite;
  }
  return {};
}

Texte Saisies::Retablit() {
  if (place_ == liste_.size()) return U"Rien à rétablir";
  for (bool suite = true; suite && place_ < liste_.size();) {
    const Saisie saisie = liste_[place_];
    if (!Repete(saisie.Index, saisie.apres) || place_ == liste_.size()) break;
    ++place_;
    suite = place_ < liste_.size() && liste_[place_].suite;
  }
  return {};
}

Texte Saisies::Colle(TexteVue texte) {
  if (jeu_.VgEtat != kSaisieGrille) return U"Une grille ne se colle que pendant la saisie des cases données";
  const auto contenus = LitGrilleTexte(texte, jeu_.VmGrille.Donnees().alphabet->Symboles());
  if (!contenus) return U"Le texte à coller n'est pas une grille de cette taille et de ces symboles";
  groupe_ = true;
  TapeGrille(*contenus);
  groupe_ = suite_ = false;
  return {};
}

bool Saisies::EstGrille(TexteVue texte) const {
  return plateau_.Cases() > 1 &&
         LitGrilleTexte(texte, jeu_.VmGrille.Donnees().alphabet->Symboles()).has_value();
}

void Saisies::TapeGrille(const std::vector<Texte>& contenus) {
  const auto contenu = [&](int i) -> const Texte& { return contenus[static_cast<std::size_t>(i - 1)]; };
  // What stands in the way goes first: a box takes another symbol only once it is empty.
  for (int i = 1; i <= plateau_.Cases(); ++i) {
    const Texte& ici = plateau_.TxtCase(i).Text;
    if (!ici.empty() && ici != contenu(i) && !Tient(i, {})) return;
  }
  for (int i = 1; i <= plateau_.Cases(); ++i) {
    if (plateau_.TxtCase(i).Text != contenu(i) && !Tient(i, contenu(i))) return;
  }
}

}  // namespace sudoku
