#pragma once

#include <cstring>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "grid/alphabet.h"

namespace sudoku::lot {

// The texts of cells as output wants them, in UTF-8, each worked out once. Serves one alphabet.
class SymbolesUtf8 {
 public:
  // `forme` makes the output form of a text that is already UTF-8.
  explicit SymbolesUtf8(std::string (*forme)(std::string_view) = nullptr) : forme_(forme) {}

  const std::string& De(const Alphabet& alphabet, Code code) {
    const auto rang = static_cast<std::size_t>(code + 1);
    if (rang >= textes_.size()) Etend(alphabet, rang);
    return textes_[rang];
  }

  // Room for one symbol in the output form, whatever it is: an escape has six characters.
  static constexpr std::size_t kCourt = 8;
  // Writes the symbol at this position; kCourt characters from `ou` on are overwritten. Where it ends.
  char* Pose(const Alphabet& alphabet, int position, char* ou) {
    const auto rang = static_cast<std::size_t>(position);
    if (rang >= courts_.size()) EtendCourts(alphabet, rang);
    std::memcpy(ou, courts_[rang].octets, kCourt);
    return ou + courts_[rang].longueur;
  }

  // Appends the contents of cells in a row, "." for an empty one.
  void Ecrit(const Alphabet& alphabet, std::span<const Code> codes, std::string& sortie);

 private:
  struct Court {
    char octets[kCourt];
    std::size_t longueur;
  };

  void EtendCourts(const Alphabet& alphabet, std::size_t rang);
  void Etend(const Alphabet& alphabet, std::size_t rang);

  std::string (*forme_)(std::string_view);
  std::vector<std::string> textes_;  // by code + 1: element 0 is the empty text
  std::vector<Court> courts_;        // by position
};

}  // namespace sudoku::lot
