#pragma once

#include <cstdint>

#include "engine/bits.h"
#include "grid/grille.h"

namespace sudoku::SUDOKU_MOTEUR {
namespace {

// Writes the deductions of one pass into the grid's journal. See the concept Usage.
class Greffier {
 public:
  static constexpr bool kFaits = true;

  void Commence(Bloc& bloc) {
    bloc_ = &bloc;
    bloc.journal.Efface();
  }

  bool Vide(int cellule) const { return bloc_->saisie[static_cast<std::size_t>(cellule + 1)] == kVide; }
  template <class... B>
  std::uint32_t NoteArgument(Argument argument, const B&... masques) {
    argument.masques = static_cast<std::uint32_t>(bloc_->journal.mots.size());
    (Mots(masques), ...);
    bloc_->journal.arguments.push_back(argument);
    return static_cast<std::uint32_t>(bloc_->journal.arguments.size() - 1);
  }
  void NoteFait(int cellule, std::uint32_t argument) {
    bloc_->journal.faits.push_back({cellule + 1, argument});
  }
  template <class B>
  void NoteFait(int cellule, std::uint32_t argument, const B& exclus) {
    const auto debut = static_cast<std::int32_t>(bloc_->journal.mots.size());
    Mots(exclus);
    bloc_->journal.faits.push_back({cellule + 1, argument, debut});
  }

 private:
  // As many words as the grid has for a set.
  template <class B>
  void Mots(const B& masque) {
    for (int i = 0; i < bloc_->mots; ++i) {
      bloc_->journal.mots.push_back(i < kMotsDe<B> ? Mot(masque, i) : 0);
    }
  }

  Bloc* bloc_ = nullptr;
};

}  // namespace
}  // namespace sudoku::SUDOKU_MOTEUR
