#pragma once

#include "engine/trouve.h"
#include "solver/neuf_voies.h"
#include "solver/ordre_voies.h"
#include "solver/planches_voies.h"

// What the search finds on boards of side 9, where time goes by millions of units in which there is nothing.
namespace sudoku::SUDOKU_MOTEUR {
namespace {

// A Trouveur as TrouveVoies<3>, which fills on the board itself what PoseSeules can, and has nothing to do
// with those cells then. It looks at hidden and naked sets of a unit together, at all units before the first
// sweep, and goes only to those in which there is something. What it has from TrouveVoies<3> as it is stands
// in the using-declarations.
class TrouveNeuf : private TrouveVoies<3> {
 public:
  using TrouveVoies<3>::Bits, TrouveVoies<3>::CandidatsDe, TrouveVoies<3>::CandidatsDeLigne;
  using TrouveVoies<3>::Cellule, TrouveVoies<3>::ChaqueSolution, TrouveVoies<3>::Dedans;
  using TrouveVoies<3>::HorsDe, TrouveVoies<3>::Places;

  // What is to be found in a unit without what is proved, bits by symbol; then, by place, where naked sets
  // begin.
  struct Apercu {
    std::uint32_t bits;  // 9, 8 and 8
    Bits prouves;        // what was proved then

    Bits Seules() const { return bits & 0777; }
    Bits Cachees() const { return bits >> 9 & 0377; }
    Bits Nues() const { return bits >> 17; }
  };

  explicit TrouveNeuf(Cases<3>& cases) : TrouveVoies<3>(lignes_), cases_(cases) {}

  bool Amorce(Appui appui);
  void Transpose();
  int UniteSale(int depuis);
  Apercu Reste(int u);
  template <class F>
  void ChaqueSeule(int u, const Apercu& e, F f) const {
    Chaque(e.Seules(), [&](int s) { f(s, std::countr_zero(Bits{places_[u][s]})); });
  }
  template <class F>
  void ChaqueConfinee(int u, const Apercu& e, F f);
  template <class F>
  void ChaqueCachee(int u, const Apercu& e, F f);
  template <class F>
  void ChaqueNue(int u, const Apercu& e, F f);
  template <class F>
  void ChaqueFigure(F f);
  template <class F>
  void ChaqueReduite(F f);

  bool Enleve(int cellule, int symbole) { return EnleveTous(cellule, UnBit(symbole)); }
  bool EnleveNue(int cellule, const Trouvaille<Bits>& t) {
    return EnleveTous(cellule, CandidatsDe(cellule) & t.symboles);
  }
  void Remplace(int cellule, Bits sequence);
  // What ordre_voies.h asks of the board where nothing is left to deduce.
  bool SansOrdre() const;
  void PoseSolution(int cellule, int symbole) {
    if (prouve_) valables_ &= ~Unites(cellule);
    TrouveVoies<3>::PoseSolution(cellule, symbole);
  }

 private:
  static std::uint32_t Unites(int cellule) {
    return static_cast<std::uint32_t>(kLieux<3>.lieux[cellule].unites[0]);
  }
  bool NoteContenus();
  void TransposeCandidats();
  void TransposePlaces();
  std::uint32_t EtatDe(int u, const MotDe<3>* places) const;
  V PlacesDe(int s, TypeUnite type) const;
  bool EnleveTous(int cellule, Bits symboles);

