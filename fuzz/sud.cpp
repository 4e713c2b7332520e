// A game file, and play on what it loaded. The input: a byte n, n bytes that choose the commands, the file.
#include "cible.h"
#include "grid/geometrie.h"
#include "partie.h"
#include "storage/sud_text.h"

namespace sudoku::fuzz {
namespace {

// Larger grids are read and no more: to play on them takes too long for a useful number of inputs.
constexpr std::size_t kCoteMax = 9;

}  // namespace

void Joue(std::string_view octets) {
  Octets entree(octets);
  Octets choix(entree.Morceau(static_cast<std::size_t>(entree.Tire(64))));
  const LectureSud lu = LitSud(entree.Reste());
  const std::size_t cote = lu.VmValeurs.value_or(U"").size();
  if (TailleAcceptable(cote) && cote > kCoteMax) return;
  FichiersMemoire fichiers;
  fichiers[U"/partie.sud"] = entree.Reste();
  Partie(choix, fichiers, R"(start "\"/partie.sud\"")", false).Joue();
}

}  // namespace sudoku::fuzz
