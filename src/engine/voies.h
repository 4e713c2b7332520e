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
// once in the compilers' vector extension; what that can't say well has a version for each instruction set.
// Each version of the hot code has its own, in its own namespace SUDOKU_MOTEUR, so that no two of them share
// a function.
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
  return Voies<S, P>::De([p](int i) {
    typename Voies<S, P>::Registre registre;
    std::memcpy(&registre, p + i * Voies<S, P>::kParRegistre, sizeof registre);
    return registre;
  });
}
// The registers that f(number of the register) gives.
template <int S, class F>
SUDOKU_EN_LIGNE void RangeChaque(MotDe<S>* p, F f) {
  Voies<S>::Chaque([&](int i) {
    const typename Voies<S>::Registre registre = f(i);
    std::memcpy(p + i * Voies<S>::kParRegistre, &registre, sizeof registre);
  });
}
template <int S>
SUDOKU_EN_LIGNE void Ecrit(MotDe<S>* p, const Voies<S>& v) {
  RangeChaque<S>(p, [&](int i) { return v.r[i]; });
}
// The register i of lanes that all hold n.
template <int S>
SUDOKU_EN_LIGNE typename Voies<S>::Registre Partout(const BitsDe<S>& n, int i) {
  return typename Voies<S>::Registre{} + static_cast<MotDe<S>>(Mot(n, Voies<S>::Plan(i)));
}
template <int S>
SUDOKU_EN_LIGNE Voies<S> Partout(const BitsDe<S>& n) {
  return Voies<S>::De([&](int i) { return Partout<S>(n, i); });
}

template <int S, int P>
SUDOKU_EN_LIGNE Voies<S, P> operator&(const Voies<S, P>& a, const Voies<S, P>& b) {
  return Voies<S, P>::De([&](int i) { return a.r[i] & b.r[i]; });
}
template <int S, int P>
SUDOKU_EN_LIGNE Voies<S, P> operator|(const Voies<S, P>& a, const Voies<S, P>& b) {
  return Voies<S, P>::De([&](int i) { return a.r[i] | b.r[i]; });
}
template <int S, int P>
SUDOKU_EN_LIGNE Voies<S, P> operator^(const Voies<S, P>& a, const Voies<S, P>& b) {
  return Voies<S, P>::De([&](int i) { return a.r[i] ^ b.r[i]; });
}
template <int S, int P>
SUDOKU_EN_LIGNE Voies<S, P> operator-(const Voies<S, P>& a, const Voies<S, P>& b) {
  return Voies<S, P>::De([&](int i) { return a.r[i] - b.r[i]; });
}
template <int S, int P>
SUDOKU_EN_LIGNE Voies<S, P> operator~(const Voies<S, P>& a) {
  return Voies<S, P>::De([&](int i) { return ~a.r[i]; });
}
template <int S, int P>
SUDOKU_EN_LIGNE Voies<S, P>& operator|=(Voies<S, P>& a, const Voies<S, P>& b) {
  return a = a | b;
}

// Lanes all ones where that is so, 0 elsewhere.
template <int S>
SUDOKU_EN_LIGNE Voies<S> Egales(const Voies<S>& a, const Voies<S>& b) {
  return Voies<S>::De([&](int i) { return reinterpret_cast<typename Voies<S>::Registre>(a.r[i] == b.r[i]); });
}
template <int S>
SUDOKU_EN_LIGNE Voies<S> Nulles(const Voies<S>& v) {
  return Egales(v, Voies<S>{});
}
template <int S>
SUDOKU_EN_LIGNE Voies<S> NonNulles(const Voies<S>& v) {
  return Voies<S>::De([&](int i) { return reinterpret_cast<typename Voies<S>::Registre>(v.r[i] != 0); });
}
// Lanes that hold one symbol, place or unit.
template <int S>
SUDOKU_EN_LIGNE Voies<S> Seules(const Voies<S>& v) {
  return Nulles(v & (v - Partout<S>(1))) & NonNulles(v);
}

