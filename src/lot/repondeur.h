#pragma once

#include <string>

#include "solver/auto_driver.h"

namespace sudoku::lot {

// Answers every box of a run and keeps the last message.
class Repondeur : public PlateauAuto {
 public:
  void Affiche() override {}
  void Message(TexteVue texte) override { dernier_ = texte; }
  // That message in UTF-8.
  const std::string& Final();

 private:
  Texte dernier_;
  Texte traduit_;
  std::string final_;  // `traduit_` in UTF-8
};

}  // namespace sudoku::lot
