// Solves and explains grids in bulk, with no window system.

#include "lot/appel.h"
#include "lot/deroule.h"
#include "lot/expliquer.h"
#include "lot/resoudre.h"
#include "lot/sud.h"
#include "lot/verifier.h"

int main(int argc, char** argv) {
  using namespace sudoku::lot;
  int statut = 0;
  const std::optional<Appel> appel = LisAppel(argc, argv, statut);
  if (!appel) return statut;
  if (appel->commande == "importer") return Importe(*appel);
  if (appel->commande == "exporter") return Exporte(*appel);
  const auto fais = appel->commande == "resoudre"    ? FaisResoudre
                    : appel->commande == "expliquer" ? FaisExpliquer
                                                     : FaisVerifier;
  return Deroule(*appel, [&] { return fais(*appel); });
}
