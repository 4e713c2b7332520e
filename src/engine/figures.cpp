#include "engine/figures.h"

#include <algorithm>
#include <tuple>

namespace sudoku {
namespace {

std::size_t At(int i) { return static_cast<std::size_t>(i); }

}  // namespace

template <int W>
bool Figures<W>::NxN() {
  resultat_ = false;
  figures_.clear();
  t_.premieres.Chaque([&](int s) {
    if (!t_.longs && !t_.saleSymbole[At(s)]) return;
    t_.saleSymbole[At(s)] = 0;
    for (int type = kColonne; type <= kCarre; ++type) {
      for (int type2 = kColonne; type2 <= kCarre; ++type2) {
        if (type2 != type) Cherche(s, type, type2);
      }
    }
  });
  std::ranges::sort(figures_, {}, [](const Figure& f) { return std::tuple(f.type, f.unite, f.symbole, f.type2); });
  for (const Figure& f : figures_) Agit(f);
  return resultat_;
}

// A group begins at each unit: the unit and the later ones with the same key. The figure stands where there are
// as many of them as the first has cells.
template <int W>
void Figures<W>::Cherche(int symbole, int type, int type2) {
  const int maximum = type2 == kCarre ? t_.S - 1 : t_.N - 1;
  cles_.resize(At(t_.N));
  comptes_.assign(At(t_.N), 0);
  t_.compteur.Vide();
  for (int u = t_.N; u-- > 0;) {
    const M& places = t_.Places(type, u + 1, symbole);
    const int n = places.Compte();
    if (n == 0 || n > maximum) continue;
    cles_[At(u)] = Cle(type, u + 1, type2, places);
    comptes_[At(u)] = static_cast<std::int16_t>(n);
    const int k = t_.compteur.Ajoute(cles_[At(u)]);
    if (k < 2 || k != n) continue;
    Figure f{static_cast<std::int16_t>(type), static_cast<std::int16_t>(u + 1),
             static_cast<std::int16_t>(symbole), static_cast<std::int16_t>(type2), M{}, cles_[At(u)]};
    for (int v = u; v < t_.N; ++v) {
      if (comptes_[At(v)] != 0 && cles_[At(v)] == f.cle) f.unites.Ajoute(v);
    }
    if (Retire(f)) figures_.push_back(f);
  }
}

template <int W>
Masque<W> Figures<W>::Cle(int type, int unite, int type2, const M& places) const {
  if (type != kCarre && type2 != kCarre) return places;
  const int S = t_.S;
  const int bande = (unite - 1) / S;
  const int pile = (unite - 1) % S;
  M cle;
  for (int k = 0; k < S; ++k) {
    const bool residu = type == kCarre && type2 == kColonne;
    if (!places.Croise(residu ? t_.residu[At(k)] : t_.groupe[At(k)])) continue;
    if (type == kCarre) {
      cle.Ajoute((type2 == kLigne ? bande : pile) * S + k);
    } else {
      cle.Ajoute(type == kLigne ? bande * S + k : k * S + bande);
    }
  }
  return cle;
}

template <int W>
Masque<W> Figures<W>::Dedans(int type, const M& unites, int type2, int unite2) const {
  if (type != kCarre && type2 != kCarre) return unites;
  const int S = t_.S;
  const int bande = (unite2 - 1) / S;
  const int pile = (unite2 - 1) % S;
  M dedans;
  for (int k = 0; k < S; ++k) {
    if (type == kCarre) {
      if (unites.Contient(type2 == kLigne ? bande * S + k : k * S + bande)) dedans |= t_.groupe[At(k)];
    } else if (unites.Contient((type == kLigne ? bande : pile) * S + k)) {
      dedans |= type == kLigne ? t_.groupe[At(k)] : t_.residu[At(k)];
    }
  }
  return dedans;
}

template <int W>
bool Figures<W>::Retire(const Figure& f) const {
  bool retire = false;
  f.cle.Chaque([&](int v) {
    retire |= !t_.Places(f.type2, v + 1, f.symbole).Dans(Dedans(f.type, f.unites, f.type2, v + 1));
  });
  return retire;
}

template <int W>
void Figures<W>::Agit(const Figure& f) {
  std::int64_t argument = -1;
  f.cle.Chaque([&](int v) {
    const M perdants = t_.Places(f.type2, v + 1, f.symbole).Sauf(Dedans(f.type, f.unites, f.type2, v + 1));
    perdants.Chaque([&](int place) {
      const int cellule = t_.geo->Serie(f.type2, v + 1)[At(place)];
      if (argument < 0) {
        argument = t_.Note({.genre = Argument::Genre::kFigure,
                            .type = static_cast<std::uint8_t>(f.type),
                            .type2 = static_cast<std::uint8_t>(f.type2),
                            .symbole = f.symbole},
                           f.unites, f.cle);
      }
      t_.Enleve(cellule, f.symbole);
      t_.NoteFait(cellule, static_cast<std::uint32_t>(argument));
      resultat_ = true;
    });
  });
}

template class Figures<1>;
template class Figures<2>;
template class Figures<3>;

}  // namespace sudoku
