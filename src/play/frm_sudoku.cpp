#include "play/frm_sudoku.h"

#include <functional>
#include <string_view>
#include <utility>

namespace sudoku {
namespace {

void BrancheMenus(Fenetre& fenetre, Commands& commandes, Stockage& stockage, APropos& aPropos) {
  const auto branche = [&](std::string_view nom, std::function<void()> handler) {
    fenetre.TrouveArticle(nom)->Click = std::move(handler);
  };
  branche("MnuInit", [&] { commandes.MnuInit_Click(); });
  branche("MnuStart", [&] { commandes.MnuStart_Click(); });
  branche("MnuRestart", [&] { commandes.MnuRestart_Click(); });
  branche("MnuReinit", [&] { commandes.MnuReinit_Click(); });
  branche("MnuPartie", [&] { stockage.MnuPartie_Click(); });
  branche("MnuLoad", [&] { stockage.MnuLoad_Click(); });
  branche("MnuSave", [&] { stockage.MnuSave_Click(); });
  branche("MnuQuit", [&] { commandes.MnuQuit_Click(); });
  branche("MnuAbout", [&] { aPropos.MnuAbout_Click(); });
  branche("MnuAssist", [&] { commandes.MnuAssist_Click(); });
  branche("MnuSolver", [&] { commandes.MnuSolver_Click(); });
  branche("MnuSolveur2", [&] { commandes.MnuSolveur2_Click(); });
  branche("MnuScores", [&] { stockage.MnuScores_Click(); });
}

}  // namespace

void BrancheFRMSudoku(Fenetre& fenetre, Commands& commandes, CellInput& saisie, Chrono& chrono,
                      Stockage& stockage, APropos& aPropos) {
  BrancheMenus(fenetre, commandes, stockage, aPropos);
  fenetre.KeyDown = [&](int KeyCode) { saisie.Deplacement(KeyCode); };
  fenetre.QueryUnload = [&](int UnloadMode) { return commandes.Form_QueryUnload(UnloadMode); };
  fenetre.plateau.Change = [&](int Index) { saisie.ChangeCase(Index); };
  fenetre.plateau.GotFocus = [&](int Index) { saisie.TxtCase_GotFocus(Index); };
  fenetre.TrouveMinuterie("Tmr")->Timer = [&] { chrono.Tmr_Timer(); };
}

}  // namespace sudoku
