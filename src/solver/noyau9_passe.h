// One version of the kernel for grids of side 9: included by noyau9_*.cpp, each of which names the namespace
// SUDOKU_NOYAU and is compiled for an instruction set.

#pragma once

#include <cstring>

#include "solver/noyau9.h"
#include "solver/voies9.h"

namespace sudoku::SUDOKU_NOYAU {
namespace {

constexpr int kTous = 0x1FF;
constexpr int kGroupe[3] = {0x007, 0x038, 0x1C0};  // places in a row of a block, of a line
constexpr int kResidu[3] = {0x049, 0x092, 0x124};  // places in a column of a block
constexpr std::uint32_t kToutesUnites = (1U << 27) - 1;

// Units are numbered 3 * (number - 1) + kind, in the order in which the engine goes through them.
enum Genre9 { kCarre9 = 0, kLigne9 = 1, kColonne9 = 2 };
constexpr int Unite(int genre, int numero) { return 3 * numero + genre; }

// Where a cell lies: its units and its place in each, by kind.
struct Lieu {
  std::uint8_t unite[3];
  std::uint8_t place[3];
};
struct Geometrie9 {
  Lieu lieux[81];
  std::uint8_t cellules[27][9];

  constexpr Geometrie9() : lieux(), cellules() {
    for (int i = 0; i < 81; ++i) {
      const int ligne = i / 9;
      const int colonne = i % 9;
      const int numero[3] = {ligne / 3 * 3 + colonne / 3, ligne, colonne};
      const int place[3] = {ligne % 3 * 3 + colonne % 3, colonne, ligne};
      for (int g = 0; g < 3; ++g) {
        lieux[i].unite[g] = static_cast<std::uint8_t>(Unite(g, numero[g]));
        lieux[i].place[g] = static_cast<std::uint8_t>(place[g]);
        cellules[Unite(g, numero[g])][place[g]] = static_cast<std::uint8_t>(i);
      }
    }
  }
};
constexpr Geometrie9 kGeo;

inline int Compte(std::uint32_t m) { return __builtin_popcount(m); }
inline int Premier(std::uint32_t m) { return __builtin_ctz(m); }

// One evaluation after the other on one board.
class Passe {
 public:
  Passe(Cases9& cases, Mode9 mode, Passe9& resultat) : cases_(cases), mode_(mode), r_(resultat) {}
  void JeuSolve();

 private:
  enum Suite { kContradiction, kRien, kSolutions };

  Suite Candidats();
  void Retourne();
  Suite Deduit();
  bool Balaye();
  bool TestSerie(int u);
  void Seules(int u, V16 places, std::uint32_t symboles);
  void Reprouve(int u);
  bool Verrouilles(int u, V16 places);
  bool Inference(V16 verrouilles, int u2, int horsDe);
  bool Caches(int u, const std::uint16_t* places, std::uint32_t debuts);
  bool Nus(int u);
  bool NxN();
  bool FiguresDe(int s);
  bool EnLignes(int s, const std::uint16_t* lignes, std::uint32_t debuts, int genre2);
  bool EnCarres(int s, const std::uint16_t* cles, std::uint32_t debuts, int genre, int genre2);
  bool Retire(int s, int u, int horsDe);
  void Enleve(int cellule, int symboles);
  void Remplace(int cellule, int sequence);
  void Releve();
  bool Ecrit();

  Cases9& cases_;
  Mode9 mode_;
  Passe9& r_;

