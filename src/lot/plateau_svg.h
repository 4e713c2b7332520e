#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "engine/explications.h"
#include "grid/grille.h"
#include "lot/html.h"
#include "lot/symboles.h"
#include "solver/auditeur.h"

namespace sudoku::lot {

// Draws the boards of one grid as inline SVG. What all of them share, and from some step on the base of the
// search, is drawn once and referred to.
class PlateauSvg {
 public:
  // The grid at the start; `prefixe` begins the ids of what its boards share, which goes to `s`.
  void Commence(const Grille& grille, std::string prefixe, std::string& s);
  // A cell gets a symbol.
  void Pose(int cellule, Code symbole, bool sure) {
    contenus_[static_cast<std::size_t>(cellule)] = {symbole, sure};
  }
  // Takes the board as the base of the search; what is shared goes to `s`.
  void PrendBase(std::string& s);
  bool BasePrise() const { return basePrise_; }
  // Makes the board the base again.
  void Reprend() { contenus_ = base_; }

  // The board with `cases`, which this step has filled, and with outlines. `nom` says what it is; its
  // contents follow in the text for who can't see it.
  void Dessine(std::string_view nom, std::span<const Remplissage> cases, std::span<const UniteNommee> unites,
               std::span<const int> nommees, std::string& s);

 private:
  struct Contenu {
    Code symbole = kVide;
    bool sure = true;
  };
  std::string Texte();
  void EcritRectangle(int cellule, char classe, int marge, std::string& s) const;
  void Entoure(const UniteNommee& unite, std::string& s) const;
  void EcritSymbole(int cellule, std::string_view attribut, std::string& s);
  void EcritContenus(const std::vector<Contenu>& dessines, std::string& s);
  void EcritRangee(const std::vector<Contenu>& dessines, int ligne, bool sure, std::string& s);
  int Ligne(int cellule) const { return (cellule - 1) / n_; }
  int Colonne(int cellule) const { return (cellule - 1) % n_; }

  int n_ = 0;
  std::shared_ptr<const Geometrie> geometrie_;
  std::shared_ptr<const Alphabet> alphabet_;
  std::string prefixe_;
  std::vector<Contenu> initiaux_;  // by cell, element 0 unused, as those that follow
  std::vector<Contenu> contenus_;
  std::vector<Contenu> base_;
  std::vector<char> nouvelles_;  // this step's
  bool basePrise_ = false;
  SymbolesUtf8 symboles_{Html};
};

}  // namespace sudoku::lot
