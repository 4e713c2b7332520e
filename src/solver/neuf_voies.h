#pragma once

#include <cstring>

#include "engine/voies.h"

// Nine lanes twice over, and what puts them together, where a unit is looked at by places and by candidates.
namespace sudoku::SUDOKU_MOTEUR {
namespace {

// Lane i of each half gets lane i + d of that half, and behind these the first one of that half of `suite`.
template <int d>
SUDOKU_EN_LIGNE Voies<3> Decale(const Voies<3>& v, const Voies<3>& suite) {
  if constexpr (d == 8) return suite;
#if defined(__AVX2__)
  return {{reinterpret_cast<Voies<3>::Registre>(_mm256_alignr_epi8(
      reinterpret_cast<__m256i>(suite.r[0]), reinterpret_cast<__m256i>(v.r[0]), 2 * d % 16))}};
#elif defined(__SSE2__)
  return Voies<3>::De([&](int i) {
    return reinterpret_cast<Voies<3>::Registre>(
        _mm_or_si128(_mm_srli_si128(reinterpret_cast<__m128i>(v.r[i]), 2 * d % 16),
                     _mm_slli_si128(reinterpret_cast<__m128i>(suite.r[i]), 16 - 2 * d % 16)));
  });
#else
  alignas(64) MotDe<3> mots[16];
  alignas(64) MotDe<3> suivants[16];
  Ecrit<3>(mots, v);
  Ecrit<3>(suivants, suite);
  for (int moitie = 0; moitie < 16; moitie += 8) {
    for (int i = 0; i < 8; ++i) mots[moitie + i] = i + d < 8 ? mots[moitie + i + d] : 0;
    mots[moitie + 8 - d] = suivants[moitie];
  }
  return Lit<3>(mots);
#endif
}

// Two times nine lanes side by side, the first eight of each and then the ninth ones.
struct DeuxFoisNeuf {
  Voies<3> huit;
  Voies<3> neuvieme;

  SUDOKU_EN_LIGNE DeuxFoisNeuf(const MotDe<3>* a, const MotDe<3>* b)
      : huit(Moities(a, b)), neuvieme(Moities(a + 8, b + 8)) {}
#if defined(__AVX2__)
  SUDOKU_EN_LIGNE DeuxFoisNeuf(const Voies<3>& a, const Voies<3>& b)
      : huit(Moities<0x20>(a, b)), neuvieme(Moities<0x31>(a, b)) {}
#else
  SUDOKU_EN_LIGNE DeuxFoisNeuf(const Voies<3>& a, const Voies<3>& b)
      : huit{{a.r[0], b.r[0]}}, neuvieme{{a.r[1], b.r[1]}} {}
#endif

