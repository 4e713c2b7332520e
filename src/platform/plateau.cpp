#include "platform/plateau.h"

namespace sudoku {

void Plateau::Efface() {
  TxtCase_.resize(1);
  Box_.resize(1);
  OublieChangees();
  focus_ = 0;
  ++constructions_;
}

void Plateau::AjouteCase(Twips Left, Twips Top) {
  CaseTexte& c = TxtCase_.emplace_back();
  c.Left = Left;
  c.Top = Top;
  c.Visible = true;
}

void Plateau::AjouteCadre(Twips Left, Twips Top, Twips Width, Twips Height) {
  Box_.push_back({Left, Top, Width, Height, true});
}

void Plateau::Appearance(int i, int valeur) {
  if (At(i).Appearance == valeur) return;
  At(i).Appearance = static_cast<std::uint8_t>(valeur);
  Note(i);
}

void Plateau::Selection(int i, int SelStart, int SelLength) {
  At(i).SelStart = static_cast<std::int16_t>(SelStart);
  At(i).SelLength = static_cast<std::int16_t>(SelLength);
  Note(i);
}

void Plateau::SetFocus(int i) {
  focus_ = i;
  if (GotFocus) GotFocus(i);
}

void Plateau::Saisit(int i, TexteVue texte) {
  At(i).Text = SansControles(texte);
  Note(i);
  if (Change) Change(i);
}

void Plateau::OublieChangees() {
  for (const std::int32_t i : changees_) {
    if (i <= Cases()) At(i).change = false;
  }
  changees_.clear();
}

void Plateau::EcritTexte(int i, const Texte& valeur) {
  At(i).Text = valeur;
  Note(i);
  if (Change) Change(i);
}

void Plateau::Note(int i) {
  if (At(i).change) return;
  At(i).change = true;
  changees_.push_back(i);
}

}  // namespace sudoku
