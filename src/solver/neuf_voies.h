#pragma once

#include <cstring>

#include "engine/duo.h"

// What puts nine lanes together.
namespace sudoku::SUDOKU_MOTEUR {
namespace {

// What there is in four tables of nine lanes, those of two units: 8 bits a table, for its first eight lanes.
struct Releve {
  std::uint32_t seuls;      // lanes that hold one
  std::uint32_t neuviemes;  // the same for the ninth lane, 8 times over
  std::uint32_t debuts;  // lanes where a set of equal lanes begins, as many as each holds; some may be none
};

// Places and candidates of a unit, then of another. The low byte of a lane says which of those with the same
// count are equal.
SUDOKU_EN_LIGNE Releve Regarde(const MotDe<3>* const (&tables)[4]) {
#if defined(__AVX2__)
  const auto octets = [&](int i, auto f) SUDOKU_LAMBDA_EN_LIGNE {
    const auto huit = [&](int k) { return _mm_load_si128(reinterpret_cast<const __m128i*>(tables[k] + i)); };
    return _mm256_packus_epi16(f(_mm256_set_m128i(huit(2), huit(0))), f(_mm256_set_m128i(huit(3), huit(1))));
  };
  const auto bas = [](__m256i v) { return _mm256_and_si256(v, _mm256_set1_epi16(0xFF)); };
  const auto haut = [](__m256i v) { return _mm256_srli_epi16(v, 8); };
  const auto range = [](__m256i v) { return TrenteDeux{{reinterpret_cast<TrenteDeux::Registre>(v)}}; };
  const auto partout = [&](__m256i v) {
    const __m128i premier = _mm_setr_epi8(0, 0, 0, 0, 0, 0, 0, 0, 8, 8, 8, 8, 8, 8, 8, 8);
    return range(_mm256_shuffle_epi8(v, _mm256_broadcastsi128_si256(premier)));
  };
  const __m256i mots = octets(0, bas);
  const TrenteDeux cles = range(mots);
  const TrenteDeux comptes = Comptes(cles) + range(octets(0, haut));
  const TrenteDeux neuvieme = partout(octets(8, bas));
  const TrenteDeux compteNeuvieme = Comptes(neuvieme) + partout(octets(8, haut));
  const TrenteDeux un = TrenteDeux::Partout(1);
  TrenteDeux egales = un - Egaux(cles, neuvieme);
  const auto compare = [&](auto d) SUDOKU_LAMBDA_EN_LIGNE {
    egales = egales - Egaux(cles, range(_mm256_srli_epi64(mots, 8 * (decltype(d)::value + 1))));
  };
  ChaqueConstante(compare, std::make_integer_sequence<int, 7>());
  return {BitsDesOctets(Egaux(comptes, un)), BitsDesOctets(Egaux(compteNeuvieme, un)),
          BitsDesOctets(AuMoins(egales, comptes) & AuMoins(comptes, un + un))};
#else
  Releve releve{};
  for (int k = 0; k < 4; k += 2) {
    const Duo<3> vues(tables[k], tables[k + 1]);
    releve.seuls |= (vues.De(kPremiere, 1) & 0377) << 8 * k;
    releve.neuviemes |= (vues.De(kPremiere, 1) >> 8) << 8 * k;
    releve.debuts |= ((vues.Debuts(kPremiere) & 0377) | (vues.Debuts(kSeconde) & 0377) << 8) << 8 * k;
  }
  return releve;
#endif
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
