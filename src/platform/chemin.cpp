#include "platform/chemin.h"

#include <algorithm>
#include <optional>

namespace sudoku {
namespace {

constexpr char32_t kOctet = 0xDC00;

}  // namespace

Texte DepuisChemin(std::string_view octets) {
  constexpr std::size_t kLongueurMax = 4;
  Texte chemin;
  while (!octets.empty()) {
    std::size_t longueur = 1;
    std::optional<Texte> caractere = DepuisUtf8Strict(octets.substr(0, 1));
    while (!caractere && ++longueur <= kLongueurMax) caractere = DepuisUtf8Strict(octets.substr(0, longueur));
    if (!caractere) longueur = 1;
    chemin += caractere ? *caractere : Texte(1, kOctet + static_cast<unsigned char>(octets.front()));
    octets.remove_prefix(std::min(longueur, octets.size()));
  }
  return chemin;
}

std::string VersChemin(TexteVue chemin) {
  std::string octets;
  for (const char32_t c : chemin) {
    if (c >= kOctet + 0x80 && c <= kOctet + 0xFF) {
      octets += static_cast<char>(c - kOctet);
    } else {
      octets += VersUtf8(TexteVue(&c, 1));
    }
  }
  return octets;
}

}  // namespace sudoku
