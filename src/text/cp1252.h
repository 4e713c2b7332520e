#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "text/texte.h"

namespace sudoku {

// Code page 1252, one byte a character. Its five undefined bytes (81, 8D, 8F, 90, 9D) stand for the code
// points of the same number, so that every sequence of bytes is a text and comes back as it was.
Texte DepuisCp1252(std::string_view octets);
// Nothing where the page lacks a character of the text.
std::optional<std::string> VersCp1252(TexteVue texte);

// A whole text as a file holds it: code page 1252, or UTF-8 behind the bytes EF BB BF where the page lacks a
// character, or where the text's bytes in the page would begin with those three. It grows piece by piece, and
// only its bytes are kept.
class FichierTexte {
 public:
  FichierTexte& operator+=(TexteVue morceau);
  FichierTexte& operator+=(char32_t c) { return *this += TexteVue(&c, 1); }
  std::string Octets() &&;

 private:
  void PasseEnUtf8();

  std::string octets_;
  bool utf8_ = false;
};

// The lines of a file's bytes, which must outlive it, in either encoding; ill-formed UTF-8 reads as U+FFFD. A
// line ends at LF, and a CR just before the LF belongs to the line end; what follows the last LF is a line
// unless it is empty.
class LignesFichier {
 public:
  explicit LignesFichier(std::string_view octets);
  bool Fin() const { return reste_.empty(); }
  // How many characters are left, with those of the line ends.
  std::size_t Caracteres() const;
  // The next line, without its end. Not at Fin.
  Texte Suivante();

 private:
  std::string_view reste_;
  bool utf8_;
};

}  // namespace sudoku
