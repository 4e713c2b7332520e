#define SUDOKU_MOTEUR moteur_textes

#include <algorithm>

#include "engine/greffier.h"
#include "engine/moteur.h"
#include "engine/passes.h"
#include "engine/trouve_textes.h"

namespace sudoku {
namespace SUDOKU_MOTEUR {
namespace {

void TrouveTextes::Adopte(Bloc& bloc, bool longs) {
  bloc_ = &bloc;
  longs_ = longs;
  premieres_ = M{};
  classe_.assign(Rang(N()), M{});
  for (int p = 0; p < N(); ++p) {
    premieres_ |= Bit<M>(Premiere(p));
    for (const int egale : bloc.alphabet->Egales(p)) classe_[Rang(p)] |= Bit<M>(egale);
  }
  ouverte_.resize(Rang(N() * N()));
  candidats_.resize(ouverte_.size());
}

bool TrouveTextes::Amorce(Appui appui) {
  appui_ = appui;
  std::transform(bloc_->possibleTexte.begin() + 1, bloc_->possibleTexte.end(), ouverte_.begin(),
                 [](Code code) { return code == kVide; });
  bool complets = true;
  for (int i = 0; i < N() * N(); ++i) {
    candidats_[Rang(i)] = ouverte_[Rang(i)] ? ListePossibles(i) : M{};
    complets &= !ouverte_[Rang(i)] || !Vide(candidats_[Rang(i)]);
  }
  return complets;
}

// What texts leave depends on what went before: block, row, column, cell by cell.
Masque<4> TrouveTextes::ListePossibles(int cellule) const {
  M liste = Premiers<M>(N());
  for (const int type : {kCarre, kLigne, kColonne}) {
    const int u = parts_.UniteDe(type, cellule);
    for (int place = 0; place < N(); ++place) {
      const int autre = Cellule(u, place);
      if (!ouverte_[Rang(autre)]) liste = Sans(liste, bloc_->saisie[Rang(autre + 1)]);
    }
  }
  return liste;
}

// `positions` without the occurrences of a content, as deleting it from their string would do.
Masque<4> TrouveTextes::Sans(const M& positions, Code code) const {
  const Alphabet& alphabet = *bloc_->alphabet;
  if (!alphabet.Long(code)) {
    const int position = alphabet.Position(code);
    return position < 0 ? positions : positions & ~classe_[Rang(position)];
  }
  const Texte symboles = TexteDe(positions);
  const Texte& texte = alphabet.TexteDe(code);
  std::vector<int> ordre;
  Chaque(positions, [&](int p) { ordre.push_back(p); });
  M reste = positions;
  for (std::size_t i = 0; (i = Cherche(symboles, texte, i)) != Texte::npos; i += texte.size()) {
    for (std::size_t j = 0; j < texte.size(); ++j) reste &= ~Bit<M>(ordre[i + j]);
  }
  return reste;
}

Texte TrouveTextes::TexteDe(const M& positions) const {
  Texte texte;
  Chaque(positions, [&](int p) { texte += bloc_->alphabet->Symboles()[Rang(p)]; });
  return texte;
}

Texte TrouveTextes::Possible(int cellule) const {
  if (ouverte_[Rang(cellule)]) return TexteDe(candidats_[Rang(cellule)]);
  return bloc_->alphabet->TexteDe(bloc_->possibleTexte[Rang(cellule + 1)]);
}

void TrouveTextes::Transpose() {
  places_.assign(Rang(3 * N() * N()), M{});
  for (int i = 0; i < N() * N(); ++i) NotePlaces(i);
}

// The cell is a place of its candidates and of no other symbols.
void TrouveTextes::NotePlaces(int cellule) {
  for (int type = 0; type < 3; ++type) {
    const int u = parts_.UniteDe(type, cellule);
    const M place = Bit<M>(parts_.PlaceDe(type, cellule));
    Chaque(premieres_, [&](int s) {
      M& places = places_[Rang(u * N() + s)];
      const bool la = !Vide(candidats_[Rang(cellule)] & classe_[Rang(s)]);
      la ? places |= place : places &= ~place;
    });
  }
}

// The positions of VmValeurs less what stands or is proved in the unit.
Masque<4> TrouveTextes::Reste(int u) const {
  M reste = Premiers<M>(N());
  for (int place = 0; place < N(); ++place) {
    const int cellule = Cellule(u, place);
    if (!ouverte_[Rang(cellule)]) reste = Sans(reste, bloc_->saisie[Rang(cellule + 1)]);
    if (bloc_->sure[Rang(cellule + 1)] != kVide) reste = Sans(reste, bloc_->sure[Rang(cellule + 1)]);
  }
  return reste;
}

const Octets<Masque<4>>& TrouveTextes::NombresDePlaces(int u) {
  for (int s = 0; s < N(); ++s) nombres_.n[s] = static_cast<std::uint8_t>(Nombre(Places(u, s)));
  return nombres_;
}

const Octets<Masque<4>>& TrouveTextes::NombresDuSymbole(int type, int s) {
  for (int v = 0; v < N(); ++v) {
    nombres_.n[v] = static_cast<std::uint8_t>(Nombre(Places(Unite(type, v), s)));
  }
  return nombres_;
}

Masque<4> TrouveTextes::Perdants(int u, int s, const M& sauf) const {
  M perdants;
  for (int place = 0; place < N(); ++place) {
    const int cellule = Cellule(u, place);
    if (ouverte_[Rang(cellule)] && Contient(sauf, place)) continue;
    if (Perd(cellule, TexteVue(&bloc_->alphabet->Symboles()[Rang(s)], 1))) perdants |= Bit<M>(place);
  }
  return perdants;
}

// The cell has the symbol to lose.
bool TrouveTextes::Perd(int cellule, TexteVue symbole) const {
  if (!ouverte_[Rang(cellule)]) return sudoku::Contient(Possible(cellule), symbole);
  const int position = bloc_->alphabet->Position(bloc_->alphabet->Numero(symbole));
  return position >= 0 && !Vide(candidats_[Rang(cellule)] & classe_[Rang(position)]);
}

Masque<4> TrouveTextes::Autres(int u, const M& lieux, const M& symboles) const {
  M autres;
  // Of equal symbols a text of several can leave any one.
  const Texte texte = TexteDe(symboles);
  Chaque(lieux, [&](int place) {
    if (!Egal(Possible(Cellule(u, place)), texte)) autres |= Bit<M>(place);
  });
  return autres;
}

Masque<4> TrouveTextes::HorsDe(int cellule, const M& symboles) const {
  M garde;
  Chaque(symboles, [&](int s) { garde |= classe_[Rang(s)]; });
  return candidats_[Rang(cellule)] & ~garde;
}

bool TrouveTextes::Nue(int u, int depuis, Trouvaille<M>& t) {
  std::vector<Texte> possibles;
  possibles.reserve(Rang(N()));
  for (int place = 0; place < N(); ++place) possibles.push_back(Possible(Cellule(u, place)));
  for (int premier = depuis; premier < N(); ++premier) {
    const Texte& sequence = possibles[Rang(premier)];
    if (sequence.size() < 2) continue;
    t = {};
    for (int place = 0; place < N(); ++place) {
      if (Egal(possibles[Rang(place)], sequence)) {
        if (place >= premier) t.lieux |= Bit<M>(place);
      } else if (std::ranges::any_of(sequence, [&](const char32_t& symbole) {
                   return Perd(Cellule(u, place), TexteVue(&symbole, 1));
                 })) {
        t.perdants |= Bit<M>(place);
      }
    }
    if (static_cast<std::size_t>(Nombre(t.lieux)) != sequence.size() || Vide(t.perdants)) continue;
    if (longs_)
      t.texte = bloc_->alphabet->Numero(sequence);
    else
      t.symboles = candidats_[Rang(Cellule(u, premier))];
    return true;
  }
  return false;
}

bool TrouveTextes::Enleve(int cellule, int symbole) {
  return EnleveTexte(cellule, TexteVue(&bloc_->alphabet->Symboles()[Rang(symbole)], 1));
}

bool TrouveTextes::EnleveNue(int cellule, const Trouvaille<M>& t) {
  return EnleveTexte(cellule, longs_ ? bloc_->alphabet->TexteDe(t.texte) : TexteDe(t.symboles));
}

// All these symbols go from the cell. True if something is left to it.
bool TrouveTextes::EnleveTexte(int cellule, TexteVue symboles) {
  Texte reste = Possible(cellule);
  for (const char32_t& symbole : symboles) {
    const TexteVue vue(&symbole, 1);
    const int position = bloc_->alphabet->Position(bloc_->alphabet->Numero(vue));
    if (!ouverte_[Rang(cellule)])
      reste = sudoku::Sans(reste, vue);
    else if (position >= 0)
      candidats_[Rang(cellule)] &= ~classe_[Rang(position)];
  }
  if (ouverte_[Rang(cellule)]) {
    NotePlaces(cellule);
    return !Vide(candidats_[Rang(cellule)]);
  }
  bloc_->possibleTexte[Rang(cellule + 1)] = bloc_->alphabet->Numero(reste);
  return !reste.empty();
}

void TrouveTextes::Remplace(int cellule, const M& sequence) {
  candidats_[Rang(cellule)] = sequence;
  NotePlaces(cellule);
}

template <class F>
void TrouveTextes::ChaqueReduite(F f) {
  for (int i = 0; i < N() * N(); ++i) {
    const Code possible = bloc_->possibleTexte[Rang(i + 1)];
    if (Nombre(candidats_[Rang(i)]) == 1) f(i, Premier(candidats_[Rang(i)]));
    // What texts have lost can leave one symbol of them, of the grid or not.
    if (possible != kVide && !bloc_->alphabet->Long(possible)) PoseSolution(i, possible);
  }
}

void TrouveTextes::Ecrit() const {
  for (int i = 0; i < N() * N(); ++i) {
    for (int mot = 0; mot < bloc_->mots; ++mot) {
      bloc_->candidats[Rang((i + 1) * bloc_->mots + mot)] = candidats_[Rang(i)][mot];
    }
  }
}

class MoteurTextes : public Moteur {
 public:
  explicit MoteurTextes(int N) : S_(Geometrie(N).S()), deductions_(S_, greffier_) {}

