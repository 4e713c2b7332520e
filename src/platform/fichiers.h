#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "text/texte.h"

namespace sudoku {

// A file open for writing. Dropped without Ferme, it is closed and failures go unsaid.
class FichierEcrit {
 public:
  virtual ~FichierEcrit() = default;
  // Each throws Erreur 75 when it fails.
  virtual void Ecrit(std::string_view octets) = 0;
  virtual void VideSurDisque() = 0;  // what was written is on the disk, not only with the system
  virtual void Ferme() = 0;
};

// Files as bytes. Paths are taken as they stand, relative to the current directory.
class Fichiers {
 public:
  virtual ~Fichiers() = default;
  // The whole content. Throws Erreur 53 where the file or its folder is missing, 75 for anything else.
  virtual std::string Lit(TexteVue chemin) = 0;
  // Creates the file empty, or empties the one that is there (rights, links and owner stay). Throws 75.
  virtual std::unique_ptr<FichierEcrit> Cree(TexteVue chemin) = 0;
  // Copies a file, contents on the disk when it returns, to a path where nothing may be yet. Throws 75, and
  // then leaves no half copy.
  virtual void Copie(TexteVue de, TexteVue vers) = 0;
  // Throws 75.
  virtual void Supprime(TexteVue chemin) = 0;
  // Something has this path: a file, a folder, a link that leads nowhere …
  virtual bool Existe(TexteVue chemin) = 0;
  // A file, and no folder, has this path.
  virtual bool EstFichier(TexteVue chemin) = 0;
  virtual Texte DossierCourant() = 0;
};

}  // namespace sudoku
