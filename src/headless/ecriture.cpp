#include "headless/ecriture.h"

#include <chrono>
#include <limits>

namespace sudoku {
namespace {

bool Blanc(char32_t c) {
  return c == U' ' || c == U'\t';
}
bool Chiffre(char32_t c) {
  return c >= U'0' && c <= U'9';
}

int ChiffreHexa(char32_t c) {
  if (Chiffre(c)) return static_cast<int>(c - U'0');
  if (c >= U'A' && c <= U'F') return static_cast<int>(c - U'A') + 10;
  if (c >= U'a' && c <= U'f') return static_cast<int>(c - U'a') + 10;
  return -1;
}

// Takes the escape that begins behind the backslash at `i` - 1 and moves `i` behind it.
std::optional<char32_t> Echappement(TexteVue ligne, std::size_t& i) {
  if (i >= ligne.size()) return std::nullopt;
  switch (ligne[i++]) {
    case U'"':
      return U'"';
    case U'\\':
      return U'\\';
    case U'n':
      return U'\n';
    case U'r':
      return U'\r';
    case U't':
      return U'\t';
    case U'x': {
      if (i + 2 > ligne.size()) return std::nullopt;
      const int haut = ChiffreHexa(ligne[i]);
      const int bas = ChiffreHexa(ligne[i + 1]);
      if (haut < 0 || haut > 7 || bas < 0) return std::nullopt;
      i += 2;
      return static_cast<char32_t>(haut * 16 + bas);
    }
    default:
      return std::nullopt;
  }
}

// The string whose opening quote stands at `i` - 1; `i` moves behind it.
Mot Chaine(TexteVue ligne, std::size_t& i) {
  Mot mot{.chaine = true, .correct = true, .texte = {}};
  while (i < ligne.size()) {
    const char32_t c = ligne[i++];
    if (c == U'"' && (i == ligne.size() || Blanc(ligne[i]))) return mot;
    if (c != U'\\') {
      mot.texte += c;
    } else if (const auto echappe = Echappement(ligne, i)) {
      mot.texte += *echappe;
    } else {
      mot.correct = false;
    }
  }
  mot.correct = false;
  return mot;
}

// The fraction of a second: nothing written, or a point and one to three digits.
std::optional<int> Fraction(TexteVue texte) {
  if (texte.empty()) return 0;
  if (texte.front() != U'.' || texte.size() < 2 || texte.size() > 4) return std::nullopt;
  int millisecondes = 0;
  int poids = 100;
  for (const char32_t c : texte.substr(1)) {
    if (!Chiffre(c)) return std::nullopt;
    millisecondes += poids * static_cast<int>(c - U'0');
    poids /= 10;
  }
  return millisecondes;
}

}  // namespace

Texte Cite(TexteVue texte) {
  constexpr TexteVue kHexa = U"0123456789ABCDEF";
  Texte resultat = U"\"";
  for (const char32_t c : texte) {
    switch (c) {
      case U'"':
        resultat += U"\\\"";
        break;
      case U'\\':
        resultat += U"\\\\";
        break;
      case U'\n':
        resultat += U"\\n";
        break;
      case U'\r':
        resultat += U"\\r";
        break;
      case U'\t':
        resultat += U"\\t";
        break;
      default:
        if (c < 0x20 || c == 0x7F) {
          resultat += U"\\x";
          resultat += kHexa[c / 16];
          resultat += kHexa[c % 16];
        } else {
          resultat += c;
        }
    }
  }
  return resultat + U"\"";
}

std::optional<Nombre> LitNombre(TexteVue mot) {
  const bool negatif = mot.starts_with(U'-');
  if (negatif) mot.remove_prefix(1);
  if (mot.empty()) return std::nullopt;
  constexpr std::int64_t kMax = std::numeric_limits<std::int64_t>::max();
  std::int64_t valeur = 0;
  for (const char32_t c : mot) {
    if (!Chiffre(c)) return std::nullopt;
    const std::int64_t chiffre = c - U'0';
    valeur = valeur > (kMax - chiffre) / 10 ? kMax : valeur * 10 + chiffre;
  }
  while (mot.size() > 1 && mot.front() == U'0') mot.remove_prefix(1);
  const bool moins = negatif && valeur != 0;
  Nombre nombre{.valeur = moins ? -valeur : valeur, .texte = {}};
  if (moins) nombre.texte += U'-';
  nombre.texte += mot;
  return nombre;
}

std::vector<Mot> Decoupe(TexteVue ligne) {
  std::vector<Mot> mots;
  std::size_t i = 0;
  while (i < ligne.size()) {
    if (Blanc(ligne[i])) {
      ++i;
    } else if (ligne[i] == U'"') {
      mots.push_back(Chaine(ligne, ++i));
    } else {
      const std::size_t fin = std::min(ligne.find_first_of(U" \t", i), ligne.size());
      mots.push_back({.chaine = false, .correct = true, .texte = Texte(ligne.substr(i, fin - i))});
      i = fin;
    }
  }
  return mots;
}

std::optional<std::int64_t> LitInstant(TexteVue texte) {
  constexpr TexteVue kForme = U"0000-00-00 00:00:00";
  if (texte.size() < kForme.size()) return std::nullopt;
  for (std::size_t i = 0; i < kForme.size(); ++i) {
    const bool bon = kForme[i] == U'0' ? Chiffre(texte[i]) : texte[i] == kForme[i];
    if (!bon) return std::nullopt;
  }
  const auto nombre = [&](std::size_t debut, std::size_t longueur) {
    return static_cast<int>(LitNombre(texte.substr(debut, longueur))->valeur);
  };
  const auto millisecondes = Fraction(texte.substr(kForme.size()));
  using namespace std::chrono;
  const year_month_day jour{year(nombre(0, 4)), month(static_cast<unsigned>(nombre(5, 2))),
                            day(static_cast<unsigned>(nombre(8, 2)))};
  const std::int64_t heure = nombre(11, 2), minute = nombre(14, 2), seconde = nombre(17, 2);
  if (!millisecondes || !jour.ok() || nombre(0, 4) == 0) return std::nullopt;
  if (heure > 23 || minute > 59 || seconde > 59) return std::nullopt;
  const std::int64_t jours = sys_days(jour).time_since_epoch().count();
  return ((jours * 24 + heure) * 60 + minute) * 60'000 + seconde * 1000 + *millisecondes;
}

}  // namespace sudoku
