#include "solver/noyau.h"

#include "engine/processeur.h"

namespace sudoku {

namespace version_base {
template <int S>
void Resout(Cases<S>& cases, Appui appui, Passe<S>& passe);
}
#if defined(SUDOKU_VERSION_AVX2)
namespace version_avx2 {
template <int S>
void Resout(Cases<S>& cases, Appui appui, Passe<S>& passe);
}
#endif
#if defined(SUDOKU_VERSION_AVX512)
namespace version_avx512 {
template <int S>
void Resout(Cases<S>& cases, Appui appui, Passe<S>& passe);
}
#endif

template <int S>
std::vector<Noyau<S>> VersionsNoyau() {
  std::vector<Noyau<S>> versions;
#if defined(SUDOKU_VERSION_AVX512)
  if (MeilleuresInstructions() >= Instructions::kAvx512) versions.push_back(version_avx512::Resout<S>);
#endif
#if defined(SUDOKU_VERSION_AVX2)
  if (MeilleuresInstructions() >= Instructions::kAvx2) versions.push_back(version_avx2::Resout<S>);
#endif
  versions.push_back(version_base::Resout<S>);
  return versions;
}

template std::vector<Noyau<3>> VersionsNoyau();
template std::vector<Noyau<4>> VersionsNoyau();
template std::vector<Noyau<5>> VersionsNoyau();
template std::vector<Noyau<6>> VersionsNoyau();
template std::vector<Noyau<7>> VersionsNoyau();
template std::vector<Noyau<8>> VersionsNoyau();

}  // namespace sudoku