// A bit a lane of a register whose lanes are all ones or all zero.
template <int S>
SUDOKU_EN_LIGNE BitsDe<S> BitsDuRegistre(typename Voies<S>::Registre m) {
#if defined(SUDOKU_VOIES_512)
  constexpr std::size_t kOctets = sizeof(MotDe<S>);
  if constexpr (kOctets == 2) return _mm256_movepi16_mask(reinterpret_cast<__m256i>(m));
  if constexpr (kOctets == 4) return _mm512_movepi32_mask(reinterpret_cast<__m512i>(m));
  if constexpr (kOctets == 8) return _mm512_movepi64_mask(reinterpret_cast<__m512i>(m));
#elif defined(__AVX2__)
  constexpr std::size_t kOctets = sizeof(MotDe<S>);
  const auto v = reinterpret_cast<__m256i>(m);
  if constexpr (kOctets == 2) {
    const __m128i octets = _mm_packs_epi16(_mm256_castsi256_si128(v), _mm256_extracti128_si256(v, 1));
    return static_cast<BitsDe<S>>(_mm_movemask_epi8(octets));
  }
  if constexpr (kOctets == 4) return static_cast<BitsDe<S>>(_mm256_movemask_ps(reinterpret_cast<__m256>(v)));
  if constexpr (kOctets == 8) return static_cast<BitsDe<S>>(_mm256_movemask_pd(reinterpret_cast<__m256d>(v)));
#elif defined(__SSE2__)
  constexpr std::size_t kOctets = sizeof(MotDe<S>);
  const auto v = reinterpret_cast<__m128i>(m);
  if constexpr (kOctets == 2)
    return static_cast<BitsDe<S>>(_mm_movemask_epi8(_mm_packs_epi16(v, _mm_setzero_si128())));
  if constexpr (kOctets == 4) return static_cast<BitsDe<S>>(_mm_movemask_ps(reinterpret_cast<__m128>(v)));
  if constexpr (kOctets == 8) return static_cast<BitsDe<S>>(_mm_movemask_pd(reinterpret_cast<__m128d>(v)));
#else
  BitsDe<S> bits = 0;
  for (int i = 0; i < Voies<S>::kParRegistre; ++i) bits += m[i] & (BitsDe<S>{1} << i);
  return bits;
#endif
}
// The bits that f(number of the register) gives, for all registers.
template <int S, class F>
SUDOKU_EN_LIGNE BitsDe<S> BitsParRegistre(F f) {
  BitsDe<S> bits = 0;
  Voies<S>::Chaque([&](int i) { bits |= static_cast<BitsDe<S>>(f(i)) << (i * Voies<S>::kParRegistre); });
  return bits;
}
template <int S>
SUDOKU_EN_LIGNE BitsDe<S> EnBits(const Voies<S>& masque) {
  return BitsParRegistre<S>([&](int i) { return BitsDuRegistre<S>(masque.r[i]); });
}

// Bits of lanes by comparison. The newest instructions compare into bits at once, which the compilers don't
// see behind a vector of lanes.
#if defined(SUDOKU_VOIES_512)
template <int S>
SUDOKU_EN_LIGNE BitsDe<S> BitsEgales(const Voies<S>& a, const Voies<S>& b) {
  return BitsParRegistre<S>([&](int i) -> BitsDe<S> {
    if constexpr (sizeof(MotDe<S>) == 2)
      return _mm256_cmpeq_epi16_mask(reinterpret_cast<__m256i>(a.r[i]), reinterpret_cast<__m256i>(b.r[i]));
    else if constexpr (sizeof(MotDe<S>) == 4)
      return _mm512_cmpeq_epi32_mask(reinterpret_cast<__m512i>(a.r[i]), reinterpret_cast<__m512i>(b.r[i]));
    else
      return _mm512_cmpeq_epi64_mask(reinterpret_cast<__m512i>(a.r[i]), reinterpret_cast<__m512i>(b.r[i]));
  });
}
template <int S>
SUDOKU_EN_LIGNE BitsDe<S> BitsNonNulles(const Voies<S>& v) {
  return BitsParRegistre<S>([&](int i) -> BitsDe<S> {
    if constexpr (sizeof(MotDe<S>) == 2)
      return _mm256_test_epi16_mask(reinterpret_cast<__m256i>(v.r[i]), reinterpret_cast<__m256i>(v.r[i]));
    else if constexpr (sizeof(MotDe<S>) == 4)
      return _mm512_test_epi32_mask(reinterpret_cast<__m512i>(v.r[i]), reinterpret_cast<__m512i>(v.r[i]));
    else
      return _mm512_test_epi64_mask(reinterpret_cast<__m512i>(v.r[i]), reinterpret_cast<__m512i>(v.r[i]));
  });
}
#else
template <int S>
SUDOKU_EN_LIGNE BitsDe<S> BitsEgales(const Voies<S>& a, const Voies<S>& b) {
  return EnBits(Egales(a, b));
}
template <int S>
SUDOKU_EN_LIGNE BitsDe<S> BitsNonNulles(const Voies<S>& v) {
  return EnBits(NonNulles(v));
}
#endif

