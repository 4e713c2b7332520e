#pragma once

#include <memory>
#include <string_view>

#include "platform/fichiers.h"
#include "text/texte.h"

namespace sudoku {

// Gives a file a new content in two steps, between which the player may be asked things, without a moment at
// which neither the old content nor the new one is on the disk. The old one is kept in a copy beside the
// file, NAME~, or NAME~2, NAME~3 … where that is taken: a copy that is there already comes from a save that
// was cut short, and stays. The file itself keeps its rights, links and owner.
class SafeSave {
 public:
  // Copies the file of this name, then leaves it empty; makes it where there is none. Throws Erreur 75, with
  // the file as it was where it can't be opened or no copy can be made.
  SafeSave(Fichiers& fichiers, TexteVue VmNom);
  // Writes the new content, waits until it is on the disk and takes the copy away. Throws 75 where the
  // content could not be written whole, and leaves the copy. A copy that can't be taken away is no failure of
  // the save.
  void Termine(std::string_view octets);

 private:
  Fichiers& fichiers_;
  std::unique_ptr<FichierEcrit> fichier_;
  Texte copie_;  // empty: there was no file
};

// The first name that a copy of this file can have.
Texte NomDeCopie(TexteVue VmNom);

}  // namespace sudoku
