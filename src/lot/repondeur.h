#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "solver/auto_driver.h"

namespace sudoku::lot {

// Answers every box of a run; keeps the last message, and counts those of the search.
class Repondeur : public PlateauAuto {
 public:
  void Affiche() override {}
  void Message(TexteVue texte) override;

  void Commence() { retours_ = 0; }
  std::uint64_t Retours() const { return retours_; }
  const std::string& Final() const { return final_; }
  // The n-th number in the final message, from 0; "0" where it has none.
  std::string_view Nombre(int n) const;

 private:
  std::uint64_t retours_ = 0;
  Texte dernier_;
  std::string final_;  // the same in UTF-8
};

}  // namespace sudoku::lot