// Every lane is 0.
template <int S>
SUDOKU_EN_LIGNE bool Aucune(const Voies<S>& v) {
  typename Voies<S>::Registre toutes{};
  Voies<S>::Chaque([&](int i) { toutes |= v.r[i]; });
#if defined(SUDOKU_VOIES_512)
  if constexpr (sizeof toutes == 64)
    return _mm512_test_epi64_mask(reinterpret_cast<__m512i>(toutes), reinterpret_cast<__m512i>(toutes)) == 0;
#endif
#if defined(__AVX2__)
  if constexpr (sizeof toutes == 32)
    return _mm256_testz_si256(reinterpret_cast<__m256i>(toutes), reinterpret_cast<__m256i>(toutes)) != 0;
#endif
  return BitsDuRegistre<S>(reinterpret_cast<typename Voies<S>::Registre>(toutes != 0)) == 0;
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
  return V::De([&](int i) {
    const auto mot = static_cast<MotDe<S>>(Mot(bits, i * V::kParRegistre / 64));
    return reinterpret_cast<typename V::Registre>((un.r[i] & mot) != 0);
  });
}

// Lanes all ones where they hold n.
template <int S>
SUDOKU_EN_LIGNE Voies<S, 1> Avec(const Voies<S>& v, int n) {
  using V = Voies<S, 1>;
  constexpr int kRegistres = V::kTous;
  return V::De([&](int i) {
    const auto bit = static_cast<MotDe<S>>(std::uint64_t{1} << (n & 63));
    return reinterpret_cast<typename V::Registre>((v.r[(n >> 6) * kRegistres + i] & bit) != 0);
  });
}
// The lanes where `masque` is all ones.
template <int S>
requires(Largeur<S>::kMots > 1) SUDOKU_EN_LIGNE Voies<S>
operator&(const Voies<S>& v, const Voies<S, 1>& masque) {
  return Voies<S>::De([&](int i) { return v.r[i] & masque.r[i % Voies<S, 1>::kTous]; });
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

// How many each lane holds.
template <int S>
SUDOKU_EN_LIGNE Voies<S> Comptes(const Voies<S>& voies) {
  using Registre = typename Voies<S>::Registre;
  return Voies<S>::De([&](int i) {
    Registre v = voies.r[i];
    constexpr std::size_t kOctets = sizeof(MotDe<S>);
#if defined(SUDOKU_VOIES_512)
    if constexpr (kOctets == 2)
      return reinterpret_cast<Registre>(_mm256_popcnt_epi16(reinterpret_cast<__m256i>(v)));
    if constexpr (kOctets == 4)
      return reinterpret_cast<Registre>(_mm512_popcnt_epi32(reinterpret_cast<__m512i>(v)));
    if constexpr (kOctets == 8)
      return reinterpret_cast<Registre>(_mm512_popcnt_epi64(reinterpret_cast<__m512i>(v)));
#elif defined(__AVX2__)
    const __m256i bas = _mm256_set1_epi8(15);
    const __m256i combien = _mm256_setr_epi8(0, 1, 1, 2, 1, 2, 2, 3, 1, 2, 2, 3, 2, 3, 3, 4, 0, 1, 1, 2, 1, 2,
                                             2, 3, 1, 2, 2, 3, 2, 3, 3, 4);
    const auto bits = reinterpret_cast<__m256i>(v);
    const __m256i hauts = _mm256_and_si256(_mm256_srli_epi16(bits, 4), bas);
    const __m256i octets = _mm256_add_epi8(_mm256_shuffle_epi8(combien, _mm256_and_si256(bits, bas)),
                                           _mm256_shuffle_epi8(combien, hauts));
    if constexpr (kOctets == 8)
      return reinterpret_cast<Registre>(_mm256_sad_epu8(octets, _mm256_setzero_si256()));
    const __m256i paires = _mm256_maddubs_epi16(octets, _mm256_set1_epi8(1));
    if constexpr (kOctets == 2) return reinterpret_cast<Registre>(paires);
    if constexpr (kOctets == 4)
      return reinterpret_cast<Registre>(_mm256_madd_epi16(paires, _mm256_set1_epi16(1)));
#else
    constexpr auto kTous = static_cast<MotDe<S>>(~MotDe<S>{0});
    v = v - ((v >> 1) & static_cast<MotDe<S>>(kTous / 3));
    v = (v & static_cast<MotDe<S>>(kTous / 5)) + ((v >> 2) & static_cast<MotDe<S>>(kTous / 5));
    v = (v + (v >> 4)) & static_cast<MotDe<S>>(kTous / 17);
    for (std::size_t pas = 8; pas < 8 * kOctets; pas *= 2) v += v >> static_cast<MotDe<S>>(pas);
    return v & static_cast<MotDe<S>>(16 * kOctets - 1);
#endif
  });
}

// Lanes of more than n, all ones.
template <int S>
SUDOKU_EN_LIGNE Voies<S> PlusDe(int n, const Voies<S>& v) {
  return Voies<S>::De([&](int i) {
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
