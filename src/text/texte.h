#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace sudoku {

// All text of the game: symbols, contents of cells, sentences, captions. One element is one Unicode code
// point, so that a symbol is one character whatever its script. Comparison, search and deletion ignore case,
// code point by code point, by the simple lower case of Unicode: É equals é, İ equals i; ς and σ stay two.
using Texte = std::u32string;
using TexteVue = std::u32string_view;

// The simple lower case of one code point.
char32_t Minuscule(char32_t c);

// Equal, ignoring case.
bool Egal(char32_t a, char32_t b);
bool Egal(TexteVue a, TexteVue b);

// Position of the first `cherche` in `texte` from `debut` on, ignoring case; npos if there is none.
std::size_t Cherche(TexteVue texte, TexteVue cherche, std::size_t debut = 0);

// `cherche` stands somewhere in `texte`, ignoring case. The empty text stands in every text.
bool Contient(TexteVue texte, TexteVue cherche);

// `texte` without any occurrence of `retire`, ignoring case: one run from left to right, so that an
// occurrence that only the deletion brings together stays. An empty `retire` deletes nothing.
Texte Sans(TexteVue texte, TexteVue retire);

// The symbols of `texte` with a "-" between neighbours: "128" gives "1-2-8".
Texte AvecTirets(TexteVue texte);

// A whole number in plain decimal.
Texte Decimal(std::int64_t nombre);

// Seconds, none negative, as "00:03:17": hours of two digits or more, minutes, seconds.
Texte HeuresMinutesSecondes(std::int64_t secondes);

// UTF-8 to text and back. Ill-formed bytes read as U+FFFD each; a code point that UTF-8 can't hold (a
// surrogate, above U+10FFFF) is written as U+FFFD.
Texte DepuisUtf8(std::string_view octets);
// How many characters that gives.
std::size_t CaracteresUtf8(std::string_view octets);
std::string VersUtf8(TexteVue texte);

// UTF-8 as a terminal or a message may show it: control characters, among them those that begin an escape,
// and ill-formed bytes are written as "\\x1B", all but those in `permis`.
std::string Montrable(std::string_view octets, std::string_view permis = {});

// As DepuisUtf8, but nothing where the bytes are ill-formed.
std::optional<Texte> DepuisUtf8Strict(std::string_view octets);

}  // namespace sudoku
