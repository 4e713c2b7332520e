#pragma once

#include <optional>
#include <string>
#include <vector>

#include "text/texte.h"

namespace sudoku::lot {

enum class Format { kTexte, kJson, kHtml };

// What one call of sudoku-lot asks for.
struct Appel {
  std::string commande;
  Texte symboles = U"123456789";
  int processus = 1;  // 1 or more
  int passes = 2;     // 1 or 2
  bool deduction = false;
  bool texte = false;
  bool supposer = false;
  Format format = Format::kTexte;
  std::vector<std::string> fichiers;  // "-" is standard input; never empty
};

// Reads the words of the call. Nothing if there is nothing to run: `statut` is then 0 after the help, 2 after
// the message about a wrong call.
std::optional<Appel> LitAppel(int argc, const char* const* argv, int& statut);

}  // namespace sudoku::lot
