#include "engine/series.h"

namespace sudoku {
namespace {

using Genre = Argument::Genre;

std::size_t At(int i) { return static_cast<std::size_t>(i); }

}  // namespace

template <int W>
bool Series<W>::Balaye() {
  bool change = false;
  if (t_.longs) t_.ToutSale();
  for (int u = 1; u <= t_.N; ++u) {
    for (const int type : {kCarre, kLigne, kColonne}) {
      char& sale = t_.sale[type][At(u - 1)];
      if (!sale) continue;
      sale = 0;  // before the run: what it changes in its own cells calls for another one
      change |= TestSerie(type, u);
    }
  }
  return change;
}

template <int W>
bool Series<W>::TestSerie(int type, int unite) {
  type_ = type;
  unite_ = unite;
  resultat_ = false;
  lieux_.clear();
  Reste().Chaque([&](int s) { Symbole(s, t_.doublons ? t_.alphabet->Premiere(s) : s); });
  EnsemblesCaches();
  if (t_.longs) {
    EnsemblesNusEnTextes();
  } else {
    EnsemblesNus();
  }
  return resultat_;
}

// VlReste: the positions of VmValeurs less what stands or is proved in the unit.
template <int W>
Masque<W> Series<W>::Reste() {
  if (t_.longs) {
    M reste = t_.plein;
    for (const int i : t_.geo->Serie(type_, unite_)) {
      if (!t_.ouverte[At(i)]) reste = SansTexte(*t_.alphabet, reste, t_.alphabet->TexteDe(t_.bloc->saisie[At(i)]));
      const Code sure = t_.bloc->sure[At(i)];
      if (sure != kVide) reste = SansTexte(*t_.alphabet, reste, t_.alphabet->TexteDe(sure));
    }
    return reste;
  }
  M reste = t_.plein.Sauf(t_.valeurs[type_][At(unite_ - 1)]);
  t_.sures[type_][At(unite_ - 1)].Chaque([&](int place) {
    const int position = t_.alphabet->Position(t_.bloc->sure[At(Cellule(place))]);
    if (position >= 0) reste = reste.Sauf(t_.classe[At(position)]);
  });
  return reste;
}

// Position s of VmValeurs, whose symbol stands first at p.
template <int W>
void Series<W>::Symbole(int s, int p) {
  const M lieux = t_.Places(type_, unite_, p);
  if (lieux.Vide()) return;
  if (lieux.Seul()) {
    SeuleSolution(s, lieux.Premier());
    return;
  }
  Verrouille(p, lieux);
  if (t_.doublons) {
    for (Lieux& l : lieux_) {
      if (l.symbole != p) continue;
      ++l.fois;
      return;
    }
  }
  lieux_.push_back({p, lieux, 1, false});
}

// A hidden single is no removal: the result of TestSerie doesn't change.
template <int W>
void Series<W>::SeuleSolution(int s, int place) {
  const int cellule = Cellule(place);
  t_.PoseSolution(cellule, s);
  t_.NoteFait(cellule, t_.Note({.genre = Genre::kSeule, .type = static_cast<std::uint8_t>(type_)}));
}

template <int W>
void Series<W>::Verrouille(int p, const M& lieux) {
  const int S = t_.S;
  const int premier = lieux.Premier();
  const int cellule = Cellule(premier);
  if (type_ == kCarre) {
    if (lieux.Dans(t_.groupe[At(premier / S)])) {
      Inference(kLigne, t_.geo->Unite(kLigne, cellule), t_.groupe[At((unite_ - 1) % S)], p, lieux);
    } else if (lieux.Dans(t_.residu[At(premier % S)])) {
      Inference(kColonne, t_.geo->Unite(kColonne, cellule), t_.groupe[At((unite_ - 1) / S)], p, lieux);
    }
  } else if (lieux.Dans(t_.groupe[At(premier / S)])) {
    const M& dansCarre = type_ == kLigne ? t_.groupe[At((unite_ - 1) % S)] : t_.residu[At((unite_ - 1) % S)];
    Inference(kCarre, t_.geo->Unite(kCarre, cellule), dansCarre, p, lieux);
  }
}

// Takes symbol p out of the unit (type, unite), but for its places `horsDe`, which this unit has too.
template <int W>
void Series<W>::Inference(int type, int unite, const M& horsDe, int p, const M& lieux) {
  if (t_.longs) {
    InferenceAvecTextes(type, unite, p, lieux);
    return;
  }
  const M perdants = t_.Places(type, unite, p).Sauf(horsDe);
  if (perdants.Vide()) return;
  resultat_ = true;
  const auto argument = t_.Note({.genre = Genre::kInference,
                                 .type = static_cast<std::uint8_t>(type_),
                                 .unite = static_cast<std::int16_t>(unite_),
                                 .symbole = p},
                                lieux);
  const auto serie = t_.geo->Serie(type, unite);
  perdants.Chaque([&](int place) {
    t_.Enleve(serie[At(place)], p);
    t_.NoteFait(serie[At(place)], argument);
  });
}

// As Inference, for a grid where contents of several symbols can lose one of them.
template <int W>
void Series<W>::InferenceAvecTextes(int type, int unite, int p, const M& lieux) {
  std::int64_t argument = -1;
  for (const int cellule : t_.geo->Serie(type, unite)) {
    if (t_.ouverte[At(cellule)]) {
      const bool ailleurs = t_.geo->Unite(type_, cellule) != unite_;
      if (!ailleurs || !t_.candidats[cellule].Croise(t_.classe[At(p)])) continue;
      t_.Enleve(cellule, p);
    } else if (!t_.EnleveDuTexte(cellule, p)) {
      continue;
    }
    resultat_ = true;
    if (argument < 0) {
      argument = t_.Note({.genre = Genre::kInference,
                          .type = static_cast<std::uint8_t>(type_),
                          .unite = static_cast<std::int16_t>(unite_),
                          .symbole = p},
                         lieux);
    }
    t_.NoteFait(cellule, static_cast<std::uint32_t>(argument));
  }
}

// Symbols with equal places. A set of exactly k symbols is seen from its first symbol; from the others the
// sequence is too short. The places are those of the sweep before, whatever sets found here change.
template <int W>
void Series<W>::EnsemblesCaches() {
  t_.compteur.Vide();
  bool trouve = false;
  for (std::size_t i = lieux_.size(); i-- > 0;) {
    Lieux& l = lieux_[i];
    l.ensemble = t_.compteur.Ajoute(l.places, l.fois) == l.places.Compte() * l.fois;
    trouve |= l.ensemble;
  }
  if (!trouve) return;
  for (std::size_t i = 0; i < lieux_.size(); ++i) {
    if (lieux_[i].ensemble) Cache(static_cast<int>(i));
  }
}

template <int W>
void Series<W>::Cache(int rang) {
  const Lieux& premier = lieux_[At(rang)];
  M sequence;
  for (std::size_t j = At(rang); j < lieux_.size(); ++j) {
    if (lieux_[j].places == premier.places && lieux_[j].fois == premier.fois) sequence.Ajoute(lieux_[j].symbole);
  }
  std::int64_t argument = -1;
  premier.places.Chaque([&](int place) {
    const int cellule = Cellule(place);
    if (MemesSymboles(t_.candidats[cellule], sequence)) return;
    M garde;
    sequence.Chaque([&](int p) { garde |= t_.classe[At(p)]; });
    const M exclus = t_.candidats[cellule].Sauf(garde);
    t_.Remplace(cellule, sequence);
    resultat_ = true;
    if (argument < 0) {
      argument = t_.Note({.genre = Genre::kCachee,
                          .type = static_cast<std::uint8_t>(type_),
                          .unite = static_cast<std::int16_t>(unite_),
                          .fois = static_cast<std::int16_t>(premier.fois)},
                         sequence, premier.places);
    }
    t_.NoteFait(cellule, static_cast<std::uint32_t>(argument), exclus);
  });
}

// Cells with equal candidates, counted from the first of them on, on the candidates of the moment.
template <int W>
void Series<W>::EnsemblesNus() {
  CompteNus(0);
  for (int place = 0; place < t_.N; ++place) {
    if (nus_[At(place)]) Nu(place);
  }
}

template <int W>
void Series<W>::CompteNus(int depuis) {
  nus_.resize(At(t_.N));
  t_.compteur.Vide();
  for (int place = t_.N; place-- > depuis;) {
    const M& candidats = t_.candidats[Cellule(place)];
    nus_[At(place)] = candidats.Plusieurs() && t_.compteur.Ajoute(candidats) == candidats.Compte();
  }
}

template <int W>
void Series<W>::Nu(int place) {
  const M sequence = t_.candidats[Cellule(place)];
  M ensemble;
  bool retrait = false;
  for (int j = 0; j < t_.N; ++j) {
    const M& candidats = t_.candidats[Cellule(j)];
    if (candidats == sequence) {
      if (j >= place) ensemble.Ajoute(j);
    } else {
      retrait |= candidats.Croise(sequence);
    }
  }
  if (!retrait) return;
  resultat_ = true;
  const auto argument = t_.Note({.genre = Genre::kNue,
                                 .type = static_cast<std::uint8_t>(type_),
                                 .unite = static_cast<std::int16_t>(unite_)},
                                sequence, ensemble);
  for (int j = 0; j < t_.N; ++j) {
    const int cellule = Cellule(j);
    if (t_.candidats[cellule] == sequence || !t_.candidats[cellule].Croise(sequence)) continue;
    (t_.candidats[cellule] & sequence).Chaque([&](int p) { t_.Enleve(cellule, t_.alphabet->Premiere(p)); });
    t_.NoteFait(cellule, argument);
  }
  CompteNus(place + 1);
}

// Naked sets where contents of several symbols take part with their text.
template <int W>
void Series<W>::EnsemblesNusEnTextes() {
  const auto possible = [&](int place) { return ClsPos(t_.bloc, Cellule(place)).Possible(); };
  for (int i = 0; i < t_.N; ++i) {
    const Texte sequence = possible(i);
    if (sequence.size() < 2) continue;
    M ensemble;
    for (int j = i; j < t_.N; ++j) {
      if (Egal(possible(j), sequence)) ensemble.Ajoute(j);
    }
    if (static_cast<std::size_t>(ensemble.Compte()) != sequence.size()) continue;
    std::int64_t argument = -1;
    for (int j = 0; j < t_.N; ++j) {
      const Texte avant = possible(j);
      if (Egal(avant, sequence)) continue;
      const int cellule = Cellule(j);
      bool retrait = false;
      for (const char32_t symbole : sequence) {
        const int p = t_.alphabet->Position(t_.bloc->alphabet->Numero(TexteVue(&symbole, 1)));
        if (!t_.ouverte[At(cellule)]) {
          retrait |= t_.EnleveDuTexte(cellule, p);
        } else if (t_.candidats[cellule].Croise(t_.classe[At(p)])) {
          t_.Enleve(cellule, p);
          retrait = true;
        }
      }
      if (!retrait) continue;
      resultat_ = true;
      if (argument < 0) {
        argument = t_.Note({.genre = Genre::kNue,
                            .type = static_cast<std::uint8_t>(type_),
                            .unite = static_cast<std::int16_t>(unite_),
                            .symbole = t_.bloc->alphabet->Numero(sequence)},
                           M{}, ensemble);
      }
      t_.NoteFait(cellule, static_cast<std::uint32_t>(argument));
    }
  }
}

template <int W>
bool Series<W>::MemesSymboles(const M& a, const M& b) const {
  if (a == b) return true;
  // Of equal symbols a text of several can leave any one; their letters are compared then.
  return t_.longs && t_.doublons && Egal(t_.TexteDe(a), t_.TexteDe(b));
}

template class Series<1>;
template class Series<2>;
template class Series<3>;

}  // namespace sudoku
