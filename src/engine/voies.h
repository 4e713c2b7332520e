#pragma once

#include <bit>
#include <cstdint>
#include <cstring>
#include <type_traits>
#include <utility>

#include "engine/bits.h"
#include "engine/contenus.h"
#include "engine/parts.h"

#if defined(__AVX512BW__) && defined(__AVX512VL__) && defined(__AVX512BITALG__) && \
    defined(__AVX512VPOPCNTDQ__)
#define SUDOKU_VOIES_512
#include <immintrin.h>
#elif defined(__AVX2__)
#include <immintrin.h>
#elif defined(__SSE2__)
#include <emmintrin.h>
#endif

// A lane for each symbol, place or unit of a kind, and the few operations that the deductions need, written
// once in the compilers' vector extension; what that can't say well is in bits_voies.h. Each version of the
// hot code has its own, in its own namespace SUDOKU_MOTEUR, so that no two of them share a function.
#define SUDOKU_EN_LIGNE [[gnu::always_inline]] inline
// The same for a lambda, between its parameters and its body.
#define SUDOKU_LAMBDA_EN_LIGNE __attribute__((always_inline))

namespace sudoku::SUDOKU_MOTEUR {
namespace {

template <int S>
using MotDe = typename Largeur<S>::Mot;
template <int S>
using BitsDe =
    std::conditional_t<Largeur<S>::kMots == 1, typename Largeur<S>::Bits, Masque<Largeur<S>::kMots>>;
template <int S>
inline constexpr Parts<BitsDe<S>> kParts{S};
// All symbols, places, units of a kind.
template <int S>
inline constexpr BitsDe<S> kTousDe = Premiers<BitsDe<S>>(S* S);

// Calls f with each of the numbers 0 to S - 1, where a lane is one word as a constant.
template <class F, int... k>
SUDOKU_EN_LIGNE void ChaqueConstante(F f, std::integer_sequence<int, k...>) {
  (f(std::integral_constant<int, k>()), ...);
}
template <int S, class F>
SUDOKU_EN_LIGNE void ChaqueConstante(F f) {
  if constexpr (Largeur<S>::kMots == 1) {
    ChaqueConstante(f, std::make_integer_sequence<int, S>());
  } else {
    for (int k = 0; k < S; ++k) f(k);
  }
}

// All lanes, in as many vector registers as they take: P words a lane, the first words of all lanes before
// the second ones. Up to 64 symbols they fit the processor's registers, and what is done with each is written
// out; beyond that it is done in loops.
template <int S, int P = Largeur<S>::kMots>
struct Voies {
  using Mot = MotDe<S>;
  static constexpr std::size_t kTaille = Largeur<S>::kVoies * sizeof(Mot);
#if defined(SUDOKU_VOIES_512)
  static constexpr std::size_t kOctets = kTaille > 32 ? 64 : 32;
#elif defined(__AVX2__)
  static constexpr std::size_t kOctets = 32;
#else
  static constexpr std::size_t kOctets = 16;
#endif
  static constexpr std::size_t kRegistres = kTaille / kOctets;  // for one word of each lane
  static constexpr int kParRegistre = kOctets / sizeof(Mot);
  using Registre [[gnu::vector_size(kOctets)]] = Mot;

  static constexpr int kTous = P * static_cast<int>(kRegistres);

  Registre r[Taille(kTous)];

  // The word of each lane that register i holds.
  static constexpr int Plan(int i) {
    return i / static_cast<int>(kRegistres);
  }

  // The registers that f(number of the register) gives.
  template <class F>
  SUDOKU_EN_LIGNE static Voies De(F f) {
    if constexpr (P == 1) {
      return De(f, std::make_integer_sequence<int, kTous>());
    } else {
      Voies v;
      for (int i = 0; i < kTous; ++i) v.r[i] = f(i);
      return v;
    }
  }
  // Calls f with the number of each register.
  template <class F>
  SUDOKU_EN_LIGNE static void Chaque(F f) {
    if constexpr (P == 1) {
      Chaque(f, std::make_integer_sequence<int, kTous>());
    } else {
      for (int i = 0; i < kTous; ++i) f(i);
    }
  }

