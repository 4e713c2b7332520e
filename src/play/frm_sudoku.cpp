#include "play/frm_sudoku.h"

#include <string_view>

#include "play/conforts_jeu.h"

namespace sudoku {

FRMSudoku::FRMSudoku(Systeme& systeme, GameState& jeu, Fenetre& fenetre, Assistant& assistant)
    : systeme_(systeme),
      jeu_(jeu),
      fenetre_(fenetre),
      assistant_(assistant),
      moteur_(jeu_),
      affichage_(jeu_, fenetre_, systeme, assistant),
      pilote_(jeu_, moteur_, affichage_),
      chrono_(jeu_, systeme, fenetre_, assistant),
      deroulement_(jeu_, systeme, fenetre_.plateau, moteur_, pilote_, affichage_, chrono_),
      saisie_(*this),
      commandes_(*this) {
  jeu_.Message = [this](TexteVue texte) { systeme_.Message(texte); };
}

void FRMSudoku::Relie(Stockage& stockage, APropos& aPropos) {
  stockage_ = &stockage;
  aPropos_ = &aPropos;
  BrancheMenus();
  BrancheEvenements();
}

void FRMSudoku::BrancheMenus() {
  const auto branche = [this](std::string_view nom, std::function<void()> handler) {
    fenetre_.TrouveArticle(nom)->Click = std::move(handler);
  };
  branche("MnuInit", [this] { commandes_.MnuInit_Click(); });
  branche("MnuStart", [this] { commandes_.MnuStart_Click(); });
  branche("MnuRestart", [this] { commandes_.MnuRestart_Click(); });
  branche("MnuReinit", [this] { commandes_.MnuReinit_Click(); });
  branche("MnuPartie", [this] { stockage_->MnuPartie_Click(); });
  branche("MnuLoad", [this] { stockage_->MnuLoad_Click(); });
  branche("MnuSave", [this] { stockage_->MnuSave_Click(); });
  branche("MnuQuit", [this] { commandes_.MnuQuit_Click(); });
  branche("MnuAbout", [this] { aPropos_->MnuAbout_Click(); });
  branche("MnuAssist", [this] { commandes_.MnuAssist_Click(); });
  branche("MnuSolver", [this] { commandes_.MnuSolver_Click(); });
  branche("MnuSolveur2", [this] { commandes_.MnuSolveur2_Click(); });
  branche("MnuScores", [this] { stockage_->MnuScores_Click(); });
}

void FRMSudoku::BrancheEvenements() {
  fenetre_.KeyDown = [this](int KeyCode) { commandes_.Form_KeyDown(KeyCode); };
  fenetre_.QueryUnload = [this](int UnloadMode) { return commandes_.Form_QueryUnload(UnloadMode); };
  fenetre_.plateau.Change = [this](int Index) { saisie_.ChangeCase(Index); };
  fenetre_.plateau.GotFocus = [this](int Index) { saisie_.TxtCase_GotFocus(Index); };
  fenetre_.conforts = ConfortsDuJeu(*this);
  fenetre_.TrouveMinuterie("Tmr")->Timer = [this] { chrono_.Tmr_Timer(); };
}

void FRMSudoku::Form_Load(TexteVue ligneDeCommande) {
  jeu_.VgEtat = kSansGrille;
  jeu_.VgParties.resize(1);
  jeu_.VgScores.resize(1);
  SetMenus();
  AlwaysOnTop(fenetre_, true);
  systeme_.DoEvents();
  if (!ligneDeCommande.empty()) stockage_->JeuLoad(Texte(ligneDeCommande));
}

}  // namespace sudoku
