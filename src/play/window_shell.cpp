#include "play/window_shell.h"

namespace sudoku {
namespace {

std::vector<Element> Elements() {
  return {
      {.Name = "LblInfos", .Width = 4215, .Height = 495, .Centre = true, .Bordure = true},
      {.Name = "LblChrono",
       .Top = 240,
       .Width = 4215,
       .Height = 255,
       .Visible = false,
       .Centre = true,
       .Transparent = true},
  };
}

std::vector<Menu> Menus() {
  return {{"MnuBase(0)",
           U"&Jeu",
           {{"MnuInit", U"&Grille vierge"},
            {"MnuStart", U"&Débuter"},
            {"MnuRestart", U"&Recommencer"},
            {"MnuReinit", U"&Valide uniquement"},
            {"MnuPartie", U"&Partie en cours"},
            {"Mnu1", U"-"},
            {.Name = "MnuLoad", .Caption = U"&Charger", .Touche = 'O'},
            {.Name = "MnuSave", .Caption = U"&Sauver", .Touche = 'S'},
            {"Mnu2", U"-"},
            {"MnuQuit", U"&Quitter"}}},
          {"MnuBase(1)",
           U"&?",
           {{"MnuAbout", U"A &propos"},
            {"Mnu3", U"-"},
            {"MnuAssist", U"&Assistant"},
            {"MnuSolver", U"&Résoudre"},
            {"MnuSolveur2", U"Résoudre && &supposer"},
            {"Mnu4", U"-"},
            {"MnuScores", U"&Meilleurs scores"}}}};
}

}  // namespace

Fenetre TableFRMSudoku() {
  return {.Name = "FRMSudoku",
          .Caption = U"Solver de Sudoku",
          .Width = 4230,
          .Height = 3990,
          .elements = Elements(),
          .menus = Menus(),
          .minuteries = {{.Name = "Tmr", .Interval = 1000}},
          .avecPlateau = true};
}

MenusDuJeu::MenusDuJeu(Fenetre& fenetre)
    : MnuStart(*fenetre.TrouveArticle("MnuStart")),
      MnuRestart(*fenetre.TrouveArticle("MnuRestart")),
      MnuReinit(*fenetre.TrouveArticle("MnuReinit")),
      MnuPartie(*fenetre.TrouveArticle("MnuPartie")),
      MnuSave(*fenetre.TrouveArticle("MnuSave")),
      MnuAssist(*fenetre.TrouveArticle("MnuAssist")),
      MnuSolver(*fenetre.TrouveArticle("MnuSolver")),
      MnuSolveur2(*fenetre.TrouveArticle("MnuSolveur2")),
      MnuScores(*fenetre.TrouveArticle("MnuScores")) {}

void MenusDuJeu::SetMenus(const GameState& jeu, bool assistantVisible) {
  const bool joue = jeu.VgEtat == kJeu;
  const bool jouee = joue || jeu.VgEtat == kTermine;
  const bool grille = jeu.VgEtat != kSansGrille;
  MnuStart.Enabled = jeu.VgEtat == kSaisieGrille;
  MnuSolver.Enabled = joue;
  MnuSolveur2.Enabled = joue;
  MnuRestart.Enabled = jouee;
  MnuReinit.Enabled = jouee;
  MnuSave.Enabled = grille;
  MnuScores.Enabled = grille && jeu.VgEtat != kSaisieGrille;
  MnuAssist.Enabled = grille && !assistantVisible;
  MnuPartie.Enabled = jeu.VgParties.size() > 1;
}

void AlwaysOnTop(Fenetre& VpForm, bool VpOnTop) {
  VpForm.TopMost = VpOnTop;
  VpForm.Visible = true;
}

}  // namespace sudoku