  std::uint64_t Passes(GameState& jeu, Grille& grille, int VpPasses, bool seconde) override {
    Bloc& bloc = grille.Donnees();
    deductions_.tours = 0;
    ChaquePasse(jeu, VpPasses, seconde, [&](std::int32_t mode) {
      const bool saisies = PoseContenus(bloc, mode);
      return Deduit(bloc, mode) || !saisies;
    });
    return deductions_.tours;
  }

 private:
  using Deductions = DeductionsSur<TrouveTextes, Greffier>;

  // All of a pass behind PoseContenus. True if some empty cell has a solution.
  bool Deduit(Bloc& bloc, std::int32_t mode) {
    greffier_.Commence(bloc);
    bool longs = false;
    for (std::size_t i = 1; i < bloc.possibleTexte.size(); ++i) {
      if (!bloc.alphabet->Long(bloc.possibleTexte[i])) continue;
      // A text of several symbols is no solution.
      longs = true;
      (VersSure(mode) ? bloc.sure : bloc.poss)[i] = kVide;
    }
    deductions_.Adopte(bloc, longs);
    bool aRemplir =
        deductions_.Candidats(VersSure(mode) ? Appui::kSur : Appui::kPossible) == Deductions::kSolutions;
    if (!aRemplir) aRemplir = deductions_.Deduit() == Deductions::kSolutions;
    deductions_.Ecrit();
    return aRemplir;
  }

  int S_;
  Greffier greffier_;
  Deductions deductions_;
};

}  // namespace
}  // namespace SUDOKU_MOTEUR

std::unique_ptr<Moteur> FabriqueTextes(int N) {
  return std::make_unique<SUDOKU_MOTEUR::MoteurTextes>(N);
}

}  // namespace sudoku
