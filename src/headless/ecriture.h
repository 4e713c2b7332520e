#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "text/texte.h"

namespace sudoku {

// How sessions are written: words and strings apart by blanks or tabs. A string begins with a double quote
// and ends at one that a blank or the end of the line follows; in it \" \\ \n \r \t and \xHH (00 to 7F) stand
// for one character. What is printed uses the same escapes.

// `texte` in double quotes.
Texte Cite(TexteVue texte);

// A number: an optional "-" and digits. It may be of any length; beyond 64 bits its value stops at the limit.
struct Nombre {
  std::int64_t valeur = 0;
  Texte texte;  // without leading zeros
};
std::optional<Nombre> LitNombre(TexteVue mot);

struct Mot {
  bool chaine = false;  // a string; otherwise a bare word
  bool correct = true;  // False for a string that isn't closed or holds an unknown escape
  Texte texte;
};

// The words and strings of a line, in order. A string that isn't closed takes the rest of the line.
std::vector<Mot> Decoupe(TexteVue ligne);

// "2026-11-24 10:00:00.250", fraction of one to three digits or none: milliseconds since 1970-01-01 00:00:00.
// Nothing for another form or a moment that the calendar lacks.
std::optional<std::int64_t> LitInstant(TexteVue texte);

}  // namespace sudoku
