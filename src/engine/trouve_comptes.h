#pragma once

#include <algorithm>

#include "engine/suivi.h"
#include "engine/tables_voies.h"
#include "engine/trouve_masques.h"

namespace sudoku::SUDOKU_MOTEUR {
namespace {

// Finds deductions on a board like that of TrouveVoies, of any side. The tables are made with lanes; what
// lies in them is counted once and searched by these counts, as few of the many masks can belong to anything.
template <int S>
class TrouveComptes : public Suivi<S>, public TrouveMasques<TrouveComptes<S>, BitsDe<S>> {
 public:
  using Bits = BitsDe<S>;
  using Suivi<S>::Suivi;

  Bits CandidatsDe(int cellule) const { return Voie<S>(candidats_[cellule / kN], cellule % kN); }
  // The candidates of the cells of a row, word by word.
  const MotDe<S>* CandidatsDeLigne(int ligne) const { return candidats_[ligne]; }

  bool Amorce(Appui appui);
  void Transpose();
  Bits Reste(int u) const { return kTousDe<S> & ~this->prouves_[u]; }
  template <class F>
  void ChaqueReduite(F f);

  Bits Places(int u, int symbole) const { return Voie<S>(places_[u], symbole); }
  Bits HorsDe(int cellule, const Bits& symboles) const { return CandidatsDe(cellule) & ~symboles; }
  bool Enleve(int cellule, int symbole) { return EnleveTous(cellule, Bit<Bits>(symbole)); }
  bool EnleveNue(int cellule, const Trouvaille<Bits>& t) {
    return EnleveTous(cellule, CandidatsDe(cellule) & t.symboles);
  }
  void Remplace(int cellule, const Bits& sequence);

  static constexpr bool kDifferents = true;
  static int N() { return kN; }
  static const Parts<Bits>& DesParts() { return kParts<S>; }
  const Octets<Bits>& NombresDePlaces(int u) const { return nombres_[u]; }
  const Octets<Bits>& NombresDuSymbole(int type, int s) const { return parSymbole_[type][s]; }
  bool Nue(int u, int depuis, Trouvaille<Bits>& t);
  Bits Perdants(int u, int s, const Bits& sauf) const { return Places(u, s) & ~sauf; }
  Bits Autres(int u, const Bits& lieux, const Bits& symboles) const;
  static int Fois(const Bits&, int) { return 1; }
  static int Premiere(int s) { return s; }
  Bits AChercher() { return this->SymbolesSales(); }

 private:
  using Mot = MotDe<S>;
  using V = Voies<S>;
  static constexpr int kN = S * S;
  static constexpr int kUnites = 3 * kN;
  static constexpr int kMots = Largeur<S>::kMots;
  static constexpr int kVoies = Largeur<S>::kVoies;

  // How many numbers each of the masks has.
  static void Compte(const Mot* masques, Octets<Bits>& comptes);
  // The cell is a place of the symbol no more, or is one again.
  void ChangePlace(int cellule, int symbole, bool la);
  bool EnleveTous(int cellule, const Bits& symboles);
  void NoteCompte(int cellule);

