// One version of the engine: the build compiles this file once for each instruction set, with SUDOKU_MOTEUR
// as the version's name. Everything that a version compiles lies in the namespace of that name, so that no
// two of them share a function.
#include "engine/moteur_voies.h"

namespace sudoku::SUDOKU_MOTEUR {

std::unique_ptr<Moteur> Fabrique(int N) {
  switch (N) {
    case 4:
      return std::make_unique<MoteurVoies<2>>();
    case 9:
      return std::make_unique<MoteurVoies<3>>();
    case 16:
      return std::make_unique<MoteurVoies<4>>();
    case 25:
      return std::make_unique<MoteurVoies<5>>();
    case 36:
      return std::make_unique<MoteurVoies<6>>();
    case 49:
      return std::make_unique<MoteurVoies<7>>();
    case 64:
      return std::make_unique<MoteurVoies<8>>();
    case 81:
      return std::make_unique<MoteurVoies<9>>();
    case 100:
      return std::make_unique<MoteurVoies<10>>();
    case 121:
      return std::make_unique<MoteurVoies<11>>();
    case 144:
      return std::make_unique<MoteurVoies<12>>();
    case 169:
      return std::make_unique<MoteurVoies<13>>();
    default:
      return FabriqueTextes(N);
  }
}

}  // namespace sudoku::SUDOKU_MOTEUR
