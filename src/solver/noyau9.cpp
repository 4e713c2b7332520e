#include "solver/noyau9.h"

#include <cstring>

namespace sudoku {

namespace noyau_base {
void JeuSolve(Cases9& cases, Mode9 mode, Passe9& passe);
}
#if defined(SUDOKU_VERSIONS_X86)
namespace noyau_avx2 {
void JeuSolve(Cases9& cases, Mode9 mode, Passe9& passe);
}
namespace noyau_avx512 {
void JeuSolve(Cases9& cases, Mode9 mode, Passe9& passe);
}
#endif

void Cases9::Vide() {
  std::memset(this, 0, sizeof *this);
  for (int l = 0; l < 9; ++l) {
    for (int c = 0; c < 9; ++c) videsLigne[l][c] = videsColonne[l][c] = 0xFFFF;
  }
}

void Cases9::Pose(int cellule, int symbole) {
  const int l = cellule / 9;
  const int c = cellule % 9;
  const auto bit = static_cast<std::uint16_t>(1 << symbole);
  lignes[l] |= bit;
  colonnes[c] |= bit;
  carres[l / 3 * 3 + c / 3] |= bit;
  videsLigne[l][c] = 0;
  videsColonne[c][l] = 0;
  valeur[cellule] = static_cast<std::uint8_t>(symbole + 1);
  ++remplies;
}

std::vector<JeuSolve9> VersionsJeuSolve9() {
  std::vector<JeuSolve9> versions;
#if defined(SUDOKU_VERSIONS_X86)
  // Where bmi2 is, lzcnt is; clang 14 can't be asked for it.
  const bool avx2 = __builtin_cpu_supports("avx2") && __builtin_cpu_supports("bmi") &&
                    __builtin_cpu_supports("bmi2") && __builtin_cpu_supports("popcnt");
  const bool avx512 = avx2 && __builtin_cpu_supports("avx512bw") && __builtin_cpu_supports("avx512vl") &&
                      __builtin_cpu_supports("avx512dq") && __builtin_cpu_supports("avx512bitalg");
  if (avx512) versions.push_back(noyau_avx512::JeuSolve);
  if (avx2) versions.push_back(noyau_avx2::JeuSolve);
#endif
  versions.push_back(noyau_base::JeuSolve);
  return versions;
}

}  // namespace sudoku
