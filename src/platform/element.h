#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "text/texte.h"

namespace sudoku {

// View elements are plain records. The logic writes their fields, the window system shows what they hold. It
// looks at them at three moments only: when a handler that it called returns, before it opens a box or a
// window, and in DoEvents. Nothing else runs in between, so no record has to report its changes (the board,
// which has many cells, keeps a list of them: plateau.h). What the user does goes the other way, through the
// operations below that are named after a user's act; they write the fields and then run the handler.

using Twips = std::int32_t;     // 1440 to the inch, 15 to a pixel of 96 to the inch
using Couleur = std::uint32_t;  // 0x00BBGGRR
inline constexpr Couleur kNoir = 0x000000;
inline constexpr Couleur kBlanc = 0xFFFFFF;
inline constexpr Couleur kGris = 0xC0C0C0;
inline constexpr Couleur kVert = 0x00FF00;
inline constexpr Couleur kCyan = 0xFFFF00;
inline constexpr Couleur kBleu = 0xFF0000;
inline constexpr Couleur kRouge = 0x0000FF;
inline constexpr Couleur kCouleurSysteme = 0x80000000;  // what the window system takes for this kind

enum class Genre : std::uint8_t {
  kEtiquette,    // label: Caption
  kTexte,        // text box: Text
  kCaseACocher,  // check box: Caption, Value
  kCadre,        // group frame: Caption; drawn behind what lies on it
  kBouton,       // button: Caption
  kListe,        // list: items, ListIndex, Text
  kChampListe,   // edit field with its list always shown below it: items, ListIndex, Text
  kImage,        // the program's icon
  kTrait         // line from (Left, Top) to (Left + Width, Top + Height): ForeColor, BorderWidth
};

struct Police {
  const char* Nom = "MS Sans Serif";
  double Taille = 8.25;  // points
  bool Gras = false;
  bool Italique = false;
};

// One element of a window. In captions of buttons & marks the access key. Place in twips, relative to the
// element named `Parent`, or to the window's client area.
struct Element {
  Genre genre = Genre::kEtiquette;
  std::string Name = {};
  Texte Caption = {};
  Twips Left = 0;
  Twips Top = 0;
  Twips Width = 0;
  Twips Height = 0;
  int TabIndex = -1;  // order of the Tab key; -1 none given
  bool TabStop = true;
  bool Visible = true;
  bool Enabled = true;
  std::string Parent = {};
  std::string Libelle = {};  // the element whose Caption says what this one holds

  Texte Text = {};
  int Value = 0;  // of a check box: 1 checked
  std::vector<Texte> items = {};
  int ListIndex = -1;  // 0-based, -1 none

  Couleur BackColor = kCouleurSysteme;
  Couleur ForeColor = kCouleurSysteme;
  Police police = {};
  bool Centre = false;       // text centred
  bool Bordure = false;      // a label's fixed single border
  bool Transparent = false;  // a label that shows what lies below it
  bool MultiLine = false;    // of a text box: several lines, separated by CR LF
  int BorderWidth = 1;       // of a line
  bool Default = false;      // button that Enter presses
  bool Cancel = false;       // button that Escape presses

  // Handlers; an empty one is an event that nobody listens to.
  std::function<void()> Click = {};
  std::function<void()> DblClick = {};
  std::function<void(int KeyCode)> KeyDown = {};
  std::function<void(int KeyCode)> KeyUp = {};
  std::function<void()> MouseDown = {};
  std::function<void()> MouseUp = {};

  // List operations of the program. Clear leaves no item, no selection and no text.
  void Clear();
  void AddItem(TexteVue texte) { items.emplace_back(texte); }

  // The user selects position p (-1 none): the item becomes the text, none empties it.
  void Selectionne(int p);
  // The user types into the field: no position is selected, also when an item has this text.
  void Edite(TexteVue texte);
  // The user clicks: a check box changes its Value, a button that listens to the mouse is pressed and let go.
  // Then Click.
  void Clique();
  // The user double-clicks.
  void DoubleClique() { Lance(DblClick); }

 private:
  static void Lance(const std::function<void()>& handler) {
    if (handler) handler();
  }
};

// What a one-line field takes of a typed or pasted text: all but the characters below 0x20 and 0x7F.
Texte SansControles(TexteVue texte);

}  // namespace sudoku