 private:
  template <class F, int... i>
  SUDOKU_EN_LIGNE static Voies De(F f, std::integer_sequence<int, i...>) {
    return {{f(i)...}};
  }
  template <class F, int... i>
  SUDOKU_EN_LIGNE static void Chaque(F f, std::integer_sequence<int, i...>) {
    (f(i), ...);
  }
};

// Register by register: a struct as a whole is moved in smaller pieces, which the next load would wait for.
template <int S, int P = Largeur<S>::kMots>
SUDOKU_EN_LIGNE Voies<S, P> Lit(const MotDe<S>* p) {
  return Voies<S, P>::De([p](int i) SUDOKU_LAMBDA_EN_LIGNE {
    typename Voies<S, P>::Registre registre;
    std::memcpy(&registre, p + i * Voies<S, P>::kParRegistre, sizeof registre);
    return registre;
  });
}
// The registers that f(number of the register) gives.
template <int S, class F>
SUDOKU_EN_LIGNE void EcritChaque(MotDe<S>* p, F f) {
  Voies<S>::Chaque([&](int i) SUDOKU_LAMBDA_EN_LIGNE {
    const typename Voies<S>::Registre registre = f(i);
    std::memcpy(p + i * Voies<S>::kParRegistre, &registre, sizeof registre);
  });
}
template <int S>
SUDOKU_EN_LIGNE void Ecrit(MotDe<S>* p, const Voies<S>& v) {
  EcritChaque<S>(p, [&](int i) SUDOKU_LAMBDA_EN_LIGNE { return v.r[i]; });
}
// The register i of lanes that all hold n.
template <int S>
SUDOKU_EN_LIGNE typename Voies<S>::Registre Partout(const BitsDe<S>& n, int i) {
  return typename Voies<S>::Registre{} + static_cast<MotDe<S>>(Mot(n, Voies<S>::Plan(i)));
}
template <int S>
SUDOKU_EN_LIGNE Voies<S> Partout(const BitsDe<S>& n) {
  return Voies<S>::De([&](int i) SUDOKU_LAMBDA_EN_LIGNE { return Partout<S>(n, i); });
}

template <int S, int P>
SUDOKU_EN_LIGNE Voies<S, P> operator&(const Voies<S, P>& a, const Voies<S, P>& b) {
  return Voies<S, P>::De([&](int i) SUDOKU_LAMBDA_EN_LIGNE { return a.r[i] & b.r[i]; });
}
template <int S, int P>
SUDOKU_EN_LIGNE Voies<S, P> operator|(const Voies<S, P>& a, const Voies<S, P>& b) {
  return Voies<S, P>::De([&](int i) SUDOKU_LAMBDA_EN_LIGNE { return a.r[i] | b.r[i]; });
}
template <int S, int P>
SUDOKU_EN_LIGNE Voies<S, P> operator-(const Voies<S, P>& a, const Voies<S, P>& b) {
  return Voies<S, P>::De([&](int i) SUDOKU_LAMBDA_EN_LIGNE { return a.r[i] - b.r[i]; });
}
template <int S, int P>
SUDOKU_EN_LIGNE Voies<S, P> operator~(const Voies<S, P>& a) {
  return Voies<S, P>::De([&](int i) SUDOKU_LAMBDA_EN_LIGNE { return ~a.r[i]; });
}
template <int S, int P>
SUDOKU_EN_LIGNE Voies<S, P>& operator|=(Voies<S, P>& a, const Voies<S, P>& b) {
  return a = a | b;
}

// Lanes all ones where that is so, 0 elsewhere.
template <int S>
SUDOKU_EN_LIGNE Voies<S> Egales(const Voies<S>& a, const Voies<S>& b) {
  return Voies<S>::De([&](int i) SUDOKU_LAMBDA_EN_LIGNE {
    return reinterpret_cast<typename Voies<S>::Registre>(a.r[i] == b.r[i]);
  });
}
template <int S>
SUDOKU_EN_LIGNE Voies<S> Nulles(const Voies<S>& v) {
  return Egales(v, Voies<S>{});
}
template <int S>
SUDOKU_EN_LIGNE Voies<S> NonNulles(const Voies<S>& v) {
  return Voies<S>::De([&](int i) SUDOKU_LAMBDA_EN_LIGNE {
    return reinterpret_cast<typename Voies<S>::Registre>(v.r[i] != 0);
  });
}
// Lanes that hold one symbol, place or unit.
template <int S>
SUDOKU_EN_LIGNE Voies<S> Seules(const Voies<S>& v) {
  return Nulles(v & (v - Partout<S>(1))) & NonNulles(v);
}

// Lanes all ones where their bit is set; those from N on are 0.
template <int S>
SUDOKU_EN_LIGNE Voies<S, 1> Etale(const BitsDe<S>& bits) {
  struct Un {
    alignas(64) MotDe<S> mots[Taille(Largeur<S>::kVoies)] = {};
    constexpr Un() {
      for (int i = 0; i < Largeur<S>::N; ++i) mots[i] = static_cast<MotDe<S>>(std::uint64_t{1} << (i & 63));
    }
  };
  static constexpr Un kUn;
  using V = Voies<S, 1>;
  const V un = Lit<S, 1>(kUn.mots);
  return V::De([&](int i) SUDOKU_LAMBDA_EN_LIGNE {
    const auto mot = static_cast<MotDe<S>>(Mot(bits, i * V::kParRegistre / 64));
    return reinterpret_cast<typename V::Registre>((un.r[i] & mot) != 0);
  });
}

// Lanes all ones where they hold n.
template <int S>
SUDOKU_EN_LIGNE Voies<S, 1> Avec(const Voies<S>& v, int n) {
  using V = Voies<S, 1>;
  constexpr int kRegistres = V::kTous;
  return V::De([&](int i) SUDOKU_LAMBDA_EN_LIGNE {
    const auto bit = static_cast<MotDe<S>>(std::uint64_t{1} << (n & 63));
    return reinterpret_cast<typename V::Registre>((v.r[(n >> 6) * kRegistres + i] & bit) != 0);
  });
}
// The lanes where `masque` is all ones.
template <int S>
requires(Largeur<S>::kMots > 1) SUDOKU_EN_LIGNE Voies<S>
operator&(const Voies<S>& v, const Voies<S, 1>& masque) {
  return Voies<S>::De([&](int i)
                          SUDOKU_LAMBDA_EN_LIGNE { return v.r[i] & masque.r[i % Voies<S, 1>::kTous]; });
}

// Lane number i of those that begin here.
template <int S>
SUDOKU_EN_LIGNE BitsDe<S> Voie(const MotDe<S>* p, int i) {
  if constexpr (Largeur<S>::kMots == 1) {
    return p[i];
  } else {
    BitsDe<S> bits;
    for (int k = 0; k < Largeur<S>::kMots; ++k) bits[k] = p[k * Largeur<S>::kVoies + i];
    return bits;
  }
}
// Number n into lane number i, or out of it.
template <int S>
SUDOKU_EN_LIGNE void Ajoute(MotDe<S>* p, int i, int n) {
  p[(n >> 6) * Largeur<S>::kVoies + i] |= static_cast<MotDe<S>>(std::uint64_t{1} << (n & 63));
}
template <int S>
SUDOKU_EN_LIGNE void Retire(MotDe<S>* p, int i, int n) {
  p[(n >> 6) * Largeur<S>::kVoies + i] &= static_cast<MotDe<S>>(~(std::uint64_t{1} << (n & 63)));
}

// Lanes of more than n, all ones.
template <int S>
SUDOKU_EN_LIGNE Voies<S> PlusDe(int n, const Voies<S>& v) {
  return Voies<S>::De([&](int i) SUDOKU_LAMBDA_EN_LIGNE {
    return reinterpret_cast<typename Voies<S>::Registre>(v.r[i] > static_cast<MotDe<S>>(n));
  });
}

// Where the lanes of N = 9 take one register: lane i gets lane F()(i); lane 15 is 0 in every vector.
template <class F, int... i>
SUDOKU_EN_LIGNE Voies<3> Permute(const Voies<3>& v, F, std::integer_sequence<int, i...>) {
  return {{__builtin_shufflevector(v.r[0], v.r[0], F()(i)...)}};
}
template <int S>
constexpr bool kPermute = S == 3 && Voies<S>::kRegistres == 1;

// Lane i gets lane i + d, 0 behind the last one.
template <int S, int d>
SUDOKU_EN_LIGNE Voies<S> Descend(const Voies<S>& v) {
  if constexpr (kPermute<S>) {
    return Permute(
        v, [](int i) { return i + d < 9 ? i + d : 15; }, std::make_integer_sequence<int, 16>());
  } else {
    alignas(64) MotDe<S> suite[Taille(Largeur<S>::kVoies + d)] = {};
    Ecrit<S>(suite, v);
    return Lit<S>(suite + d);
  }
}

// Lane i, below N, gets lane k * saut + i / S * pas, the others 0. k is a number or a constant.
template <int S, int saut, int pas, class K>
SUDOKU_EN_LIGNE Voies<S> Etire(const MotDe<S>* voies, K k) {
  if constexpr (kPermute<S>) {
    return Permute(
        Lit<S>(voies), [](int i) { return i < 9 ? K::value * saut + i / 3 * pas : 15; },
        std::make_integer_sequence<int, 16>());
  } else {
    constexpr int kVoies = Largeur<S>::kVoies;
    alignas(64) MotDe<S> etirees[Taille(Largeur<S>::kMots * kVoies)] = {};
    for (int plan = 0; plan < Largeur<S>::kMots * kVoies; plan += kVoies) {
      for (int i = 0; i < Largeur<S>::N; ++i) etirees[plan + i] = voies[plan + k * saut + i / S * pas];
    }
    return Lit<S>(etirees);
  }
}

}  // namespace
}  // namespace sudoku::SUDOKU_MOTEUR
