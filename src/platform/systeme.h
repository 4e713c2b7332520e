#pragma once

#include <cstdint>
#include <optional>

#include "platform/fenetre.h"
#include "platform/fichiers.h"
#include "text/texte.h"

namespace sudoku {

// What the logic asks of a window system, and of the machine below it. Two stand behind: the real one and one
// without a screen that a script answers; the logic can't tell them apart. The parts:
//   element.h  fenetre.h  plateau.h   windows as tables of records, which the system shows
//   systeme.h                         modal boxes and windows, clock, registry, programs, the end
//   fichiers.h                        files as bytes
//   erreur.h  rapport.h               failures and their report
// One thread. Handlers run one at a time, but for those of a modal box or window inside the handler that
// opened it.

// A request of the platform's file dialog. The system leaves the path chosen in lpstrFile, ended by a NUL; a
// cancelled dialog leaves that buffer as it was. Filter lists are description, NUL, pattern, NUL for each
// pair.
struct DemandeFichier {
  std::int32_t lStructSize = 0;
  std::intptr_t hwndOwner = 0;
  std::intptr_t hInstance = 0;
  Texte lpstrFilter;
  std::int32_t nFilterIndex = 0;
  Texte lpstrFile;            // a buffer, as long as the caller makes it
  std::int32_t nMaxFile = 0;  // a longer path can't be returned: the dialog refuses it
  Texte lpstrFileTitle;       // likewise, the name without folder
  std::int32_t nMaxFileTitle = 0;
  Texte lpstrInitialDir;
  Texte lpstrTitle;  // empty: the system's own
  std::int32_t Flags = 0;
  std::int16_t nFileOffset = 0;     // out: position of the name in lpstrFile
  std::int16_t nFileExtension = 0;  // out: position of the extension, 0 for none
  Texte lpstrDefExt;
};

// Puts `chemin` into the buffers and positions of a request, or nothing where it is empty or too long.
// Windows systems answer with it.
void Repond(DemandeFichier& demande, TexteVue chemin);

// A value of the registry: type 1 text, 4 a number (four characters, the lowest byte first).
struct ValeurRegistre {
  std::uint32_t type = 0;
  Texte donnees;
};

class Systeme {
 public:
  virtual ~Systeme() = default;

  // Modal boxes: each returns when it is answered.
  // OK button; a title of its own where one is given.
  virtual void Message(TexteVue texte, TexteVue titre = {}) = 0;
  // Buttons Yes and No, No the default. True for Yes.
  virtual bool Question(TexteVue texte) = 0;
  // The text typed, without control characters; empty on Cancel.
  virtual Texte Saisie(TexteVue texte, TexteVue titre, TexteVue defaut) = 0;
  // The dialog that names a file, which need not exist. It has no owner window.
  virtual void Fichier(DemandeFichier& demande) = 0;
  // Shows a window until its Ferme, in front of the others, which take no input meanwhile. The system must
  // not keep it.
  virtual void MontreModale(Fenetre& fenetre) = 0;

  // Makes a window known that stays for the whole run: from now on it is on the screen while it is Visible,
  // and its timers tick.
  virtual void Ajoute(Fenetre& fenetre) = 0;
  // Takes it off the screen for good, while all that its handlers need is still there.
  virtual void Retire(Fenetre& fenetre) = 0;
  // Lets pending window events through.
  virtual void DoEvents() = 0;
  // The program ends at once: no further event, no return. A system that ends by an exception throws a type
  // that nothing in the logic catches.
  [[noreturn]] virtual void Fin() = 0;

  // The present date and time: milliseconds since 1970-01-01 00:00:00 of the local calendar.
  virtual std::int64_t Maintenant() = 0;
  virtual Fichiers& LesFichiers() = 0;
  // A value of the registry; nothing where the key, the value or the registry is missing. Case is ignored.
  virtual std::optional<ValeurRegistre> Registre(std::uint32_t racine, TexteVue cle, TexteVue valeur) = 0;
  // Starts the program at this path, with a normal window that takes the focus. False: it could not be.
  virtual bool Lance(TexteVue chemin) = 0;
};

}  // namespace sudoku
