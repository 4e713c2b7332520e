#pragma once

#include <algorithm>
#include <bit>
#include <vector>

#include "engine/deductions.h"
#include "engine/octets.h"

namespace sudoku::SUDOKU_MOTEUR {
namespace {

// Finds deductions one mask after the other, by how many numbers the masks have: what counts can't tell apart
// is compared. The part of a Trouveur that goes with tables of any kind; these are Dos's:
//   N(), DesParts()               the size of the board, and its Parts
//   Places(u, s)                  of a symbol in a unit, and NombresDePlaces(u) how many, by symbol
//   NombresDuSymbole(type, s)     the same for the units of a kind, by number - 1
//   Perdants(u, s, sauf)          places of unit u, but for `sauf`, that can lose the symbol
//   Autres(u, lieux, symboles)    places among `lieux` whose candidates aren't just these symbols
//   Fois(reste, s)                how often a symbol of `reste` stands there
//   Premiere(s)                   the symbol by which Places knows it
//   kDifferents                   no two symbols are equal
//   Nue(u, n, find)               the first naked set that begins at place n of a unit or behind it and has
//                                 something to take; false if there is none
//   AChercher()                   symbols whose figures are to be searched for, and takes them as searched
template <class Dos, class B>
class TrouveMasques {
 public:
  using Bits = B;

  template <class F>
  void ChaqueSeule(int u, const B& reste, F f) {
    Chaque(Entre(dos().NombresDePlaces(u), 1, 1) & reste, [&](int s) { f(s, Premier(dos().Places(u, s))); });
  }
  template <class F>
  void ChaqueConfinee(int u, const B& reste, F f);
  template <class F>
  void ChaqueCachee(int u, const B& reste, F f);
  template <class F>
  void ChaqueNue(int u, const B&, F f) {
    Trouvaille<B> t;
    for (int depuis = 0; dos().Nue(u, depuis, t); depuis = Premier(t.lieux) + 1) f(t);
  }
  template <class F>
  void ChaqueFigure(F f);

 protected:
  struct Element {
    int numero;
    int voulu;  // of this mask make a set
    B masque;
  };
  // Masks, ascending by their numbers. A set begins where its mask stands, there and behind, just as often as
  // is wanted.
  struct Liste {
    std::vector<Element> elements;

    // Calls f(some element, numbers of the set's masks) for each set, ascending, and empties the list.
    template <class F>
    void ChaqueEnsemble(F f);

   private:
    struct Ensemble {
      Element element;
      B numeros;
    };

    void EnleveRares();

    std::vector<Ensemble> ensembles_;
  };
  // Without those of which there are too few, of whatever masks, to make a set.
  static B Assez(const Octets<B>& nombres, const B& parmi);
  template <class F>
  static void ChaqueVoisinage(const Octets<B>& nombres, const B& parmi, F f);

  Liste liste_;

 private:
  Dos& dos() { return static_cast<Dos&>(*this); }