  Cases<3>& cases_;
  Contenus<3> lignes_;  // what Transpose wants of the contents
  bool prouve_ = false;
  bool aNoter_ = false;  // the contents leave a cell nothing, and what they leave others isn't known yet
  // Sets of units: to be looked at; of these, where there may be a locked candidate; whose state holds.
  std::uint32_t aVoir_ = 0;
  std::uint32_t confinees_ = 0;
  std::uint32_t valables_ = 0;
  std::uint32_t etats_[kUnites];  // Apercu::bits
};

inline bool TrouveNeuf::Amorce(Appui appui) {
  Suivi<3>::Commence(appui);
  prouve_ = appui == Appui::kSur;
  if (cases_.fausses != 0) return NoteContenus();
  for (int l = 0; l < N; ++l) Suivi<3>::NoteSeuls(l, 0);
  aNoter_ = !PoseSeules(cases_);
  return !aNoter_;
}

// What the contents leave. False: nothing to a cell.
[[gnu::noinline]] inline bool TrouveNeuf::NoteContenus() {
  aNoter_ = false;
  TransposeCandidats();
  bool complets = true;
  for (int l = 0; l < N; ++l) {
    const V candidats = Lit<3>(CandidatsDeLigne(l));
    complets &= BitsNonNulles(candidats) == Bits{lignes_.ouvertes[kLigne][l]};
    Suivi<3>::NoteSeuls(l, EnBits(SUDOKU_MOTEUR::Seules(candidats)));
  }
  return complets;
}

inline void TrouveNeuf::TransposeCandidats() {
  std::memcpy(lignes_.symboles, cases_.symboles, sizeof lignes_.symboles);
  for (int n = 0; n < N; ++n) {
    lignes_.ouvertes[kLigne][n] = cases_.libres.mots[n / 3] >> n % 3 * 9 & 0777;
    lignes_.ouvertes[kColonne][n] = cases_.libres.mots[3 + n / 3] >> n % 3 * 9 & 0777;
  }
  ChaqueLigne<3>(lignes_, [&](int l, const auto& c, const V&)
                              SUDOKU_LAMBDA_EN_LIGNE { EcritChaque<3>(candidats_[Unite(kLigne, l)], c); });
  ChaqueColonne<3>(lignes_, [&](int c, const auto& l) SUDOKU_LAMBDA_EN_LIGNE {
    EcritChaque<3>(candidats_[Unite(kColonne, c)], l);
  });
  for (int b = 0; b < N; ++b) {
    const auto part = [&](int l) { return candidats_[Unite(kLigne, b / 3 * 3 + l)] + b % 3 * 3; };
    RangeTrois(candidats_[Unite(kCarre, b)], part(0), part(1), part(2));
  }
}

SUDOKU_EN_LIGNE void TrouveNeuf::TransposePlaces() {
  Quatre libres[2];
  std::memcpy(libres, cases_.libres.mots, sizeof libres);
  Quatre mots[2][2][4];  // by half of the symbols, half of the words, word; a lane a symbol
  for (int symboles = 0; symboles < 2; ++symboles) {
    for (int moitie = 0; moitie < 2; ++moitie) {
      auto& q = mots[symboles][moitie];
      for (int s = 0; s < 4; ++s) {
        std::memcpy(&q[s], cases_.restes[4 * symboles + s].mots + 4 * moitie, sizeof q[s]);
        q[s] &= libres[moitie];
      }
      TourneQuatre(q);
    }
  }
  const auto range = [&](TypeUnite type, int n, int m, auto f) SUDOKU_LAMBDA_EN_LIGNE {
    RangeNeuf(places_[Unite(type, n)], f(mots[0][m / 4][m % 4]), f(mots[1][m / 4][m % 4]),
              f(cases_.restes[8].mots[m] & cases_.libres.mots[m]));
  };
  ChaqueConstante<3>([&](auto m) SUDOKU_LAMBDA_EN_LIGNE {
    ChaqueConstante<3>([&](auto k) SUDOKU_LAMBDA_EN_LIGNE {
      const auto ligne = [&](const auto& mot) SUDOKU_LAMBDA_EN_LIGNE { return mot >> 9 * k & 0777U; };
      range(kLigne, 3 * m + k, m, ligne);
      range(kColonne, 3 * m + k, 3 + m, ligne);
      range(kCarre, 3 * m + k, m, [&](const auto& mot) SUDOKU_LAMBDA_EN_LIGNE {
        const auto carre = mot >> 3 * k;
        return (carre & 07U) | (carre >> 6 & 070U) | (carre >> 12 & 0700U);
      });
    });
  });
}

[[gnu::noinline]] inline void TrouveNeuf::Transpose() {
  TransposeCandidats();
  TransposePlaces();
  ToutSale();
  confinees_ = aVoir_ = UnitesConfinees(cases_);
  for (int u = 0; u < kUnites; u += 2) {
    const int v = std::min(u + 1, kUnites - 1);
    const Releve releve = Regarde(QuatreTables({places_[u], candidats_[u], places_[v], candidats_[v]}));
    const auto etat = [&](int k, int un) {
      const std::uint32_t bits =
          (releve.seuls >> k & 0377) | (releve.neuviemes >> k & 1) << 8 | (releve.debuts >> k & 0xFFFF) << 9;
      etats_[un] = bits;
      aVoir_ |= std::uint32_t{bits != 0} << un;
    };
    etat(0, u);
    etat(16, v);
  }
  valables_ = ~0U;
}

// By kind and places: the part of a unit, a number in Croisements, in which they all lie, two or more;
// kAucune.
struct PartieDesPlaces {
  static constexpr std::uint8_t kAucune = 0xFF;
  std::uint8_t de[3][512] = {};

