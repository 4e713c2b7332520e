#include "storage/temps.h"

#include <algorithm>
#include <cmath>

namespace sudoku {
namespace {

constexpr std::int64_t kMillisecondesMax = std::int64_t{1} << 53;

bool EstChiffre(char32_t c) {
  return c >= U'0' && c <= U'9';
}

// ":", then 00 to 59; -1 for anything else.
int LitSoixantieme(TexteVue texte) {
  if (texte[0] != U':' || texte[1] < U'0' || texte[1] > U'5' || !EstChiffre(texte[2])) return -1;
  return static_cast<int>((texte[1] - U'0') * 10 + (texte[2] - U'0'));
}

}  // namespace

Texte TempsEnTexte(double jours) {
  // By way of milliseconds, which the days hold exactly enough: a half second must not be lost to the
  // division.
  const auto millisecondes = std::max<std::int64_t>(0, std::llround(jours * 86'400'000.0));
  return HeuresMinutesSecondes((millisecondes + 500) / 1000);
}

std::optional<double> TexteEnTemps(TexteVue texte) {
  constexpr std::size_t kFin = 6;  // ":mm:ss"
  if (texte.size() <= kFin) return std::nullopt;
  const TexteVue chiffres = texte.substr(0, texte.size() - kFin);
  const int minutes = LitSoixantieme(texte.substr(chiffres.size()));
  const int secondes = LitSoixantieme(texte.substr(chiffres.size() + 3));
  if (minutes < 0 || secondes < 0) return std::nullopt;
  std::int64_t heures = 0;
  for (const char32_t c : chiffres) {
    if (!EstChiffre(c)) return std::nullopt;
    heures = heures * 10 + (c - U'0');
    if (heures > kMillisecondesMax / 3'600'000 - 1) return std::nullopt;
  }
  return Jours(((heures * 60 + minutes) * 60 + secondes) * 1000);
}

}  // namespace sudoku