 private:
#if defined(__AVX2__)
  template <int moities>
  SUDOKU_EN_LIGNE static Voies<3> Moities(const Voies<3>& a, const Voies<3>& b) {
    return {{reinterpret_cast<Voies<3>::Registre>(_mm256_permute2x128_si256(
        reinterpret_cast<__m256i>(a.r[0]), reinterpret_cast<__m256i>(b.r[0]), moities))}};
  }
#endif
  SUDOKU_EN_LIGNE static Voies<3> Moities(const MotDe<3>* a, const MotDe<3>* b) {
#if defined(__AVX2__)
    const auto huit = [](const MotDe<3>* p) { return _mm_load_si128(reinterpret_cast<const __m128i*>(p)); };
    return {{reinterpret_cast<Voies<3>::Registre>(_mm256_set_m128i(huit(b), huit(a)))}};
#else
    alignas(64) MotDe<3> mots[16];
    std::memcpy(mots, a, 16);
    std::memcpy(mots + 8, b, 16);
    return Lit<3>(mots);
#endif
  }
};

// What there is in two times nine lanes, bits by lane: of the first eight lanes of either, 8 bits each.
struct Releve18 {
  std::uint32_t seuls;   // lanes that hold one
  std::uint32_t deux;    // lanes that hold two
  std::uint32_t debuts;  // first ones of sets of equal lanes, as many as each holds
};
SUDOKU_EN_LIGNE Releve18 Regarde(const DeuxFoisNeuf& voies) {
  const Voies<3> comptes = Comptes(voies.huit);
  Voies<3> egales = Partout<3>(1);
  ChaqueConstante<8>([&](auto d) SUDOKU_LAMBDA_EN_LIGNE {
    egales = egales - Egales(voies.huit, Decale<d + 1>(voies.huit, voies.neuvieme));
  });
  const std::uint32_t seuls = BitsEgales(comptes, Partout<3>(1));
  return {seuls, BitsEgales(comptes, Partout<3>(2)), BitsEgales(comptes, egales) & ~seuls};
}

// Three times three lanes into nine. Each is read with the one behind it.
SUDOKU_EN_LIGNE void RangeTrois(MotDe<3>* p, const MotDe<3>* a, const MotDe<3>* b, const MotDe<3>* c) {
#if defined(__SSE2__)
  const auto trois = [](const MotDe<3>* q) {
    std::uint64_t mots;
    std::memcpy(&mots, q, sizeof mots);
    return static_cast<long long>(mots & 0xFFFFFFFFFFFF);
  };
  const auto range = [](MotDe<3>* q, __m128i v) { _mm_store_si128(reinterpret_cast<__m128i*>(q), v); };
  range(p, _mm_set_epi64x(trois(b) >> 16 | trois(c) << 32, trois(a) | trois(b) << 48));
  range(p + 8, _mm_cvtsi32_si128(c[2]));
#else
  Ecrit<3>(p, Voies<3>{});
  std::memcpy(p, a, 3 * sizeof *p);
  std::memcpy(p + 3, b, 3 * sizeof *p);
  std::memcpy(p + 6, c, 3 * sizeof *p);
#endif
}

// Lines of four words turned into columns.
using Quatre [[gnu::vector_size(16)]] = std::uint32_t;
SUDOKU_EN_LIGNE void TourneQuatre(Quatre (&q)[4]) {
  const Quatre a = __builtin_shufflevector(q[0], q[1], 0, 4, 1, 5);
  const Quatre b = __builtin_shufflevector(q[0], q[1], 2, 6, 3, 7);
  const Quatre c = __builtin_shufflevector(q[2], q[3], 0, 4, 1, 5);
  const Quatre d = __builtin_shufflevector(q[2], q[3], 2, 6, 3, 7);
  q[0] = __builtin_shufflevector(a, c, 0, 1, 4, 5);
  q[1] = __builtin_shufflevector(a, c, 2, 3, 6, 7);
  q[2] = __builtin_shufflevector(b, d, 0, 1, 4, 5);
  q[3] = __builtin_shufflevector(b, d, 2, 3, 6, 7);
}

// Words below 2^15 into half words, eight and one.
SUDOKU_EN_LIGNE void RangeNeuf(MotDe<3>* p, const Quatre& a, const Quatre& b, std::uint32_t neuvieme) {
#if defined(__SSE2__)
  const auto range = [](MotDe<3>* q, __m128i v) { _mm_store_si128(reinterpret_cast<__m128i*>(q), v); };
  range(p, _mm_packs_epi32(reinterpret_cast<__m128i>(a), reinterpret_cast<__m128i>(b)));
  range(p + 8, _mm_cvtsi32_si128(static_cast<int>(neuvieme)));
#else
  Ecrit<3>(p, Voies<3>{});
  for (int i = 0; i < 4; ++i) {
    p[i] = static_cast<MotDe<3> >(a[i]);
    p[4 + i] = static_cast<MotDe<3> >(b[i]);
  }
  p[8] = static_cast<MotDe<3> >(neuvieme);
#endif
}

}  // namespace
}  // namespace sudoku::SUDOKU_MOTEUR
