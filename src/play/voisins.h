#pragma once

#include "grid/grille.h"
#include "platform/fenetre.h"
#include "text/texte.h"

namespace sudoku {

// The neighbours of the main window, as it sees them: what lies above src/play implements these.

// The assistant window, as board and clock see it.
class Assistant {
 public:
  virtual ~Assistant() = default;
  virtual Fenetre& LaFenetre() = 0;
  // The four options that mark cells on the board: the box is checked.
  virtual bool ChkLightSur() const = 0;
  virtual bool ChkLightPoss() const = 0;
  virtual bool ChkForeBlue() const = 0;
  virtual bool ChkForeRed() const = 0;
  // Describes cell VpPos of VpGrille and highlights its box. VpInit: the board has just been repainted, so
  // that no earlier highlight stands there.
  virtual void Infos(const Grille& VpGrille, int VpPos, bool VpInit) = 0;
  // A new grid is on the board: no box is highlighted.
  virtual void OubliePosition() = 0;
};

// Game file, library and scores: the menu's commands of storage and what start and flow of a game call.
class Stockage {
 public:
  virtual ~Stockage() = default;
  virtual void MnuLoad_Click() = 0;
  virtual void MnuSave_Click() = 0;
  virtual void MnuPartie_Click() = 0;
  virtual void MnuScores_Click() = 0;
  // Loads a game file: the path stands between the first and the last character; empty: the user is asked.
  virtual void JeuLoad(Texte VpFichier) = 0;
  // Enters the time VmFin - VmDebut into the scores and shows them.
  virtual void SetScores() = 0;
};

class APropos {
 public:
  virtual ~APropos() = default;
  virtual void MnuAbout_Click() = 0;
};

}  // namespace sudoku