  // Candidates by unit and place, places by unit and symbol; lanes 9 to 15 stay 0.
  alignas(32) std::uint16_t candidats_[27][16];
  alignas(32) std::uint16_t places_[27][16];
  std::uint16_t prouves_[27];    // by unit: symbols proved in it during this sweep (kSur only)
  std::uint8_t solution_[81];    // symbol + 1
  std::uint16_t seuls_[9];       // by row: cells that came down to one candidate since the last Releve
  std::uint32_t sales_;          // units some cell of which changed since their own last run
  int symbolesSales_;            // symbols whose places changed since the last search for figures
  bool contradiction_;
  bool aRemplir_;
};

void Passe::JeuSolve() {
  r_.erronee = false;
  for (;;) {
    Suite suite = Candidats();
    if (suite == kRien && cases_.remplies < 81) {
      Retourne();
      suite = Deduit();
    }
    if (suite == kContradiction) {
      r_.verdict = -1;
      return;
    }
    if (suite == kRien) break;
    if (!Ecrit()) return;
  }
  r_.verdict = static_cast<std::int16_t>(81 - cases_.remplies);
  for (int i = 0; i < 81; ++i) r_.candidats[i] = candidats_[Unite(kLigne9, i / 9)][i % 9];
}

// What the contents leave to each cell; cells with one candidate have their solution. An empty cell without
// any is a contradiction, whatever else is found.
Passe::Suite Passe::Candidats() {
  const V16 colonnes = Lit(cases_.colonnes);
  const V16 carres = Lit(cases_.carres);
  const V16 parBande[3] = {
      __builtin_shufflevector(carres, carres, 0, 0, 0, 1, 1, 1, 2, 2, 2, 15, 15, 15, 15, 15, 15, 15),
      __builtin_shufflevector(carres, carres, 3, 3, 3, 4, 4, 4, 5, 5, 5, 15, 15, 15, 15, 15, 15, 15),
      __builtin_shufflevector(carres, carres, 6, 6, 6, 7, 7, 7, 8, 8, 8, 15, 15, 15, 15, 15, 15, 15)};
  std::uint32_t seuls[9];
  V16 nuls = {};
  std::uint32_t unSeul = 0;
  for (int l = 0; l < 9; ++l) {
    const V16 vides = Lit(cases_.videsLigne[l]);
    const V16 c = ~(colonnes | parBande[l / 3] | Partout(cases_.lignes[l])) & vides & kTous;
    Range(candidats_[Unite(kLigne9, l)], c);
    nuls |= Egales(c, V16{}) & vides;
    seuls[l] = Bits(Egales(c & (c - 1), V16{}) & vides);
    unSeul |= seuls[l];
  }
  if (Bits(nuls) != 0) return kContradiction;
  if (unSeul == 0) return kRien;
  std::memset(solution_, 0, sizeof solution_);
  for (int l = 0; l < 9; ++l) {
    for (std::uint32_t m = seuls[l]; m != 0; m &= m - 1) {
      const int c = Premier(m);
      solution_[9 * l + c] = static_cast<std::uint8_t>(Premier(candidats_[Unite(kLigne9, l)][c]) + 1);
    }
  }
  return kSolutions;
}

// The rest of the tables, from the candidates by row.
void Passe::Retourne() {
  const V16 lignes = Lit(cases_.lignes);
  const V16 carres = Lit(cases_.carres);
  const V16 parPile[3] = {
      __builtin_shufflevector(carres, carres, 0, 0, 0, 3, 3, 3, 6, 6, 6, 15, 15, 15, 15, 15, 15, 15),
      __builtin_shufflevector(carres, carres, 1, 1, 1, 4, 4, 4, 7, 7, 7, 15, 15, 15, 15, 15, 15, 15),
      __builtin_shufflevector(carres, carres, 2, 2, 2, 5, 5, 5, 8, 8, 8, 15, 15, 15, 15, 15, 15, 15)};
  for (int c = 0; c < 9; ++c) {
    const V16 vides = Lit(cases_.videsColonne[c]);
    Range(candidats_[Unite(kColonne9, c)],
          ~(lignes | parPile[c / 3] | Partout(cases_.colonnes[c])) & vides & kTous);
  }
  for (int b = 0; b < 9; ++b) {
    std::uint16_t* const carre = candidats_[Unite(kCarre9, b)];
    Range(carre, V16{});
    for (int l = 0; l < 3; ++l) {
      std::memcpy(carre + 3 * l, candidats_[Unite(kLigne9, b / 3 * 3 + l)] + b % 3 * 3, 3 * sizeof(std::uint16_t));
    }
  }
  for (int u = 0; u < 27; ++u) {
    const V16 c = Lit(candidats_[u]);
    Range(places_[u], V16{});
    for (int s = 0; s < 9; ++s) {
      const auto symbole = static_cast<std::uint16_t>(1U << s);
      places_[u][s] = static_cast<std::uint16_t>(Bits(NonNul(c & symbole)));
    }
  }
}

Passe::Suite Passe::Deduit() {
  std::memset(solution_, 0, sizeof solution_);
  std::memset(prouves_, 0, sizeof prouves_);
  std::memset(seuls_, 0, sizeof seuls_);
  sales_ = kToutesUnites;
  symbolesSales_ = kTous;
  contradiction_ = false;
  aRemplir_ = false;
  for (;;) {
    const bool change = Balaye() || (!contradiction_ && !aRemplir_ && NxN());
    if (contradiction_) return kContradiction;
    if (change) Releve();
    if (aRemplir_) return kSolutions;
    if (!change) return kRien;
  }
}

// One sweep: block, row, column of each number; units that can only give nothing again are left out. It stops
// at the first cell without candidates: such a cell stays so, and the verdict is -1.
bool Passe::Balaye() {
  bool change = false;
  for (std::uint32_t reste = kToutesUnites; (sales_ & reste) != 0 && !contradiction_;) {
    const int u = Premier(sales_ & reste);
    reste = ~((2U << u) - 1);
    sales_ &= ~(1U << u);
    change |= TestSerie(u);
  }
  return change;
}

bool Passe::TestSerie(int u) {
  alignas(32) std::uint16_t copie[16];  // the sets go by the places as they are now
  V16 places = Lit(places_[u]);
  if (mode_ == Mode9::kSur && prouves_[u] != 0) {
    Range(copie, places);
    for (std::uint32_t m = prouves_[u]; m != 0; m &= m - 1) copie[Premier(m)] = 0;
    places = Lit(copie);
  }
  const V16 seules = Egales(places & (places - 1), V16{}) & NonNul(places);
  const std::uint32_t symboles = Bits(seules);
  if (symboles != 0) Seules(u, places, symboles);
  bool change = Verrouilles(u, places & ~seules);
  const std::uint32_t caches = Ensembles(places);
  if (caches != 0) {
    Range(copie, places);
    change |= Caches(u, copie, caches);
  }
  return static_cast<int>(change) | static_cast<int>(Nus(u));
}

void Passe::Seules(int u, V16 places, std::uint32_t symboles) {
  alignas(32) std::uint16_t p[16];
  Range(p, places);
  aRemplir_ = true;
  for (; symboles != 0; symboles &= symboles - 1) {
    const int s = Premier(symboles);
    const int cellule = kGeo.cellules[u][Premier(p[s])];
    const bool autre = solution_[cellule] != 0;
    solution_[cellule] = static_cast<std::uint8_t>(s + 1);
    if (mode_ == Mode9::kPossible) continue;
    for (const int unite : kGeo.lieux[cellule].unite) {
      prouves_[unite] = static_cast<std::uint16_t>(prouves_[unite] | 1 << s);
      if (autre) Reprouve(unite);
    }
  }
}

// A second symbol was proved for a cell and took the place of the first (a contradictory board): the first is
// proved in the cell's units no more, unless another cell has it.
void Passe::Reprouve(int u) {
  prouves_[u] = 0;
  for (const int cellule : kGeo.cellules[u]) {
    const int prouve = 1 << solution_[cellule] >> 1;
    prouves_[u] = static_cast<std::uint16_t>(prouves_[u] | prouve);
  }
}

// Symbols with two places or more in this unit, all of them in one unit of another kind, go from the rest of
// that one.
bool Passe::Verrouilles(int u, V16 places) {
  const int genre = u % 3;
  const int bande = u / 9;     // of the number of the unit
  const int pile = u / 3 % 3;
  bool change = false;
  for (int k = 0; k < 3; ++k) {
    const V16 dansGroupe = Egales(places & static_cast<std::uint16_t>(~kGroupe[k]), V16{}) & NonNul(places);
    if (genre == kCarre9) {
      change |= Inference(dansGroupe, Unite(kLigne9, 3 * bande + k), kGroupe[pile]);
      const V16 dansResidu = Egales(places & static_cast<std::uint16_t>(~kResidu[k]), V16{}) & NonNul(places);
      change |= Inference(dansResidu, Unite(kColonne9, 3 * pile + k), kGroupe[bande]);
    } else if (genre == kLigne9) {
      change |= Inference(dansGroupe, Unite(kCarre9, 3 * bande + k), kGroupe[pile]);
    } else {
      change |= Inference(dansGroupe, Unite(kCarre9, 3 * k + bande), kResidu[pile]);
    }
  }
  return change;
}

// Takes the symbols whose lanes are set out of unit u2, but for its places `horsDe`.
bool Passe::Inference(V16 verrouilles, int u2, int horsDe) {
  const V16 perdants = Lit(places_[u2]) & verrouilles & static_cast<std::uint16_t>(~horsDe);
  const std::uint32_t symboles = Bits(NonNul(perdants));
  if (symboles == 0) return false;
  alignas(32) std::uint16_t p[16];
  Range(p, perdants);
  for (std::uint32_t m = symboles; m != 0; m &= m - 1) {
    const int s = Premier(m);
    for (std::uint32_t lieux = p[s]; lieux != 0; lieux &= lieux - 1) {
      Enleve(kGeo.cellules[u2][Premier(lieux)], 1 << s);
    }
  }
  return true;
}

// Hidden sets: each begins at a symbol of `debuts` and has the later symbols with the same places.
bool Passe::Caches(int u, const std::uint16_t* places, std::uint32_t debuts) {
  bool change = false;
  for (; debuts != 0; debuts &= debuts - 1) {
    const int premier = Premier(debuts);
    int sequence = 0;
    for (int s = premier; s < 9; ++s) {
      if (places[s] == places[premier]) sequence |= 1 << s;
    }
    for (std::uint32_t m = places[premier]; m != 0; m &= m - 1) {
      const int place = Premier(m);
      if (candidats_[u][place] == sequence) continue;
      Remplace(kGeo.cellules[u][place], sequence);
      change = true;
    }
  }
  return change;
}

// Naked sets, on the candidates of the moment.
bool Passe::Nus(int u) {
  bool change = false;
  std::uint32_t debuts = Ensembles(Lit(candidats_[u]));
  while (debuts != 0) {
    const int premier = Premier(debuts);
    debuts &= debuts - 1;
    const V16 candidats = Lit(candidats_[u]);
    const V16 sequence = Partout(candidats_[u][premier]);
    std::uint32_t perdants = Bits(NonNul(candidats & sequence) & ~Egales(candidats, sequence));
    if (perdants == 0) continue;
    const int symboles = candidats_[u][premier];
    for (; perdants != 0; perdants &= perdants - 1) {
      const int place = Premier(perdants);
      Enleve(kGeo.cellules[u][place], candidats_[u][place] & symboles);
    }
    change = true;
    debuts = Ensembles(Lit(candidats_[u])) & ~((2U << premier) - 1);
  }
  return change;
}

// Figures: symbols don't touch each other, so that each is searched and acted on by itself; all figures of one
// symbol are found before the first of them acts.
bool Passe::NxN() {
  bool change = false;
  for (int m = symbolesSales_; m != 0; m &= m - 1) {
    const int s = Premier(static_cast<std::uint32_t>(m));
    symbolesSales_ &= ~(1 << s);
    change |= FiguresDe(s);
  }
  return change;
}

// Symbol s goes from the places of unit u that aren't in `horsDe`.
bool Passe::Retire(int s, int u, int horsDe) {
  const std::uint32_t perdants = places_[u][s] & static_cast<std::uint32_t>(~horsDe);
  for (std::uint32_t m = perdants; m != 0; m &= m - 1) Enleve(kGeo.cellules[u][Premier(m)], 1 << s);
  return perdants != 0;
}

// The keys of units seen through blocks, or of blocks seen through lines: which of three units side by side,
// `ou` the three bits' lanes, and behind them which three.
inline V16 Cle3(V16 places, const int (&parties)[3], V16 trois) {
  return (NonNul(places & static_cast<std::uint16_t>(parties[0])) & 1) |
         (NonNul(places & static_cast<std::uint16_t>(parties[1])) & 2) |
         (NonNul(places & static_cast<std::uint16_t>(parties[2])) & 4) | trois;
}

bool Passe::FiguresDe(int s) {
  static constexpr V16 kParBande = {8, 8, 8, 16, 16, 16, 24, 24, 24};
  static constexpr V16 kParPile = {8, 16, 24, 8, 16, 24, 8, 16, 24};
  static constexpr V16 kUnique = {32, 33, 34, 35, 36, 37, 38, 39, 40};
  alignas(32) std::uint16_t p[3][16] = {};
  for (int i = 0; i < 9; ++i) {
    for (int g = 0; g < 3; ++g) p[g][i] = places_[Unite(g, i)][s];
  }
  const V16 carres = Lit(p[kCarre9]);
  const V16 lignes = Lit(p[kLigne9]);
  const V16 colonnes = Lit(p[kColonne9]);
  const V16 nCarres = Comptes(carres);
  const V16 nLignes = Comptes(lignes);
  const V16 nColonnes = Comptes(colonnes);
  const V16 carreLigne = Cle3(carres, kGroupe, kParBande);
  const V16 carreColonne = Cle3(carres, kResidu, kParPile);
  // Blocks serve only lines with fewer than three places.
  const V16 courtes = reinterpret_cast<V16>(nLignes < 3);
  const V16 courtesC = reinterpret_cast<V16>(nColonnes < 3);
  const V16 ligneCarre = (Cle3(lignes, kGroupe, kParBande) & courtes) | (kUnique & ~courtes);
  const V16 colonneCarre = (Cle3(colonnes, kGroupe, kParBande) & courtesC) | (kUnique & ~courtesC);
  const std::uint32_t debuts[6] = {
      Ensembles(colonnes, nColonnes),      Ensembles(colonneCarre, nColonnes), Ensembles(lignes, nLignes),
      Ensembles(ligneCarre, nLignes),      Ensembles(carreColonne, nCarres),   Ensembles(carreLigne, nCarres)};
  if ((debuts[0] | debuts[1] | debuts[2] | debuts[3] | debuts[4] | debuts[5]) == 0) return false;
  alignas(32) std::uint16_t cles[4][16];
  Range(cles[0], colonneCarre);
  Range(cles[1], ligneCarre);
  Range(cles[2], carreColonne);
  Range(cles[3], carreLigne);
  bool change = EnLignes(s, p[kColonne9], debuts[0], kLigne9);
  change |= EnCarres(s, cles[0], debuts[1], kColonne9, kCarre9);
  change |= EnLignes(s, p[kLigne9], debuts[2], kColonne9);
  change |= EnCarres(s, cles[1], debuts[3], kLigne9, kCarre9);
  change |= EnCarres(s, cles[2], debuts[4], kCarre9, kColonne9);
  change |= EnCarres(s, cles[3], debuts[5], kCarre9, kLigne9);
  return change;
}

// Figures of lines confined to crossing lines of kind genre2.
bool Passe::EnLignes(int s, const std::uint16_t* lignes, std::uint32_t debuts, int genre2) {
  bool change = false;
  for (; debuts != 0; debuts &= debuts - 1) {
    const int premiere = Premier(debuts);
    int figure = 0;
    for (int l = premiere; l < 9; ++l) figure |= (lignes[l] == lignes[premiere]) << l;
    for (std::uint32_t m = lignes[premiere]; m != 0; m &= m - 1) {
      change |= Retire(s, Unite(genre2, Premier(m)), figure);
    }
  }
  return change;
}

// Figures between lines and blocks. A key names three units side by side, of which k = 0, 1, 2 may be held.
bool Passe::EnCarres(int s, const std::uint16_t* cles, std::uint32_t debuts, int genre, int genre2) {
  bool change = false;
  const bool enColonnes = genre == kColonne9 || genre2 == kColonne9;
  for (; debuts != 0; debuts &= debuts - 1) {
    const int premiere = Premier(debuts);
    const int cle = cles[premiere];
    const int trois = (cle >> 3) - 1;  // the band, or the stack, in which the figure lies
    int dedans = 0;                    // places of the figure's units in a unit of the key
    for (int i = premiere; i < 9; ++i) {
      if (cles[i] != cle) continue;
      if (genre == kCarre9) {
        dedans |= kGroupe[enColonnes ? i / 3 : i % 3];
      } else {
        dedans |= enColonnes ? kResidu[i % 3] : kGroupe[i % 3];
      }
    }
    for (int k = 0; k < 3; ++k) {
      if ((cle >> k & 1) == 0) continue;
      const int numero = genre2 == kCarre9 && enColonnes ? 3 * k + trois : 3 * trois + k;
      change |= Retire(s, Unite(genre2, numero), dedans);
    }
  }
  return change;
}

void Passe::Enleve(int cellule, int symboles) {
  const Lieu& lieu = kGeo.lieux[cellule];
  for (int g = 0; g < 3; ++g) {
    const int u = lieu.unite[g];
    const auto place = static_cast<std::uint16_t>(~(1 << lieu.place[g]));
    candidats_[u][lieu.place[g]] &= static_cast<std::uint16_t>(~symboles);
    for (int m = symboles; m != 0; m &= m - 1) places_[u][Premier(static_cast<std::uint32_t>(m))] &= place;
    sales_ |= 1U << u;
  }
  symbolesSales_ |= symboles;
  const int reste = candidats_[lieu.unite[kLigne9]][lieu.place[kLigne9]];
  if (reste == 0) contradiction_ = true;
  if ((reste & (reste - 1)) == 0) {
    std::uint16_t& seuls = seuls_[cellule / 9];
    seuls = static_cast<std::uint16_t>(seuls | 1 << cellule % 9);
  }
}

// The candidates of the cell become `sequence`, two symbols or more. Sets that overlap, in a contradictory
// board, can bring a symbol back; everything is looked at again then.
void Passe::Remplace(int cellule, int sequence) {
  const Lieu& lieu = kGeo.lieux[cellule];
  const int avant = candidats_[lieu.unite[kLigne9]][lieu.place[kLigne9]];
  for (int g = 0; g < 3; ++g) {
    const int u = lieu.unite[g];
    candidats_[u][lieu.place[g]] = static_cast<std::uint16_t>(sequence);
    for (int m = avant ^ sequence; m != 0; m &= m - 1) {
      places_[u][Premier(static_cast<std::uint32_t>(m))] ^= static_cast<std::uint16_t>(1 << lieu.place[g]);
    }
    sales_ |= 1U << u;
  }
  symbolesSales_ |= avant & ~sequence;
  if ((sequence & ~avant) == 0) return;
  sales_ = kToutesUnites;
  symbolesSales_ = kTous;
}

// Cells with one candidate have it as their solution, whatever a unit wrote before.
void Passe::Releve() {
  for (int l = 0; l < 9; ++l) {
    for (std::uint32_t m = seuls_[l]; m != 0; m &= m - 1) {
      const int c = Premier(m);
      const std::uint32_t reste = candidats_[Unite(kLigne9, l)][c];
      if (Compte(reste) != 1) continue;
      solution_[9 * l + c] = static_cast<std::uint8_t>(Premier(reste) + 1);
      aRemplir_ = true;
    }
    seuls_[l] = 0;
  }
}

// Writes all solutions. A symbol that the cell's candidates have lost since it was found is a wrong entry:
// false then.
bool Passe::Ecrit() {
  for (int i = 0; i < 81; ++i) {
    if (solution_[i] == 0) continue;
    const int s = solution_[i] - 1;
    if (mode_ == Mode9::kPossible && (candidats_[Unite(kLigne9, i / 9)][i % 9] >> s & 1) == 0) {
      if (!r_.erronee) std::memset(r_.erronees, 0, sizeof r_.erronees);
      r_.erronee = true;
      r_.erronees[i] = true;
    }
    cases_.Pose(i, s);
  }
  return !r_.erronee;
}

}  // namespace

void JeuSolve(Cases9& cases, Mode9 mode, Passe9& passe) { Passe(cases, mode, passe).JeuSolve(); }

}  // namespace sudoku::SUDOKU_NOYAU
