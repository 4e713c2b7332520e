#pragma once

#include <cstring>

#include "engine/bits_voies.h"
#include "engine/deductions.h"
#include "engine/ensembles.h"
#include "engine/suivi.h"
#include "engine/tables_voies.h"

namespace sudoku::SUDOKU_MOTEUR {
namespace {

// Finds deductions on a board of blocks of side S, up to 5, whose cells hold single symbols, all different:
// vectors with a lane for each symbol or place of a unit, so that all of them are looked at together. A
// Trouveur; what each member means stands there.
template <int S>
class TrouveVoies : public Suivi<S> {
 public:
  using Bits = BitsDe<S>;
  using V = Voies<S>;
  using Suivi<S>::Suivi;

  Bits CandidatsDe(int cellule) const { return candidats_[Unite(kLigne, cellule / N)][cellule % N]; }
  // The candidates of the N cells of a row.
  const MotDe<S>* CandidatsDeLigne(int ligne) const { return candidats_[Unite(kLigne, ligne)]; }

  // The places of each symbol that is left to place in a unit, and how many.
  struct EtatUnite {
    V places;
    V comptes;
    V seules;  // lanes with one
    // The places lie in `copie`, and zeros behind them, where they are not all that the table of the unit
    // has.
    bool copiees;
    alignas(64) MotDe<S> copie[Taille(2 * Largeur<S>::kVoies)];
  };

  bool Amorce(Appui appui);
  void Transpose();
  EtatUnite Reste(int u) const;
  template <class F>
  void ChaqueSeule(int u, const EtatUnite& e, F f) const;
  template <class F>
  void ChaqueConfinee(int u, const EtatUnite& e, F f);
  template <class F>
  void ChaqueCachee(int u, const EtatUnite& e, F f);
  template <class F>
  void ChaqueNue(int u, F f) const;
  template <class F>
  void ChaqueFigure(F f);
  template <class F>
  void ChaqueReduite(F f);

  Bits Places(int u, int symbole) const { return places_[u][symbole]; }
  Bits HorsDe(int cellule, Bits symboles) const { return CandidatsDe(cellule) & ~symboles; }

  bool Enleve(int cellule, int symbole) { return EnleveTous(cellule, UnBit(symbole)); }
  bool EnleveNue(int cellule, const Trouvaille<Bits>& t) {
    return EnleveTous(cellule, CandidatsDe(cellule) & t.symboles);
  }
  void Remplace(int cellule, Bits sequence);

 protected:
  using Base = Suivi<S>;
  using Base::contenus_, Base::prouves_, Base::kVoies, Base::kUnites, Base::N;
  using Mot = MotDe<S>;

  static Bits UnBit(int n) { return Bit<Bits>(n); }

  void Tourne();
  template <class F>
  static void DeLignes(const V& lignes, Bits debuts, TypeUnite type, F f);
  template <class F>
  static void DeCarres(const V& carres, F f);

  // Candidates by unit and place, places by unit and symbol; lanes from N on stay 0. A search for sets reads
  // on into the row behind (see ensembles.h), so that there is one more.
  alignas(64) Mot candidats_[Taille(kUnites + 1)][Taille(kVoies)];
  alignas(64) Mot places_[Taille(kUnites + 1)][Taille(kVoies)];
  // Places again, by kind, symbol and number of the unit, once `tournees_`.
  alignas(64) Mot parSymbole_[3][Taille(N + 1)][Taille(kVoies)];
  bool tournees_ = false;

