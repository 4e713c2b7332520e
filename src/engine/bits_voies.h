#pragma once

#include "engine/voies.h"

// What lanes say in bits, and how many bits they hold: where the compilers' vector extension can't say it
// well, with a version for each instruction set.
namespace sudoku::SUDOKU_MOTEUR {
namespace {

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
  Voies<S>::Chaque([&](int i) SUDOKU_LAMBDA_EN_LIGNE {
    bits |= static_cast<BitsDe<S>>(f(i)) << (i * Voies<S>::kParRegistre);
  });
  return bits;
}
template <int S>
SUDOKU_EN_LIGNE BitsDe<S> EnBits(const Voies<S>& masque) {
  return BitsParRegistre<S>([&](int i) SUDOKU_LAMBDA_EN_LIGNE { return BitsDuRegistre<S>(masque.r[i]); });
}

// Bits of lanes by comparison. The newest instructions compare into bits at once, which the compilers don't
// see behind a vector of lanes.
#if defined(SUDOKU_VOIES_512)
template <int S>
SUDOKU_EN_LIGNE BitsDe<S> BitsEgales(const Voies<S>& a, const Voies<S>& b) {
  return BitsParRegistre<S>([&](int i) SUDOKU_LAMBDA_EN_LIGNE -> BitsDe<S> {
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
  return BitsParRegistre<S>([&](int i) SUDOKU_LAMBDA_EN_LIGNE -> BitsDe<S> {
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
  Voies<S>::Chaque([&](int i) SUDOKU_LAMBDA_EN_LIGNE { toutes |= v.r[i]; });
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

// How many each lane holds.
template <int S>
SUDOKU_EN_LIGNE Voies<S> Comptes(const Voies<S>& voies) {
  using Registre = typename Voies<S>::Registre;
  return Voies<S>::De([&](int i) SUDOKU_LAMBDA_EN_LIGNE {
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

}  // namespace
}  // namespace sudoku::SUDOKU_MOTEUR
