// Solves and explains grids in bulk, with no window system.

#include "apps/lot_appel.h"
#include "apps/lot_deroule.h"
#include "apps/lot_expliquer.h"
#include "apps/lot_resoudre.h"

int main(int argc, char** argv) {
  using namespace sudoku::lot;
  int statut = 0;
  const std::optional<Appel> appel = LisAppel(argc, argv, statut);
  if (!appel) return statut;
  const bool resoudre = appel->commande == "resoudre";
  return Deroule(*appel, [&] { return resoudre ? FaisResoudre(*appel) : FaisExpliquer(*appel); });
}