  template <class F>
  void EntreLignes(int s, TypeUnite type, F f);
  template <class F>
  void AvecCarres(int s, TypeUnite type, TypeUnite type2, F f);
};

template <class Dos, class B>
template <class F>
void TrouveMasques<Dos, B>::Liste::ChaqueEnsemble(F f) {
  // All that are equal to the first that is left make a group; what its set doesn't want of it stands in
  // front.
  ensembles_.clear();
  EnleveRares();
  while (!elements.empty()) {
    const Element e = elements.front();
    const auto egal = [&](const Element& autre) {
      return autre.voulu == e.voulu && autre.masque == e.masque;
    };
    auto trop = std::ranges::count_if(elements, egal) - e.voulu;
    Ensemble ensemble{e, B{}};
    std::erase_if(elements, [&](const Element& autre) {
      if (!egal(autre)) return false;
      if (trop-- <= 0) ensemble.numeros |= Bit<B>(autre.numero);
      return true;
    });
    if (e.voulu > 1 && Nombre(ensemble.numeros) == e.voulu) ensembles_.push_back(ensemble);
  }
  std::ranges::sort(ensembles_, {}, [](const Ensemble& un) { return Premier(un.numeros); });
  for (const Ensemble& un : ensembles_) f(un.element, un.numeros);
}

// Most masks that are there too few times go by one look at a byte made of each.
template <class Dos, class B>
void TrouveMasques<Dos, B>::Liste::EnleveRares() {
  std::uint8_t combien[256] = {};
  const auto octet = [](const Element& e) {
    std::uint64_t h = 0;
    for (int i = 0; i < kMotsDe<B>; ++i) h = (h ^ Mot(e.masque, i)) * 0x9E3779B97F4A7C15U;
    return h >> 56;
  };
  for (const Element& e : elements) ++combien[octet(e)];
  std::erase_if(elements, [&](const Element& e) { return combien[octet(e)] < e.voulu; });
}

template <class Dos, class B>
B TrouveMasques<Dos, B>::Assez(const Octets<B>& nombres, const B& parmi) {
  B assez{};
  ChaqueVoisinage(nombres, parmi, [&](B voisins) {
    while (!Vide(voisins)) {
      const int voulu = nombres.n[Premier(voisins)];
      const B autant = voisins & Entre(nombres, voulu, voulu);
      voisins &= ~autant;
      if (Nombre(autant) < voulu) continue;
      // A set of all masks that aren't empty takes nothing.
      if (Dos::kDifferents && voulu == Nombre(Entre(nombres, 1, 255))) continue;
      assez |= autant;
    }
  });
  return assez;
}

// Calls f(masks whose counts lie near each other) where they are as many as the least count there says.
template <class Dos, class B>
template <class F>
void TrouveMasques<Dos, B>::ChaqueVoisinage(const Octets<B>& nombres, const B& parmi, F f) {
  const auto pas = [](int n) {
    return static_cast<int>(std::bit_floor(static_cast<unsigned>(std::max(n / 8, 1))));
  };
  const auto voisins = [&](const B& masques, int bas, int haut) {
    const B la = masques & Entre(nombres, bas, haut);
    if (Nombre(la) >= bas) f(la);
    return la;
  };
  if constexpr (kMotsDe<B> <= 2) {
    for (B reste = parmi; !Vide(reste);) {
      const int n = nombres.n[Premier(reste)];
      const int bas = n & -pas(n);
      reste &= ~voisins(reste, bas, bas + pas(n) - 1);
    }
  } else {
    // Many words take long to compare; ranges that are known beforehand don't wait for each other.
    for (int octave = 2; octave <= Nombre(parmi); octave *= 2) {
      const B la = parmi & Entre(nombres, octave, 2 * octave - 1);
      if (Nombre(la) < octave) continue;
      for (int bas = octave; bas < 2 * octave; bas += pas(octave)) voisins(la, bas, bas + pas(octave) - 1);
    }
  }
}

template <class Dos, class B>
template <class F>
void TrouveMasques<Dos, B>::ChaqueConfinee(int u, const B& reste, F f) {
  const auto& parts = dos().DesParts();
  Chaque(Entre(dos().NombresDePlaces(u), 2, parts.S) & reste, [&](int s) {
    const B lieux = dos().Places(u, s);
    const auto commune = parts.UniteCommune(u, lieux);
    if (commune.unite < 0) return;
    const B perdants = dos().Perdants(commune.unite, s, commune.places);
    if (Vide(perdants)) return;
    f({.symboles = Bit<B>(s), .lieux = lieux, .perdants = perdants, .unite = commune.unite});
  });
}

// Sets of symbols with equal places, so many of them as they have places. A symbol that stands twice notes
// each of its places twice.
template <class Dos, class B>
template <class F>
void TrouveMasques<Dos, B>::ChaqueCachee(int u, const B& reste, F f) {
  const Octets<B>& nombres = dos().NombresDePlaces(u);
  const B assez = Assez(nombres, Entre(nombres, 2, dos().N()) & reste);
  if (Vide(assez)) return;
  // Equal symbols stand where the first of them does, also where that one is placed and another isn't.
  B premieres = assez;
  if constexpr (!Dos::kDifferents) {
    premieres = B{};
    Chaque(assez, [&](int s) { premieres |= Bit<B>(dos().Premiere(s)); });
  }
  Chaque(premieres, [&](int s) {
    liste_.elements.push_back({s, nombres.n[s] * dos().Fois(reste, s), dos().Places(u, s)});
  });
  liste_.ChaqueEnsemble([&](const Element& e, const B& symboles) {
    const B autres = dos().Autres(u, e.masque, symboles);
    if (Vide(autres)) return;
    f({.symboles = symboles, .lieux = e.masque, .perdants = autres, .fois = e.voulu / Nombre(e.masque)});
  });
}

template <class Dos, class B>
template <class F>
void TrouveMasques<Dos, B>::ChaqueFigure(F f) {
  Chaque(dos().AChercher(), [&](int s) {
    for (const TypeUnite type : {kColonne, kLigne}) {
      EntreLignes(s, type, f);
      AvecCarres(s, type, kCarre, f);
      AvecCarres(s, kCarre, type, f);
    }
  });
}

// Between lines the places themselves say to which units a unit is confined.
template <class Dos, class B>
template <class F>
void TrouveMasques<Dos, B>::EntreLignes(int s, TypeUnite type, F f) {
  const Octets<B>& nombres = dos().NombresDuSymbole(type, s);
  const B assez = Assez(nombres, Entre(nombres, 2, dos().N() - 1));
  if (Vide(assez)) return;
  Chaque(assez, [&](int v) {
    liste_.elements.push_back({v, nombres.n[v], dos().Places(Unite(type, v), s)});
  });
  const TypeUnite type2 = type == kLigne ? kColonne : kLigne;
  liste_.ChaqueEnsemble([&](const Element& e, const B& unites) {
    f({.symbole = s, .type = type, .unites = unites, .type2 = type2, .cle = e.masque});
  });
}

// Between blocks and lines only units side by side, S of them, can be confined to the same ones: those of the
// band, or the stack, which they cross. Blocks serve so only lines with fewer than S places.
template <class Dos, class B>
template <class F>
void TrouveMasques<Dos, B>::AvecCarres(int s, TypeUnite type, TypeUnite type2, F f) {
  const auto& parts = dos().DesParts();
  const int S = parts.S;
  const Octets<B>& nombres = dos().NombresDuSymbole(type, s);
  const bool piles = type == kCarre && type2 == kColonne;
  const int maximum = type2 == kCarre ? S - 1 : dos().N() - 1;
  const auto cle = [&](int v) { return parts.Cle(Unite(type, v), type2, dos().Places(Unite(type, v), s)); };
  Chaque(Entre(nombres, 2, type2 == kCarre ? S - 1 : S), [&](int premiere) {
    const B& voisines = piles ? parts.residu[premiere % S] : parts.groupe[premiere / S];
    const B possibles = Depuis(voisines & Entre(nombres, 1, maximum), premiere);
    const int n = nombres.n[premiere];
    if (Nombre(possibles) < n) return;
    const B celle = cle(premiere);
    B unites{};
    Chaque(possibles, [&](int v) {
      if (cle(v) == celle) unites |= Bit<B>(v);
    });
    if (Nombre(unites) == n) f({.symbole = s, .type = type, .unites = unites, .type2 = type2, .cle = celle});
  });
}

}  // namespace
}  // namespace sudoku::SUDOKU_MOTEUR
