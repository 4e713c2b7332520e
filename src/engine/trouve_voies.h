#pragma once

#include <cstring>

#include "engine/bits_voies.h"
#include "engine/deductions.h"
#include "engine/duo.h"
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

  // A unit as it is before it is run: the places of each symbol that is left to place, and the cells'
  // candidates.
  struct EtatUnite {
    Duo<S> vues;
    Bits seules = 0;  // symbols with one place
    bool change = false;
  };

  bool Amorce(Appui appui);
  void Transpose();
  EtatUnite Reste(int u);
  template <class F>
  void ChaqueSeule(int u, const EtatUnite& e, F f) const;
  template <class F>
  void ChaqueConfinee(int u, const EtatUnite& e, F f);
  template <class F>
  void ChaqueCachee(int u, EtatUnite& e, F f);
  template <class F>
  void ChaqueNue(int u, EtatUnite& e, F f);
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

  // Hidden and naked sets of unit u among those that may begin at `debuts`. agit(symbols or places of one):
  // something may be taken. encore(): where naked sets may begin after one has acted.
  template <class A, class F>
  void CacheesDe(int u, Bits debuts, A agit, F f) const;
  template <class A, class E, class F>
  void NuesDe(int u, Bits debuts, A agit, E encore, F f) const;
  void Tourne();
  template <class F>
  static void FiguresDe(int s, const V& colonnes, const V& lignes, const V& carres, const Duo<S>& vues, F f);
  template <class F>
  static void DeLignes(const Duo<S>& vues, Vue vue, const V& lignes, TypeUnite type, F f);
  template <class F>
  static void DeCarres(const V& carres, F f);

  // Candidates by unit and place, places by unit and symbol; lanes from N on stay 0.
  alignas(64) Mot candidats_[Taille(kUnites)][Taille(kVoies)];
  alignas(64) Mot places_[Taille(kUnites)][Taille(kVoies)];
  // Places again, by kind, symbol and number of the unit, once `tournees_`.
  alignas(64) Mot parSymbole_[3][Taille(N)][Taille(kVoies)];
  bool tournees_ = false;
  // The places in a unit of what is left to place there, as Reste saw it.
  alignas(64) Mot aPlacer_[Taille(kVoies)];

 private:
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
SUDOKU_EN_LIGNE typename TrouveVoies<S>::EtatUnite TrouveVoies<S>::Reste(int u) {
  V places = Lit<S>(places_[u]);
  Ecrit<S>(aPlacer_, places);
  if (prouves_[u] != 0) Chaque(prouves_[u], [&](int s) { aPlacer_[s] = 0; });
  EtatUnite e{Duo<S>(aPlacer_, candidats_[u])};
  e.seules = e.vues.De(kPremiere, 1);
  return e;
}

template <int S>
template <class F>
SUDOKU_EN_LIGNE void TrouveVoies<S>::ChaqueSeule(int u, const EtatUnite& e, F f) const {
  Chaque(e.seules, [&](int s) { f(s, std::countr_zero(Bits{places_[u][s]})); });
}

template <int S>
template <class F>
SUDOKU_EN_LIGNE void TrouveVoies<S>::ChaqueConfinee(int u, const EtatUnite& e, F f) {
  // A part has S cells; in a large unit there is often no symbol with so few places.
  if (S > 3 && e.vues.Entre(kPremiere, 2, S) == 0) return;
  const Croisements<S>& croisements = kLieux<S>.croisements[u];
  V places = Lit<S>(aPlacer_);
  if (e.seules != 0) places = places & ~Etale<S>(e.seules);
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
SUDOKU_EN_LIGNE void TrouveVoies<S>::ChaqueCachee(int u, EtatUnite& e, F f) {
  const auto agit = [&](Bits lieux) SUDOKU_LAMBDA_EN_LIGNE {
    return (lieux & ~e.vues.De(kSeconde, std::popcount(lieux))) != 0;
  };
  CacheesDe(u, e.vues.Debuts(kPremiere), agit, [&](const Trouvaille<Bits>& t) SUDOKU_LAMBDA_EN_LIGNE {
    e.change = true;
    f(t);
  });
}

template <int S>
template <class F>
SUDOKU_EN_LIGNE void TrouveVoies<S>::ChaqueNue(int u, EtatUnite& e, F f) {
  if (e.change) e.vues = Duo<S>(places_[u], candidats_[u]);
  const auto agit = [&](Bits symboles) SUDOKU_LAMBDA_EN_LIGNE {
    return (symboles & ~e.vues.De(kPremiere, std::popcount(symboles))) != 0;
  };
  const auto encore = [&]() SUDOKU_LAMBDA_EN_LIGNE {
    e.vues = Duo<S>(places_[u], candidats_[u]);
    return e.vues.Debuts(kSeconde);
  };
  NuesDe(u, e.vues.Debuts(kSeconde), agit, encore, f);
}

template <int S>
template <class A, class F>
SUDOKU_EN_LIGNE void TrouveVoies<S>::CacheesDe(int u, Bits debuts, A agit, F f) const {
  Chaque(debuts, [&](int premier) SUDOKU_LAMBDA_EN_LIGNE {
    const Bits lieux = aPlacer_[premier];
    if (!agit(lieux)) return;
    const Bits sequence = Depuis(BitsEgales(Lit<S>(aPlacer_), Partout<S>(lieux)), premier);
    if (std::popcount(sequence) != std::popcount(lieux)) return;
    const Bits autres = lieux & ~BitsEgales(Lit<S>(candidats_[u]), Partout<S>(sequence));
    if (autres != 0) f(Trouvaille<Bits>{.symboles = sequence, .lieux = lieux, .perdants = autres});
  });
}

template <int S>
template <class A, class E, class F>
SUDOKU_EN_LIGNE void TrouveVoies<S>::NuesDe(int u, Bits debuts, A agit, E encore, F f) const {
  while (debuts != 0) {
    const int premier = std::countr_zero(debuts);
    debuts &= debuts - 1;
    const Bits sequence = candidats_[u][premier];
    if (!agit(sequence)) continue;
    const V candidats = Lit<S>(candidats_[u]);
    const Bits egales = BitsEgales(candidats, Partout<S>(sequence));
    const Bits lieux = Depuis(egales, premier);
    const Bits perdants = BitsNonNulles(candidats & Partout<S>(sequence)) & ~egales;
    if (perdants == 0 || std::popcount(lieux) != std::popcount(sequence)) continue;
    f(Trouvaille<Bits>{.symboles = sequence, .lieux = lieux, .perdants = perdants});
    debuts = encore() & ~((Bits{2} << premier) - 1);
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