  alignas(64) Mot candidats_[Taille(kN)][Taille(kMots * kVoies)];    // by row and column
  alignas(64) Mot places_[Taille(kUnites)][Taille(kMots * kVoies)];  // by unit and symbol
  Octets<Bits> comptes_[Taille(kUnites)]{};                          // of candidates, by unit and place
  Octets<Bits> nombres_[Taille(kUnites)]{};                          // of places, by unit and symbol
  Octets<Bits> parSymbole_[3][Taille(kN)]{};  // the same by kind, symbol and number of the unit
};

template <int S>
bool TrouveComptes<S>::Amorce(Appui appui) {
  this->Commence(appui);
  bool complets = true;
  ChaqueLigne<S>(this->contenus_, [&](int l, const auto& candidats, const auto&) SUDOKU_LAMBDA_EN_LIGNE {
    EcritChaque<S>(candidats_[l], candidats);
    Octets<Bits>& comptes = comptes_[Unite(kLigne, l)];
    Compte(candidats_[l], comptes);
    this->NoteSeuls(l, Entre(comptes, 1, 1));
    complets &= Nombre(Entre(comptes, 1, kN)) == Nombre(Voie<S>(this->contenus_.ouvertes[kLigne], l));
  });
  return complets;
}

template <int S>
void TrouveComptes<S>::Compte(const Mot* masques, Octets<Bits>& comptes) {
  for (int i = 0; i < kVoies; ++i) {
    int n = 0;
    for (int mot = 0; mot < kMots; ++mot) n += std::popcount(masques[mot * kVoies + i]);
    comptes.n[i] = static_cast<std::uint8_t>(n);
  }
  std::fill(comptes.n + kVoies, comptes.n + sizeof comptes.n, std::uint8_t{0});
}

template <int S>
void TrouveComptes<S>::Transpose() {
  for (int l = 0; l < kN; ++l) {
    for (int pile = 0; pile < S; ++pile)
      std::copy_n(comptes_[Unite(kLigne, l)].n + S * pile, S,
                  comptes_[Unite(kCarre, l / S * S + pile)].n + l % S * S);
  }
  TourneOctets(
      kN, [&](int l) { return comptes_[Unite(kLigne, l)].n; },
      [&](int c) { return comptes_[Unite(kColonne, c)].n; });
  ChaquePlaces<S>(this->contenus_, [&](int u, const auto& places) SUDOKU_LAMBDA_EN_LIGNE {
    EcritChaque<S>(places_[u], places);
    Compte(places_[u], nombres_[u]);
  });
  for (const TypeUnite type : {kCarre, kLigne, kColonne}) {
    TourneOctets(
        kN, [&](int i) { return nombres_[Unite(type, i)].n; }, [&](int s) { return parSymbole_[type][s].n; });
  }
  this->ToutSale();
}

template <int S>
bool TrouveComptes<S>::Nue(int u, int depuis, Trouvaille<Bits>& t) {
  const Octets<Bits>& comptes = comptes_[u];
  const Bits assez = this->Assez(comptes, Depuis(Entre(comptes, 2, kN), depuis));
  if (Vide(assez)) return false;
  Chaque(assez, [&](int place) {
    this->liste_.elements.push_back({place, comptes.n[place], CandidatsDe(this->Cellule(u, place))});
  });
  bool trouve = false;
  this->liste_.ChaqueEnsemble([&](const auto& e, const Bits& lieux) {
    if (trouve) return;
    t = {.symboles = e.masque, .lieux = lieux};
    Chaque(Entre(comptes, 1, kN), [&](int place) {
      const Bits candidats = CandidatsDe(this->Cellule(u, place));
      if (!Vide(candidats & e.masque) && !(candidats == e.masque)) t.perdants |= Bit<Bits>(place);
    });
    trouve = !Vide(t.perdants);
  });
  return trouve;
}

template <int S>
template <class F>
void TrouveComptes<S>::ChaqueReduite(F f) {
  this->ChaqueNote([&](int cellule) {
    const Bits reste = CandidatsDe(cellule);
    if (Nombre(reste) == 1) f(cellule, Premier(reste));
  });
}

template <int S>
typename TrouveComptes<S>::Bits TrouveComptes<S>::Autres(int u, const Bits& lieux,
                                                         const Bits& symboles) const {
  Bits autres{};
  Chaque(lieux, [&](int place) {
    if (!(CandidatsDe(this->Cellule(u, place)) == symboles)) autres |= Bit<Bits>(place);
  });
  return autres;
}

template <int S>
void TrouveComptes<S>::ChangePlace(int cellule, int symbole, bool la) {
  for (int g = 0; g < 3; ++g) {
    const int u = UniteDe<S>(g, cellule);
    const int place = PlaceDe<S>(g, cellule);
    la ? Ajoute<S>(places_[u], symbole, place) : Retire<S>(places_[u], symbole, place);
    nombres_[u].n[symbole] = static_cast<std::uint8_t>(nombres_[u].n[symbole] + (la ? 1 : -1));
    parSymbole_[g][symbole].n[NumeroDe(u)] = nombres_[u].n[symbole];
  }
  Mot* const ligne = candidats_[cellule / kN];
  la ? Ajoute<S>(ligne, cellule % kN, symbole) : Retire<S>(ligne, cellule % kN, symbole);
}

template <int S>
void TrouveComptes<S>::NoteCompte(int cellule) {
  const auto n = static_cast<std::uint8_t>(Nombre(CandidatsDe(cellule)));
  for (int g = 0; g < 3; ++g) comptes_[UniteDe<S>(g, cellule)].n[PlaceDe<S>(g, cellule)] = n;
  if (n <= 1) this->NoteSeul(cellule);
}

template <int S>
bool TrouveComptes<S>::EnleveTous(int cellule, const Bits& symboles) {
  Chaque(symboles & CandidatsDe(cellule), [&](int s) { ChangePlace(cellule, s, false); });
  NoteCompte(cellule);
  this->Salit(cellule, symboles);
  return !Vide(CandidatsDe(cellule));
}

// Sets that overlap, in a contradictory board, can bring a symbol back; everything is looked at again then.
template <int S>
void TrouveComptes<S>::Remplace(int cellule, const Bits& sequence) {
  const Bits avant = CandidatsDe(cellule);
  Chaque(avant & ~sequence, [&](int s) { ChangePlace(cellule, s, false); });
  Chaque(sequence & ~avant, [&](int s) { ChangePlace(cellule, s, true); });
  NoteCompte(cellule);
  this->Salit(cellule, avant & ~sequence);
  if (!Vide(sequence & ~avant)) this->ToutSale();
}

}  // namespace
}  // namespace sudoku::SUDOKU_MOTEUR
