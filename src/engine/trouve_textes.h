#pragma once

#include <vector>

#include "engine/trouve_masques.h"
#include "grid/grille.h"

namespace sudoku::SUDOKU_MOTEUR {
namespace {

// Finds deductions on grids of any kind, with as little cleverness as can be: symbols may be equal, and cells
// may hold texts of several characters, which lose them as open cells lose candidates. It works in the grid's
// block. A symbol stands here for all positions of VmValeurs equal to it.
class TrouveTextes : public TrouveMasques<TrouveTextes, Masque<4>> {
 public:
  using M = Masque<4>;

  explicit TrouveTextes(int S) : parts_(S) {}

  // The grid that follows.
  void Adopte(Bloc& bloc, bool longs);

  // The candidates go into the grid.
  void Ecrit() const;

  bool Amorce(Appui appui);
  void Transpose();
  int UniteSale(int depuis) const { return depuis < 3 * N() ? depuis : -1; }
  M Reste(int u) const;
  template <class F>
  void ChaqueReduite(F f);

  M Places(int u, int symbole) const { return places_[Rang(u * N() + Premiere(symbole))]; }
  int Cellule(int u, int place) const { return parts_.Cellule(u, place); }
  M HorsDe(int cellule, const M& symboles) const;
  M Dedans(const FigureDe<M>& figure) const { return parts_.Dedans(figure); }
  bool Enleve(int cellule, int symbole);
  bool EnleveNue(int cellule, const Trouvaille<M>& t);
  void Remplace(int cellule, const M& sequence);
  void PoseSolution(int cellule, int symbole) { Solutions()[Rang(cellule + 1)] = symbole; }

  static constexpr bool kDifferents = false;
  int N() const { return parts_.S * parts_.S; }
  const Parts<M>& DesParts() const { return parts_; }
  const Octets<M>& NombresDePlaces(int u);
  const Octets<M>& NombresDuSymbole(int type, int s);
  bool Nue(int u, int depuis, Trouvaille<M>& t);
  M Perdants(int u, int s, const M& sauf) const;
  M Autres(int u, const M& lieux, const M& symboles) const;
  int Fois(const M& reste, int s) const { return Nombre(reste & classe_[Rang(s)]); }
  int Premiere(int s) const { return bloc_->alphabet->Premiere(s); }
  M AChercher() const { return premieres_; }

 private:
  std::vector<Code>& Solutions() { return appui_ == Appui::kSur ? bloc_->sure : bloc_->poss; }
  M ListePossibles(int cellule) const;
  M Sans(const M& positions, Code code) const;
  Texte TexteDe(const M& positions) const;
  Texte Possible(int cellule) const;
  bool Perd(int cellule, TexteVue symbole) const;
  bool EnleveTexte(int cellule, TexteVue symboles);
  void NotePlaces(int cellule);

  Parts<M> parts_;
  Bloc* bloc_ = nullptr;
  bool longs_ = false;  // some content that counts has several characters
  Appui appui_ = Appui::kSur;
  M premieres_;                // first of equal positions
  std::vector<M> classe_;      // a position: all that equal it
  std::vector<char> ouverte_;  // by cell
  std::vector<M> candidats_;   // by cell; of open ones alone
  std::vector<M> places_;      // by unit and symbol
  Octets<M> nombres_{};
};

}  // namespace
}  // namespace sudoku::SUDOKU_MOTEUR