  constexpr PartieDesPlaces() {
    for (int g = 0; g < 3; ++g) {
      for (std::uint32_t p = 0; p < 512; ++p) {
        de[g][p] = kAucune;
        for (std::uint8_t k = 0; (p & (p - 1)) != 0 && k < 3; ++k) {
          if ((p & ~kLieux<3>.groupe[k]) == 0) de[g][p] = k;
          if (g == kCarre && (p & ~kLieux<3>.residu[k]) == 0) de[g][p] = 3 + k;
        }
      }
    }
  }
};
inline constexpr PartieDesPlaces kPartieDesPlaces;

inline bool TrouveNeuf::EnleveTous(int cellule, Bits symboles) {
  const Lieu<3>& lieu = kLieux<3>.lieux[cellule];
  for (int g = 0; g < 3; ++g) {
    const int u = lieu.unite[g];
    candidats_[u][lieu.place[g]] &= static_cast<Mot>(~symboles);
    Chaque(symboles, [&](int s) {
      Mot& places = places_[u][s];
      places &= static_cast<Mot>(~UnBit(lieu.place[g]));
      const bool confinee = kPartieDesPlaces.de[g][places] != PartieDesPlaces::kAucune;
      confinees_ |= std::uint32_t{confinee} << u;
    });
  }
  aVoir_ |= Unites(cellule);
  valables_ &= ~Unites(cellule);
  Salit(cellule, symboles);
  const Bits reste = CandidatsDe(cellule);
  if ((reste & (reste - 1)) == 0) NoteSeul(cellule);
  return reste != 0;
}

SUDOKU_EN_LIGNE int TrouveNeuf::UniteSale(int depuis) {
  const std::uint32_t reste = aVoir_ >> depuis << depuis;
  if (reste == 0) return -1;
  aVoir_ &= ~(reste & (~reste + 1));
  return std::countr_zero(reste);
}

SUDOKU_EN_LIGNE std::uint32_t TrouveNeuf::EtatDe(int u, const MotDe<3>* places) const {
  const Duo<3> vues(places, candidats_[u]);
  return vues.De(kPremiere, 1) | (vues.Debuts(kPremiere) & 0377) << 9 | (vues.Debuts(kSeconde) & 0377) << 17;
}

SUDOKU_EN_LIGNE TrouveNeuf::Apercu TrouveNeuf::Reste(int u) {
  if ((valables_ >> u & 1) != 0) return {etats_[u], prouves_[u]};
  valables_ |= std::uint32_t{1} << u;
  if (!prouve_) return {etats_[u] = EtatDe(u, places_[u]), 0};
  alignas(64) MotDe<3> places[16];
  Ecrit<3>(places, Lit<3>(places_[u]) & ~Etale<3>(prouves_[u]));
  return {etats_[u] = EtatDe(u, places), prouves_[u]};
}

// Symbols don't touch each other.
template <class F>
SUDOKU_EN_LIGNE void TrouveNeuf::ChaqueConfinee(int u, const Apercu& e, F f) {
  if ((confinees_ >> u & 1) == 0) return;
  confinees_ &= ~(std::uint32_t{1} << u);
  const Croisements<3>& croisements = kLieux<3>.croisements[u];
  const V places = Lit<3>(places_[u]);
  const V ou = places | Nulles(places);  // a symbol without places isn't confined to anything
  V tous{};
  const auto ajoute = [&](auto k) SUDOKU_LAMBDA_EN_LIGNE {
    const auto& c = croisements.un[k];
    tous |= Lit<3>(places_[c.unite]) & Nulles(ou & Partout<3>(c.horsDeIci)) & Partout<3>(c.horsDeLa);
  };
  ChaqueConstante<3>(ajoute);
  if (TypeDe(u) == kCarre) ChaqueConstante<3>([&](auto k) SUDOKU_LAMBDA_EN_LIGNE { ajoute(k + 3); });
  Chaque(BitsNonNulles(tous) & ~(e.prouves | e.Seules()), [&](int s) {
    const Bits lieux = places_[u][s];
    const auto& c = croisements.un[kPartieDesPlaces.de[TypeDe(u)][lieux]];
    f(Trouvaille<Bits>{.symboles = UnBit(s),
                       .lieux = lieux,
                       .perdants = places_[c.unite][s] & c.horsDeLa,
                       .unite = c.unite});
  });
}

template <class F>
SUDOKU_EN_LIGNE void TrouveNeuf::ChaqueCachee(int u, const Apercu& e, F f) {
  if (e.Cachees() == 0) return;
  Ecrit<3>(aPlacer_, Lit<3>(places_[u]) & ~Etale<3>(e.prouves));
  CacheesDe(
      u, e.Cachees(), [](Bits) { return true; }, f);
}

template <class F>
SUDOKU_EN_LIGNE void TrouveNeuf::ChaqueNue(int u, const Apercu&, F f) {
  const auto encore = [&] { return Apercu{EtatDe(u, places_[u]), 0}.Nues(); };
  const bool valable = (valables_ >> u & 1) != 0;
  NuesDe(
      u, valable ? Apercu{etats_[u], 0}.Nues() : encore(), [](Bits) { return true; }, encore, f);
}

inline void TrouveNeuf::Remplace(int cellule, Bits sequence) {
  const bool revient = (sequence & ~CandidatsDe(cellule)) != 0;
  const std::uint32_t unites = revient ? (std::uint32_t{1} << kUnites) - 1 : Unites(cellule);
  aVoir_ |= unites;
  confinees_ |= unites;
  valables_ &= ~unites;
  TrouveVoies<3>::Remplace(cellule, sequence);
}

// The places of a symbol in the units of a kind, a lane a unit, put together in registers: what is loaded at
// once mustn't have been stored in pieces just before.
SUDOKU_EN_LIGNE Voies<3> TrouveNeuf::PlacesDe(int s, TypeUnite type) const {
  const auto place = [&](int i) { return places_[Unite(type, i)][s]; };
  using R = Voies<3>::Registre;
#if defined(__AVX2__)
  return {{R{place(0), place(1), place(2), place(3), place(4), place(5), place(6), place(7), place(8)}}};
#else
  return {{R{place(0), place(1), place(2), place(3), place(4), place(5), place(6), place(7)}, R{place(8)}}};
#endif
}

// A search nearly always ends where Amorce gave false; only where it goes on it comes here.
template <class F>
SUDOKU_EN_LIGNE void TrouveNeuf::ChaqueReduite(F f) {
  if (aNoter_) NoteContenus();
  TrouveVoies<3>::ChaqueReduite(f);
}

template <class F>
void TrouveNeuf::ChaqueFigure(F f) {
  Chaque(SymbolesSales(), [&](int s) {
    const V colonnes = PlacesDe(s, kColonne);
    const V lignes = PlacesDe(s, kLigne);
    FiguresDe(s, colonnes, lignes, PlacesDe(s, kCarre), Duo<3>(colonnes, lignes), f);
  });
}

// Tables with lanes enough for an active set, two by two: of units, then of symbols.
[[gnu::noinline]] inline bool TrouveNeuf::SansOrdre() const {
  const Mot* tables[kUnites + N][2];
  int combien = 0;
  for (int u = 0; u < kUnites; ++u) {
    const Bits symboles = cases_.symboles[TypeDe(u)][NumeroDe(u)];
    const int ouvertes = std::popcount(BitsNonNulles(Lit<3>(candidats_[u])));
    if (ouvertes + std::popcount(symboles) != N) return false;
    if ((BitsNonNulles(Lit<3>(places_[u])) | symboles) != kLieux<3>.tous) return false;
    tables[combien][0] = candidats_[u];
    tables[combien][1] = places_[u];
    combien += ouvertes < kVoiesDUnEnsemble ? 0 : 1;
  }
  V lignes{};  // in how many of them each symbol has places
  for (int l = 0; l < N; ++l) lignes = lignes - NonNulles(Lit<3>(places_[Unite(kLigne, l)]));
  alignas(64) Mot places[N][2][Taille(kVoies)];
  Chaque(EnBits(PlusDe(kVoiesDUnEnsemble - 1, lignes)), [&](int s) {
    Ecrit<3>(places[s][0], PlacesDe(s, kLigne));
    Ecrit<3>(places[s][1], PlacesDe(s, kColonne));
    tables[combien][0] = places[s][0];
    tables[combien++][1] = places[s][1];
  });
  for (int i = 0; i < combien; i += 2) {
    const auto& a = tables[i];
    const auto& b = tables[std::min(i + 1, combien - 1)];
    if (EnsembleActif({a[0], a[1], b[0], b[1]})) return false;
  }
  return true;
}

}  // namespace
}  // namespace sudoku::SUDOKU_MOTEUR
