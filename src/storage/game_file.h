#pragma once

#include "grid/game_state.h"
#include "platform/systeme.h"
#include "play/board_display.h"
#include "storage/grid_library.h"
#include "storage/safe_save.h"
#include "storage/sud_text.h"
#include "text/texte.h"

namespace sudoku {

// The file dialog: gives a path, or nothing when the user cancels. The file need not exist.
class DialogueFichier {
 public:
  virtual ~DialogueFichier() = default;
  virtual Texte GetOpenFile(TexteVue VpDossier, TexteVue VpTitre, TexteVue VpExtension) = 0;
};

// The game file: the only thing that outlives the program, and only on the user's command.
class GameFile {
 public:
  GameFile(GameState& jeu, Systeme& systeme, BoardDisplay& affichage, GridLibrary& bibliotheque,
           DialogueFichier& dialogue)
      : jeu_(jeu),
        systeme_(systeme),
        affichage_(affichage),
        bibliotheque_(bibliotheque),
        dialogue_(dialogue) {}

  // Writes grid, library and scores to VmNom, which the user is asked for first where it is empty. A game in
  // progress goes into its library entry, which the user names at the first save. A failure is reported; what
  // was done in memory before it stays.
  void JeuSave(const Grille& VpGrille);

  // Reads a game file and starts its game. The path stands between the first and the last character of
  // VpFichier; where that is empty, the user is asked. A failure is reported and leaves in place what was
  // read before it: the file's name, then the symbols, then library and scores; the board goes on as it was.
  // A file that doesn't end as JeuSave ends it is told, where a copy of it is there.
  void JeuLoad(TexteVue VpFichier);

  void MnuLoad_Click();
  void MnuSave_Click();
  void MnuPartie_Click();

 private:
  Texte Demande(TexteVue VpTitre);
  // The game in progress into its library entry, which is named or chosen if it has none.
  void RangePartie(const Texte& etats);
  // What was read of the file at VmNom, into the game; gives its grid. Throws Erreur.
  Texte Prend(LectureSud lu);
  Texte DerniereCopie() { return sudoku::DerniereCopie(systeme_.LesFichiers(), jeu_.VmNom); }

  GameState& jeu_;
  Systeme& systeme_;
  BoardDisplay& affichage_;
  GridLibrary& bibliotheque_;
  DialogueFichier& dialogue_;
  ContenuConnu connu_;
  bool valeursSeules_ = false;  // VmValeurs is line 1 of a file of which nothing else was read
};

}  // namespace sudoku
