#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>
#include <deque>
#include <functional>
#include <string>

#include "qt/fenetre_qt.h"
#include "qt/plateau_qt.h"
#include "qt/systeme_qt.h"
#include "shell/programme.h"

namespace sudoku {

// The whole game on real windows, played by a test with keys and mouse. Boxes are answered by what Quand has
// announced, in turn, once they are on the screen.
class JoueurQt {
 public:
  JoueurQt();

  // Starts the game, with a game file if one is given, and waits for its window.
  void Demarre(const std::string& fichier = {});
  // The next box that opens is this one (message, question, saisie, fichier, or a window's name); then
  // `acte`.
  void Quand(const char* boite, const std::function<void(QWidget&)>& acte);
  // Every announced box has come.
  bool ToutEstVenu() const { return attendues_.empty(); }

  // Keys go to whatever has the focus, one by one.
  void Touche(Qt::Key touche, Qt::KeyboardModifiers modificateurs = {});
  void Tape(const QString& texte);
  void Colle(const QString& texte);
  // A menu by its access key, then the item by its own.
  void Menu(Qt::Key menu, Qt::Key article);
  void CliqueCase(int i);
  // What a player does to fill a cell.
  void Ecrit(int i, const QString& texte) {
    CliqueCase(i);
    Tape(texte);
  }
  // A new grid of these symbols.
  void NouvelleGrille(const QString& symboles);

  GameState& Jeu() { return programme_.Jeu(); }
  sudoku::Fenetre& Principale() { return programme_.Principale(); }
  Plateau& LePlateau() { return programme_.Principale().plateau; }
  Minuterie& Tmr() { return *programme_.Principale().TrouveMinuterie("Tmr"); }
  FenetreQt& Fenetre() { return *systeme_.FenetreDe(programme_.Principale()); }
  sudoku::Fenetre& Aide() { return programme_.LAssistant().LaFenetre(); }
  FenetreQt& Assistant() { return *systeme_.FenetreDe(Aide()); }
  PlateauQt& Ecran() { return *Fenetre().LePlateau(); }
  SystemeQt& LeSysteme() { return systeme_; }
  // The texts on the board, "." for an empty box.
  std::string Grille();

 private:
  struct Attendue {
    QString nom;
    std::function<void(QWidget&)> acte;
  };
  void Guette();
  QWidget* Cible();

  SystemeQt systeme_;
  Programme programme_;
  std::deque<Attendue> attendues_;
};

// Lets events through until the condition holds; the test fails if it never does.
void Attends(const std::function<bool()>& condition, const char* quoi);

// The path of a game file for a test; tests on two platforms may run at once.
std::string FichierDEssai(const char* nom);

}  // namespace sudoku
