#pragma once

#include "engine/octets_voies.h"

// Two tables that are each other's transpose, looked at together: the places of symbols and the candidates of
// cells in a unit, the places of a symbol in columns and in rows. A set is as many equal lanes of one table
// as each of them holds numbers. It has an effect only where one of these numbers, as a lane of the other
// table, holds more.
namespace sudoku::SUDOKU_MOTEUR {
namespace {

enum Vue { kPremiere, kSeconde };

constexpr Vue Autre(Vue vue) {
  return vue == kPremiere ? kSeconde : kPremiere;
}

// Up to 16 lanes: a byte a lane, those of the first table before those of the second.
template <int S>
class Duo {
 public:
  using Bits = BitsDe<S>;

  SUDOKU_EN_LIGNE Duo(const MotDe<S>* premiere, const MotDe<S>* seconde)
      : Duo(Moities<S>(premiere, seconde)) {}
  SUDOKU_EN_LIGNE Duo(const Voies<S>& premiere, const Voies<S>& seconde)
      : Duo(Moities<S>(premiere, seconde)) {}

  // The lanes that hold `bas` to `haut`.
  SUDOKU_EN_LIGNE Bits Entre(Vue vue, int bas, int haut) const {
    return Moitie(vue, BitsEntre(comptes_, bas, haut));
  }
  // The lanes that hold so many.
  SUDOKU_EN_LIGNE Bits De(Vue vue, int nombre) const {
    return Moitie(vue, BitsDesOctets(Egaux(comptes_, TrenteDeux::Partout(nombre))));
  }
  // Where sets of two lanes or more may begin. There are no others; nearly all of these are some.
  SUDOKU_EN_LIGNE Bits Debuts(Vue vue) const { return Moitie(vue, debuts_); }

 private:
  SUDOKU_EN_LIGNE explicit Duo(const Moities<S>& m) {
    const Voies<S> octet = Partout<S>(0xFF);
    const auto hautes = [](const Voies<S>& v) { return Voies<S>::De([&](int i) { return v.r[i] >> 8; }); };
    const TrenteDeux bas = EnOctets<S>(m.premieres & octet, m.dernieres & octet);
    const TrenteDeux hauts = EnOctets<S>(hautes(m.premieres), hautes(m.dernieres));
    comptes_ = Comptes(bas) + (S == 4 ? Comptes(hauts) : hauts);
    // What differs in these bytes differs; what is the same there nearly always is.
    const TrenteDeux empreintes = bas + hauts + hauts + hauts;
    TrenteDeux egales = TrenteDeux::Partout(1);
    const auto compare = [&](auto d) SUDOKU_LAMBDA_EN_LIGNE {
      egales = egales - Egaux(empreintes, Avance<decltype(d)::value + 1>(empreintes));
    };
    ChaqueConstante(compare, std::make_integer_sequence<int, S * S - 1>());
    debuts_ = BitsDesOctets(AuMoins(egales, comptes_) & AuMoins(comptes_, TrenteDeux::Partout(2)));
  }
  static Bits Moitie(Vue vue, std::uint32_t bits) { return vue == kPremiere ? bits & 0xFFFF : bits >> 16; }

  TrenteDeux comptes_;
  std::uint32_t debuts_;
};

// 25 lanes.
template <>
class Duo<5> {
 public:
  using Bits = BitsDe<5>;

  SUDOKU_EN_LIGNE Duo(const MotDe<5>* premiere, const MotDe<5>* seconde)
      : comptes_{EnOctets(Comptes(Lit<5>(premiere))), EnOctets(Comptes(Lit<5>(seconde)))},
        empreintes_{Empreintes(Lit<5>(premiere)), Empreintes(Lit<5>(seconde))} {}

  SUDOKU_EN_LIGNE Bits Entre(Vue vue, int bas, int haut) const { return BitsEntre(comptes_[vue], bas, haut); }
  SUDOKU_EN_LIGNE Bits De(Vue vue, int nombre) const { return Comme(comptes_[vue], nombre); }
  // Lanes with the same count together: most are seen to be too few before any two are compared.
  SUDOKU_EN_LIGNE Bits Debuts(Vue vue) const {
    Bits debuts = 0;
    Bits reste = BitsDesOctets(AuMoins(comptes_[vue], TrenteDeux::Partout(2)));
    while (reste != 0) {
      const int compte = comptes_[vue][std::countr_zero(reste)];
      Bits memes = reste & De(vue, compte);
      reste &= ~memes;
      while (std::popcount(memes) >= compte) {
        Bits egales = memes & Comme(empreintes_[vue], empreintes_[vue][std::countr_zero(memes)]);
        memes &= ~egales;
        for (; std::popcount(egales) >= compte; egales &= egales - 1) debuts |= egales & (~egales + 1);
      }
    }
    return debuts;
  }

 private:
  SUDOKU_EN_LIGNE static Bits Comme(const TrenteDeux& octets, int n) {
    return BitsDesOctets(Egaux(octets, TrenteDeux::Partout(n)));
  }

  TrenteDeux comptes_[2];
  TrenteDeux empreintes_[2];
};

}  // namespace
}  // namespace sudoku::SUDOKU_MOTEUR
