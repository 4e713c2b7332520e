#include "lot/repondeur.h"

namespace sudoku::lot {

const std::string& Repondeur::Final() {
  if (traduit_ != dernier_) final_ = VersUtf8(traduit_ = dernier_);
  return final_;
}

}  // namespace sudoku::lot
