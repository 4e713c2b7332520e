#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "text/texte.h"

namespace sudoku {

// The longest file that is read, in bytes. A grid of 169 by 169 cells takes 142 805 at most, four for a
// symbol and one for a state; with a thousand games on it a file has 142 947 805, and the names.
inline constexpr std::int64_t kOctetsMax = std::int64_t{144} << 20;

// A file open for writing. Dropped without Ferme, it is closed and failures go unsaid. Operations throw
// Erreur 75 when they fail.
class FichierEcrit {
 public:
  virtual ~FichierEcrit() = default;
  // It wasn't there before it was opened.
  virtual bool Neuf() const = 0;
  // Its length now, in bytes, whoever has written them.
  virtual std::int64_t Taille() = 0;
  // Cuts it to this many bytes; the next of Ecrit go where they went before.
  virtual void Coupe(std::int64_t taille) = 0;
  // Writes behind what it has written so far.
  virtual void Ecrit(std::string_view octets) = 0;
  virtual void VideSurDisque() = 0;  // what was written is on the disk, not only with the system
  virtual void Ferme() = 0;
};

// A file that is there.
struct FichierVu {
  Texte chemin;
  std::int64_t taille = 0;  // in bytes
  std::int64_t change = 0;  // when its content last changed: nanoseconds since 1970
};

// Files as bytes. Paths are taken as they stand, relative to the current directory.
class Fichiers {
 public:
  virtual ~Fichiers() = default;
  // The whole content. Throws Erreur 53 where the file or its folder is missing, 75 for anything else: no
  // rights, a folder, a pipe, more than kOctetsMax …
  virtual std::string Lit(TexteVue chemin) = 0;
  // Opens a file for writing from its start, its content as it was; makes it where there is none. Rights,
  // links and owner of a file that was there stay. Throws 75.
  virtual std::unique_ptr<FichierEcrit> Ouvre(TexteVue chemin) = 0;
  // Copies a file to a new path; the copy is on the disk when it returns. False, and nothing done, where the
  // path is taken. Throws 75, and then leaves no half copy.
  virtual bool Copie(TexteVue de, TexteVue vers) = 0;
  // Throws 75.
  virtual void Supprime(TexteVue chemin) = 0;
  // A file, and no folder, has this path.
  virtual bool EstFichier(TexteVue chemin) = 0;
  // The files, and no folders, whose path begins with this text, in no order. None where their folder can't
  // be read.
  virtual std::vector<FichierVu> Commencant(TexteVue debut) = 0;
  virtual Texte DossierCourant() = 0;
};

}  // namespace sudoku
