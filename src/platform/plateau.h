#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "platform/element.h"

namespace sudoku {

// What the colours of a box say, for whoever can't tell them apart: a view draws or says it beside them.
enum class Marque : std::uint8_t {
  kAucune,
  kDonnee,        // grey background
  kCertaine,      // green background
  kPossible,      // cyan background
  kHypothetique,  // blue text
  kErronee        // red text
};

// TxtCase(i), the entry box of cell i. TxtCase(0) is the hidden template that the others are made from.
struct CaseTexte {
  Texte Text;
  Couleur BackColor = kBlanc;
  Couleur ForeColor = kNoir;
  Twips Left = 240;
  Twips Top = 600;
  Twips Width = 375;
  Twips Height = 375;
  std::int16_t SelStart = 0;  // as the program last wrote them; the user's caret isn't written back
  std::int16_t SelLength = 0;
  std::uint8_t Appearance = 0;  // 0 flat, 1 in relief
  Marque marque = Marque::kAucune;
  bool Locked = false;  // refuses typing
  bool TabStop = true;  // the Tab key stops there
  bool Visible = false;
  bool change = false;  // stands in Plateau::Changees()
};

// Box(b), the frame around block b: a rectangle with a border 2 wide. Box(0) is the hidden template.
struct CadreCarre {
  Twips Left = 0;
  Twips Top = 0;
  Twips Width = 0;
  Twips Height = 0;
  bool Visible = false;
};

// The arrays TxtCase and Box of a window. Boxes are read as records and written through the operations here,
// which do nothing, and cost next to nothing, when the value is there already. Every box written is noted, so
// that a view repaints what changed; a view that doesn't care never looks (the list holds a box once).
// Contents are centred, in bold "MS Sans Serif" of 8.25 points.
class Plateau {
 public:
  // Events of the boxes, with the box's number. Change fires at once, inside the write of a Text that
  // differs.
  std::function<void(int Index)> Change;
  std::function<void(int Index)> GotFocus;

  // Highest index of each array.
  int Cases() const { return static_cast<int>(TxtCase_.size()) - 1; }
  int Cadres() const { return static_cast<int>(Box_.size()) - 1; }
  const CaseTexte& TxtCase(int i) const { return TxtCase_[static_cast<std::size_t>(i)]; }
  const CadreCarre& Box(int b) const { return Box_[static_cast<std::size_t>(b)]; }

  // Takes all boxes and frames above 0 away; the focus is nowhere.
  void Efface();
  // Makes the next box from the template, there and visible.
  void AjouteCase(Twips Left, Twips Top);
  // Makes the next frame, visible.
  void AjouteCadre(Twips Left, Twips Top, Twips Width, Twips Height);

  void Text(int i, const Texte& valeur) {
    if (At(i).Text != valeur) EcritTexte(i, valeur);
  }
  void Couleurs(int i, Couleur BackColor, Couleur ForeColor) {
    CaseTexte& c = At(i);
    if (c.BackColor == BackColor && c.ForeColor == ForeColor) return;
    c.BackColor = BackColor;
    c.ForeColor = ForeColor;
    Note(i);
  }
  void Signe(int i, Marque marque) {
    CaseTexte& c = At(i);
    if (c.marque == marque) return;
    c.marque = marque;
    Note(i);
  }
  void Acces(int i, bool Locked, bool TabStop) {
    CaseTexte& c = At(i);
    if (c.Locked == Locked && c.TabStop == TabStop) return;
    c.Locked = Locked;
    c.TabStop = TabStop;
    Note(i);
  }
  void Appearance(int i, int valeur);
  void Selection(int i, int SelStart, int SelLength);
  // The whole board has been written anew: the view gives the focused box its SelStart and SelLength again.
  void Reecrit() { ++redessins_; }

  // Gives box i the focus: the view moves it there, and GotFocus fires at once, also when i has it already.
  // Called by the program and for the user alike.
  void SetFocus(int i);
  // The user makes `texte`, without its control characters, the text of box i: one Change, also when that
  // text stands there. The box must not be Locked.
  void Saisit(int i, TexteVue texte);

  // For the view: the box with the focus, 0 for none.
  int Focus() const { return focus_; }
  // … rises whenever the arrays were taken away and made anew: everything has changed.
  std::uint32_t Constructions() const { return constructions_; }
  // … rises with every Reecrit.
  std::uint32_t Redessins() const { return redessins_; }
  // … the boxes written since OublieChangees, each once, in no order.
  const std::vector<std::int32_t>& Changees() const { return changees_; }
  void OublieChangees();

 private:
  CaseTexte& At(int i) { return TxtCase_[static_cast<std::size_t>(i)]; }
  void EcritTexte(int i, const Texte& valeur);
  void Note(int i);

  std::vector<CaseTexte> TxtCase_ = std::vector<CaseTexte>(1);
  std::vector<CadreCarre> Box_ = std::vector<CadreCarre>(1);
  std::vector<std::int32_t> changees_;
  int focus_ = 0;
  std::uint32_t constructions_ = 0;
  std::uint32_t redessins_ = 0;
};

}  // namespace sudoku
