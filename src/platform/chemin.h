#pragma once

#include <string>
#include <string_view>

#include "text/texte.h"

namespace sudoku {

// Paths, which the machine has as bytes: UTF-8 as a rule, but any will do. A byte b that isn't UTF-8 is the
// code point DC00 + b, which no text holds otherwise, so that every path comes back as it was.
Texte DepuisChemin(std::string_view octets);
std::string VersChemin(TexteVue chemin);

}  // namespace sudoku
