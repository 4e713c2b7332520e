#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/fichiers.h"
#include "text/texte.h"

namespace sudoku {

// What a file held, as this game itself last read it whole or saved it.
struct ContenuConnu {
  Texte VmNom;
  std::string octets;
};

// Gives a file a new content in two steps, between which the player may be asked things, without a moment at
// which neither the old content nor the new one is on the disk. The old one is kept in a copy beside the
// file, of the first name that NomDeCopie gives and that isn't taken: a copy that is there already is the
// player's. The file itself keeps its rights, links and owner.
class SafeSave {
 public:
  // Copies the file of this name, then leaves it empty; makes it where there is none. Throws Erreur 75, with
  // the file as it was where it can't be opened or no copy can be made.
  SafeSave(Fichiers& fichiers, TexteVue VmNom);
  // Writes the new content, behind which nothing stands then, and waits until it is on the disk. What another
  // program has written into the file meanwhile goes into a copy that stays. Throws 75 where the content
  // could not be written whole, and leaves the first copy. Otherwise takes that copy away if it holds what is
  // known of the file; one that holds anything else stays, since nobody here has its content. A copy that
  // can't be taken away is no failure of the save.
  void Termine(std::string_view octets, const ContenuConnu& connu);

 private:
  // Copies the file, and gives the copy's name.
  Texte Garde();
  bool Tient(const ContenuConnu& connu) const;

  Fichiers& fichiers_;
  Texte VmNom_;
  std::unique_ptr<FichierEcrit> fichier_;
  Texte copie_;  // empty: there was no file
};

// The k-th name, from 1, that a copy of this file can have: NAME~, NAME~2, NAME~3 … A name that would be too
// long for a disk has its end left out.
Texte NomDeCopie(TexteVue VmNom, int k);

// Of the copies that lie beside this file, the one changed last that isn't empty; empty where there is none.
Texte DerniereCopie(Fichiers& fichiers, TexteVue VmNom);

}  // namespace sudoku
