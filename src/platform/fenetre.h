#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/conforts.h"
#include "platform/element.h"
#include "platform/plateau.h"

namespace sudoku {

// An entry of a menu. The caption "-" is a separator line. In captions & marks the access key, && is one
// ampersand on the screen.
struct ArticleMenu {
  std::string Name = {};
  Texte Caption = {};
  bool Enabled = true;
  std::function<void()> Click = {};
  char Touche = 0;  // the letter that chooses it with Ctrl; 0 none
};

struct Menu {
  std::string Name;
  Texte Caption;
  std::vector<ArticleMenu> articles;
};

// A timer: Timer fires every Interval milliseconds while Enabled, never sooner, between events only: while
// any handler or box is on the stack, ticks wait.
struct Minuterie {
  std::string Name;
  int Interval = 1000;
  bool Enabled = false;
  std::function<void()> Timer = {};

  // Enables it, with a whole Interval before the first tick also where it runs already.
  void Demarre() {
    Enabled = true;
    ++departs;
  }
  int departs = 0;
};

// Why a window is to be unloaded.
inline constexpr int kFermeParUtilisateur = 0;

// A window: its own properties and the table of its elements, which any window system can draw. A later
// element lies above an earlier one, but group frames and the board lie below all others. Sizes are those of
// the client area. No window can be resized by the user, minimised or maximised. The list of elements stays
// as the owner filled it at first: references to its elements are good for the window's life.
struct Fenetre {
  std::string Name = {};
  Texte Caption = {};
  Twips Width = 0;
  Twips Height = 0;
  bool Visible = false;    // a window that becomes visible so doesn't take the focus
  bool TopMost = false;    // above the windows of other programs
  bool ControlBox = true;  // has a close box
  bool Dialogue = false;   // fixed dialog border, not in the task bar
  bool CentreSurProprietaire = false;
  Fenetre* proprietaire = nullptr;

  std::vector<Element> elements = {};
  std::vector<Menu> menus = {};
  std::vector<Minuterie> minuteries = {};
  bool avecPlateau = false;  // TxtCase and Box are drawn
  Plateau plateau = {};
  Conforts conforts = {};

  // Every key that goes down in the window, before the element that has the focus gets it.
  std::function<void(int KeyCode)> KeyDown = {};
  // The window is to close; True keeps it (Cancel). Without a handler it closes.
  std::function<bool(int UnloadMode)> QueryUnload = {};

  // The element, menu entry or timer of this name; null if there is none.
  Element* Trouve(std::string_view nom);
  ArticleMenu* TrouveArticle(std::string_view nom);
  Minuterie* TrouveMinuterie(std::string_view nom);

  // Ends a modal window: Systeme::MontreModale returns once the handler that runs has returned.
  void Ferme() { fermee = true; }
  bool fermee = false;
};

}  // namespace sudoku
