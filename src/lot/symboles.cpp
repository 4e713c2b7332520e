#include "lot/symboles.h"

namespace sudoku::lot {

void SymbolesUtf8::Ecrit(const Alphabet& alphabet, std::span<const Code> codes, std::string& sortie) {
  for (const Code code : codes) {
    if (code == kVide) {
      sortie += '.';
    } else if (const std::string& texte = De(alphabet, code); texte.size() == 1) {
      sortie += texte.front();  // the usual case, and far cheaper
    } else {
      sortie += texte;
    }
  }
}

void SymbolesUtf8::Etend(const Alphabet& alphabet, std::size_t rang) {
  for (std::size_t i = textes_.size(); i <= rang; ++i) {
    const std::string texte = VersUtf8(alphabet.TexteDe(static_cast<Code>(i) - 1));
    textes_.push_back(forme_ == nullptr ? texte : forme_(texte));
  }
}

void SymbolesUtf8::EtendCourts(const Alphabet& alphabet, std::size_t rang) {
  for (std::size_t i = courts_.size(); i <= rang; ++i) {
    const std::string& texte = De(alphabet, static_cast<Code>(i));
    Court& court = courts_.emplace_back();
    court.longueur = texte.copy(court.octets, kCourt);
  }
}

}  // namespace sudoku::lot
