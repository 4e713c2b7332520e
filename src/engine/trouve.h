#pragma once

#include <type_traits>

#include "engine/trouve_comptes.h"
#include "engine/trouve_voies.h"

namespace sudoku::SUDOKU_MOTEUR {
namespace {

// The Trouveur for a side. More lanes than those of side 5 take too many registers: comparing them all costs
// more than counting first.
template <int S>
using TrouveurDe = std::conditional_t<S <= 5, TrouveVoies<S>, TrouveComptes<S>>;

template <int S, class U>
using Deductions = DeductionsSur<TrouveurDe<S>, U>;

}  // namespace
}  // namespace sudoku::SUDOKU_MOTEUR
