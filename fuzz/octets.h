#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string_view>

namespace sudoku::fuzz {

// The bytes of an input, from which whatever is done is chosen, one after the other. Behind the last one
// there are zeros.
class Octets {
 public:
  explicit Octets(std::string_view octets) : reste_(octets) {}

  bool Epuise() const { return reste_.empty(); }
  std::string_view Reste() const { return reste_; }
  // 0 to n-1; n from 1 to 256.
  int Tire(int n) { return Octet() % n; }
  // One of the words.
  const char* Un(std::initializer_list<const char*> mots) {
    return mots.begin()[Tire(static_cast<int>(mots.size()))];
  }
  // Up to n bytes as they stand.
  std::string_view Morceau(std::size_t n) {
    const std::string_view morceau = reste_.substr(0, n);
    reste_.remove_prefix(morceau.size());
    return morceau;
  }

 private:
  std::uint8_t Octet() {
    const std::string_view morceau = Morceau(1);
    return morceau.empty() ? std::uint8_t{0} : static_cast<std::uint8_t>(morceau[0]);
  }

  std::string_view reste_;
};

}  // namespace sudoku::fuzz