 private:
  template <class F>
  void FiguresDe(int s, F f) const;
  template <class F>
  static void EnCarres(const V& voies, Bits debuts, TypeUnite type, TypeUnite type2, F f);
  bool EnleveTous(int cellule, Bits symboles);
};

template <int S>
bool TrouveVoies<S>::Amorce(Appui appui) {
  Base::Commence(appui);
  V nuls{};
  ChaqueLigne<S>(contenus_, [&](int l, const auto& candidats, const V& ouvertes) SUDOKU_LAMBDA_EN_LIGNE {
    const V c = V::De(candidats);
    Ecrit<S>(candidats_[Unite(kLigne, l)], c);
    nuls |= Nulles(c) & ouvertes;
    Base::NoteSeuls(l, EnBits(Seules(c)));
  });
  return Aucune(nuls);
}

// The rest of the tables, from the contents and the candidates by row.
template <int S>
void TrouveVoies<S>::Transpose() {
  ChaqueColonne<S>(contenus_, [&](int c, const auto& colonne) SUDOKU_LAMBDA_EN_LIGNE {
    EcritChaque<S>(candidats_[Unite(kColonne, c)], colonne);
  });
  for (int b = 0; b < N; ++b) {
    Mot* const carre = candidats_[Unite(kCarre, b)];
    Ecrit<S>(carre, V{});
    for (int l = 0; l < S; ++l) {
      std::memcpy(carre + S * l, candidats_[Unite(kLigne, b / S * S + l)] + b % S * S, S * sizeof(Mot));
    }
  }
  ChaquePlaces<S>(contenus_, [&](int u, const auto& places)
                                 SUDOKU_LAMBDA_EN_LIGNE { EcritChaque<S>(places_[u], places); });
  tournees_ = false;
  Base::ToutSale();
}

template <int S>
SUDOKU_EN_LIGNE typename TrouveVoies<S>::EtatUnite TrouveVoies<S>::Reste(int u) const {
  EtatUnite e;
  e.places = Lit<S>(places_[u]);
  e.copiees = prouves_[u] != 0;
  if (e.copiees) {
    Ecrit<S>(e.copie, e.places);
    Ecrit<S>(e.copie + kVoies, V{});
    Chaque(prouves_[u], [&](int s) { e.copie[s] = 0; });
    e.places = Lit<S>(e.copie);
  }
  e.comptes = Comptes(e.places);
  e.seules = Egales(e.comptes, Partout<S>(1));
  return e;
}

template <int S>
template <class F>
SUDOKU_EN_LIGNE void TrouveVoies<S>::ChaqueSeule(int u, const EtatUnite& e, F f) const {
  const Bits symboles = EnBits(e.seules);
  if (symboles == 0) return;
  const Mot* const p = e.copiees ? e.copie : places_[u];
  Chaque(symboles, [&](int s) { f(s, std::countr_zero(Bits{p[s]})); });
}

template <int S>
template <class F>
SUDOKU_EN_LIGNE void TrouveVoies<S>::ChaqueConfinee(int u, const EtatUnite& e, F f) {
  // A part has S cells; in a large unit there is often no symbol with so few places.
  if (S > 3 && Aucune(PlusDe(1, e.comptes) & ~PlusDe(S, e.comptes))) return;
  const Croisements<S>& croisements = kLieux<S>.croisements[u];
  const V places = e.places & ~e.seules;
  const V ou = places | Nulles(places);  // a symbol without places isn't confined to anything
  const int n = TypeDe(u) == kCarre ? 2 * S : S;
  V perdants[Taille(2 * S)];
  V tous{};
  for (int k = 0; k < n; ++k) {
    const auto& c = croisements.un[k];
    perdants[k] = Lit<S>(places_[c.unite]) & Nulles(ou & Partout<S>(c.horsDeIci)) & Partout<S>(c.horsDeLa);
    tous |= perdants[k];
  }
  if (Aucune(tous)) return;
  for (int k = 0; k < n; ++k) {
    const Bits symboles = BitsNonNulles(perdants[k]);
    if (symboles == 0) continue;
    alignas(64) Mot p[Taille(kVoies)];
    Ecrit<S>(p, perdants[k]);
    Chaque(symboles, [&](int s) {
      f({.symboles = UnBit(s), .lieux = places_[u][s], .perdants = p[s], .unite = croisements.un[k].unite});
    });
  }
}

template <int S>
template <class F>
SUDOKU_EN_LIGNE void TrouveVoies<S>::ChaqueCachee(int u, const EtatUnite& e, F f) {
  const Bits debuts = Ensembles<S>(e.copiees ? e.copie : places_[u], e.places, e.comptes);
  if (debuts == 0) return;
  alignas(64) Mot places[Taille(kVoies)];
  Ecrit<S>(places, e.places);
  Chaque(debuts, [&](int premier) {
    const Bits lieux = places[premier];
    const Bits sequence = Depuis(BitsEgales(Lit<S>(places), Partout<S>(lieux)), premier);
    const Bits autres = lieux & ~BitsEgales(Lit<S>(candidats_[u]), Partout<S>(sequence));
    if (autres != 0) f({.symboles = sequence, .lieux = lieux, .perdants = autres});
  });
}

template <int S>
template <class F>
SUDOKU_EN_LIGNE void TrouveVoies<S>::ChaqueNue(int u, F f) const {
  V candidats = Lit<S>(candidats_[u]);
  Bits debuts = Ensembles<S>(candidats_[u], candidats, Comptes(candidats));
  while (debuts != 0) {
    const int premier = std::countr_zero(debuts);
    debuts &= debuts - 1;
    const Bits sequence = candidats_[u][premier];
    const Bits egales = BitsEgales(candidats, Partout<S>(sequence));
    const Bits perdants = BitsNonNulles(candidats & Partout<S>(sequence)) & ~egales;
    if (perdants == 0) continue;
    f({.symboles = sequence, .lieux = Depuis(egales, premier), .perdants = perdants});
    candidats = Lit<S>(candidats_[u]);
    debuts = Ensembles<S>(candidats_[u], candidats, Comptes(candidats)) & ~((Bits{2} << premier) - 1);
  }
}

template <int S>
bool TrouveVoies<S>::EnleveTous(int cellule, Bits symboles) {
  const Lieu<S>& lieu = kLieux<S>.lieux[cellule];
  for (int g = 0; g < 3; ++g) {
    const int u = lieu.unite[g];
    candidats_[u][lieu.place[g]] &= static_cast<Mot>(~symboles);
    Chaque(symboles, [&](int s) {
      parSymbole_[g][s][NumeroDe(u)] = places_[u][s] &= static_cast<Mot>(~UnBit(lieu.place[g]));
    });
  }
  Base::Salit(cellule, symboles);
  const Bits reste = CandidatsDe(cellule);
  if ((reste & (reste - 1)) == 0) Base::NoteSeul(cellule);
  return reste != 0;
}

// Two symbols or more. Sets that overlap, in a contradictory board, can bring a symbol back; everything is
// looked at again then.
template <int S>
void TrouveVoies<S>::Remplace(int cellule, Bits sequence) {
  const Lieu<S>& lieu = kLieux<S>.lieux[cellule];
  const Bits avant = CandidatsDe(cellule);
  for (int g = 0; g < 3; ++g) {
    const int u = lieu.unite[g];
    candidats_[u][lieu.place[g]] = static_cast<Mot>(sequence);
    Chaque(avant ^ sequence, [&](int s) {
      parSymbole_[g][s][NumeroDe(u)] = places_[u][s] ^= static_cast<Mot>(UnBit(lieu.place[g]));
    });
  }
  Base::Salit(cellule, avant & ~sequence);
  if ((sequence & ~avant) != 0) Base::ToutSale();
}

template <int S>
template <class F>
void TrouveVoies<S>::ChaqueReduite(F f) {
  Base::ChaqueNote([&](int cellule) {
    const Bits reste = CandidatsDe(cellule);
    if (std::popcount(reste) == 1) f(cellule, std::countr_zero(reste));
  });
}

}  // namespace
}  // namespace sudoku::SUDOKU_MOTEUR

#include "engine/figures_voies.h"
