#include "text/texte.h"

#include <utf8proc.h>

#include <algorithm>

namespace sudoku {
namespace {

constexpr char32_t kRemplacement = 0xFFFD;

// Reads one code point at `octets[i]` and steps over it; false (and one byte further) where it is ill-formed.
bool LitCodePoint(std::string_view octets, std::size_t& i, char32_t& c) {
  utf8proc_int32_t code = -1;
  const auto lus = utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(octets.data()) + i,
                                    static_cast<utf8proc_ssize_t>(octets.size() - i), &code);
  if (lus <= 0) {
    ++i;
    return false;
  }
  i += static_cast<std::size_t>(lus);
  c = static_cast<char32_t>(code);
  return true;
}

}  // namespace

char32_t Minuscule(char32_t c) {
  if (c < 0x80) return (c >= U'A' && c <= U'Z') ? c + 0x20 : c;
  return static_cast<char32_t>(utf8proc_tolower(static_cast<utf8proc_int32_t>(c)));
}

bool Egal(char32_t a, char32_t b) {
  return a == b || Minuscule(a) == Minuscule(b);
}

bool Egal(TexteVue a, TexteVue b) {
  return std::ranges::equal(a, b, [](char32_t x, char32_t y) { return Egal(x, y); });
}

std::size_t Cherche(TexteVue texte, TexteVue cherche, std::size_t debut) {
  for (std::size_t i = debut; i + cherche.size() <= texte.size(); ++i) {
    if (Egal(texte.substr(i, cherche.size()), cherche)) return i;
  }
  return TexteVue::npos;
}

bool Contient(TexteVue texte, TexteVue cherche) {
  return Cherche(texte, cherche) != TexteVue::npos;
}

Texte Sans(TexteVue texte, TexteVue retire) {
  if (retire.empty()) return Texte(texte);
  Texte reste;
  std::size_t debut = 0;
  for (std::size_t trouve; (trouve = Cherche(texte, retire, debut)) != TexteVue::npos;
       debut = trouve + retire.size()) {
    reste += texte.substr(debut, trouve - debut);
  }
  return reste += texte.substr(debut);
}

Texte AvecTirets(TexteVue texte) {
  Texte resultat;
  for (const char32_t c : texte) {
    if (!resultat.empty()) resultat += U'-';
    resultat += c;
  }
  return resultat;
}

Texte Decimal(std::int64_t nombre) {
  const std::string chiffres = std::to_string(nombre);
  return Texte(chiffres.begin(), chiffres.end());
}

Texte HeuresMinutesSecondes(std::int64_t secondes) {
  const auto deuxChiffres = [](std::int64_t nombre) { return (nombre < 10 ? U"0" : U"") + Decimal(nombre); };
  return deuxChiffres(secondes / 3600) + U":" + deuxChiffres(secondes / 60 % 60) + U":" +
         deuxChiffres(secondes % 60);
}

std::size_t CaracteresUtf8(std::string_view octets) {
  std::size_t nombre = 0;
  char32_t c = 0;
  for (std::size_t i = 0; i < octets.size(); ++nombre) LitCodePoint(octets, i, c);
  return nombre;
}

Texte DepuisUtf8(std::string_view octets) {
  Texte texte;
  texte.reserve(CaracteresUtf8(octets));
  for (std::size_t i = 0; i < octets.size();) {
    char32_t c = kRemplacement;
    texte += LitCodePoint(octets, i, c) ? c : kRemplacement;
  }
  return texte;
}

std::string Montrable(std::string_view octets, std::string_view permis) {
  constexpr std::string_view kHexa = "0123456789ABCDEF";
  std::string montre;
  for (std::size_t i = 0; i < octets.size();) {
    const std::size_t debut = i;
    char32_t c = 0;
    const bool forme = LitCodePoint(octets, i, c);
    const std::string_view ici = octets.substr(debut, i - debut);
    const bool controle = c < U' ' || (c >= 0x7F && c < 0xA0);
    if (forme && (!controle || permis.find(ici) != std::string_view::npos)) {
      montre += ici;
    } else {
      const auto code = static_cast<unsigned char>(forme ? c : static_cast<unsigned char>(ici.front()));
      ((montre += "\\x") += kHexa[code / 16]) += kHexa[code % 16];
    }
  }
  return montre;
}

std::optional<Texte> DepuisUtf8Strict(std::string_view octets) {
  Texte texte;
  for (std::size_t i = 0; i < octets.size();) {
    char32_t c = 0;
    if (!LitCodePoint(octets, i, c)) return std::nullopt;
    texte += c;
  }
  return texte;
}

std::string VersUtf8(TexteVue texte) {
  std::string octets;
  octets.reserve(texte.size());
  for (const char32_t c : texte) {
    utf8proc_uint8_t tampon[4];
    const bool tenable = utf8proc_codepoint_valid(static_cast<utf8proc_int32_t>(c)) != 0;
    const auto n = utf8proc_encode_char(static_cast<utf8proc_int32_t>(tenable ? c : kRemplacement), tampon);
    octets.append(reinterpret_cast<const char*>(tampon), static_cast<std::size_t>(n));
  }
  return octets;
}

}  // namespace sudoku
