// Solves and explains grids in bulk, with no window system.

#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <new>
#include <string_view>
#include <system_error>

#include "lot/appel.h"
#include "lot/demontrer.h"
#include "lot/deroule.h"
#include "lot/expliquer.h"
#include "lot/resoudre.h"
#include "lot/sortie.h"
#include "lot/sud.h"
#include "lot/verifier.h"

namespace sudoku::lot {
namespace {

constexpr int kEchec = 1;

int Renonce(std::string_view raison) {
  EcritTout(STDERR_FILENO, raison);
  return kEchec;
}

// Any thread may come here, and none goes on.
void FinitSansMemoire() {
  std::_Exit(Renonce("sudoku-lot : mémoire insuffisante\n"));
}

int Execute(const Appel& appel) {
  if (appel.commande == "importer") return Importe(appel);
  if (appel.commande == "exporter") return Exporte(appel);
  if (appel.commande == "demontrer") return Demontre(appel);
  const auto fabrique = appel.commande == "resoudre"    ? FabriqueResoudre
                        : appel.commande == "expliquer" ? FabriqueExpliquer
                                                        : FabriqueVerifier;
  return Deroule(appel, [&] { return fabrique(appel); });
}

}  // namespace
}  // namespace sudoku::lot

int main(int argc, char** argv) {
  using namespace sudoku::lot;
  std::set_new_handler(FinitSansMemoire);
  std::signal(SIGXFSZ, SIG_IGN);  // a write beyond the limit fails, and ends nothing
  int statut = 0;
  const std::optional<Appel> appel = LitAppel(argc, argv, statut);
  if (!appel) return statut;
  try {
    return Execute(*appel);
  } catch (const std::system_error&) {
    return Renonce("sudoku-lot : le système ne donne pas de fil d'exécution\n");
  }
}
