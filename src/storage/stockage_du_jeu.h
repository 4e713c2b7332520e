#pragma once

#include "play/voisins.h"
#include "storage/best_scores.h"
#include "storage/game_file.h"
#include "storage/grid_library.h"

namespace sudoku {

// All that is stored of a game, as the main window sees it.
class StockageDuJeu : public Stockage {
 public:
  StockageDuJeu(GameState& jeu, Systeme& systeme, Fenetre& principale, GameFlow& deroulement,
                BoardDisplay& affichage, DialogueFichier& dialogue)
      : bibliotheque_(jeu, systeme, principale, deroulement, affichage),
        scores_(jeu, systeme),
        fichier_(jeu, systeme, affichage, bibliotheque_, dialogue) {}
  StockageDuJeu(const StockageDuJeu&) = delete;
  StockageDuJeu& operator=(const StockageDuJeu&) = delete;

  void MnuLoad_Click() override { fichier_.MnuLoad_Click(); }
  void MnuSave_Click() override { fichier_.MnuSave_Click(); }
  void MnuPartie_Click() override { fichier_.MnuPartie_Click(); }
  void MnuScores_Click() override { scores_.ShowScores(); }
  void JeuLoad(Texte VpFichier) override { fichier_.JeuLoad(VpFichier); }
  void SetScores() override { scores_.SetScores(); }

 private:
  GridLibrary bibliotheque_;
  BestScores scores_;
  GameFile fichier_;
};

}  // namespace sudoku
