#include "text/cp1252.h"

#include <algorithm>
#include <array>
#include <utility>

namespace sudoku {
namespace {

constexpr std::string_view kMarqueUtf8 = "\xEF\xBB\xBF";

// The characters of the bytes 80 to 9F; all others are the code points of the same number.
constexpr std::array<char32_t, 32> kHauts = {U'€', 0x81, U'‚', U'ƒ', U'„', U'…', U'†', U'‡', U'ˆ', U'‰', U'Š',
                                             U'‹', U'Œ', 0x8D, U'Ž', 0x8F, 0x90, U'‘', U'’', U'“', U'”', U'•',
                                             U'–', U'—', U'˜', U'™', U'š', U'›', U'œ', 0x9D, U'ž', U'Ÿ'};

char32_t CaractereDe(unsigned char octet) {
  return octet >= 0x80 && octet <= 0x9F ? kHauts[octet - 0x80U] : octet;
}

std::optional<char> OctetDe(char32_t c) {
  if (c < 0x80 || (c > 0x9F && c <= 0xFF)) return static_cast<char>(c);
  const auto* const trouve = std::ranges::find(kHauts, c);
  if (trouve == kHauts.end()) return std::nullopt;
  return static_cast<char>(0x80 + (trouve - kHauts.begin()));
}

}  // namespace

Texte DepuisCp1252(std::string_view octets) {
  Texte texte(octets.size(), U'\0');
  std::ranges::transform(octets, texte.begin(),
                         [](char c) { return CaractereDe(static_cast<unsigned char>(c)); });
  return texte;
}

std::optional<std::string> VersCp1252(TexteVue texte) {
  std::string octets;
  octets.reserve(texte.size());
  for (const char32_t c : texte) {
    const auto octet = OctetDe(c);
    if (!octet) return std::nullopt;
    octets += *octet;
  }
  return octets;
}

FichierTexte& FichierTexte::operator+=(TexteVue morceau) {
  if (!utf8_) {
    if (const auto octets = VersCp1252(morceau)) {
      octets_ += *octets;
      return *this;
    }
    PasseEnUtf8();
  }
  octets_ += VersUtf8(morceau);
  return *this;
}

std::string FichierTexte::Octets() && {
  if (!utf8_ && octets_.starts_with(kMarqueUtf8)) PasseEnUtf8();
  return std::move(octets_);
}

void FichierTexte::PasseEnUtf8() {
  utf8_ = true;
  octets_ = std::string(kMarqueUtf8) + VersUtf8(DepuisCp1252(octets_));
}

LignesFichier::LignesFichier(std::string_view octets)
    : reste_(octets), utf8_(octets.starts_with(kMarqueUtf8)) {
  if (utf8_) reste_.remove_prefix(kMarqueUtf8.size());
}

std::size_t LignesFichier::Caracteres() const {
  return utf8_ ? CaracteresUtf8(reste_) : reste_.size();
}

Texte LignesFichier::Suivante() {
  const std::size_t lf = reste_.find('\n');
  std::string_view ligne = reste_.substr(0, lf);
  reste_.remove_prefix(lf == std::string_view::npos ? reste_.size() : lf + 1);
  if (lf != std::string_view::npos && ligne.ends_with('\r')) ligne.remove_suffix(1);
  return utf8_ ? DepuisUtf8(ligne) : DepuisCp1252(ligne);
}

}  // namespace sudoku
