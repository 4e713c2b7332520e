#pragma once

#include <cstring>

#include "engine/duo.h"

// What puts nine lanes together.
namespace sudoku::SUDOKU_MOTEUR {
namespace {

// Four tables of nine lanes in bytes: the first eight lanes of each side by side, and its ninth eight times
// over.
struct QuatreTables {
  TrenteDeux bas;   // the first eight numbers of a lane
  TrenteDeux haut;  // 1 where it holds the ninth
  TrenteDeux neuviemeBas;
  TrenteDeux neuviemeHaut;

  SUDOKU_EN_LIGNE explicit QuatreTables(const MotDe<3>* const (&tables)[4]) {
#if defined(__AVX2__)
    const auto octets = [&](int i, auto f) SUDOKU_LAMBDA_EN_LIGNE {
      const auto huit = [&](int k) {
        return _mm_load_si128(reinterpret_cast<const __m128i*>(tables[k] + i));
      };
      return _mm256_packus_epi16(f(_mm256_set_m128i(huit(2), huit(0))),
                                 f(_mm256_set_m128i(huit(3), huit(1))));
    };
    const auto premiers = [](__m256i v) { return _mm256_and_si256(v, _mm256_set1_epi16(0xFF)); };
    const auto dernier = [](__m256i v) { return _mm256_srli_epi16(v, 8); };
    const auto range = [](__m256i v) { return TrenteDeux{{reinterpret_cast<TrenteDeux::Registre>(v)}}; };
    const auto partout = [&](__m256i v) {
      const __m128i premier = _mm_setr_epi8(0, 0, 0, 0, 0, 0, 0, 0, 8, 8, 8, 8, 8, 8, 8, 8);
      return range(_mm256_shuffle_epi8(v, _mm256_broadcastsi128_si256(premier)));
    };
    bas = range(octets(0, premiers));
    haut = range(octets(0, dernier));
    neuviemeBas = partout(octets(8, premiers));
    neuviemeHaut = partout(octets(8, dernier));
#else
    using Huit [[gnu::vector_size(16)]] = MotDe<3>;
    using Octets [[gnu::vector_size(8)]] = std::uint8_t;
    const auto octets = [&](auto huit) SUDOKU_LAMBDA_EN_LIGNE {
      return TrenteDeux::De([&](int i) SUDOKU_LAMBDA_EN_LIGNE {
        const auto a = __builtin_convertvector(huit(tables[2 * i]), Octets);
        const auto b = __builtin_convertvector(huit(tables[2 * i + 1]), Octets);
        return __builtin_shufflevector(a, b, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15);
      });
    };
    const auto premieres = [](const MotDe<3>* table) {
      Huit huit;
      std::memcpy(&huit, table, sizeof huit);
      return huit;
    };
    bas = octets([&](const MotDe<3>* table) { return premieres(table) & 0xFF; });
    haut = octets([&](const MotDe<3>* table) { return premieres(table) >> 8; });
    neuviemeBas =
        octets([](const MotDe<3>* table) { return Huit{} + static_cast<MotDe<3> >(table[8] & 0xFF); });
    neuviemeHaut =
        octets([](const MotDe<3>* table) { return Huit{} + static_cast<MotDe<3> >(table[8] >> 8); });
#endif
  }
};

// Byte i of each table gets byte i + d, 0 behind the eighth.
template <int d>
SUDOKU_EN_LIGNE TrenteDeux AvanceHuit(const TrenteDeux& v) {
  using Mots [[gnu::vector_size(TrenteDeux::kOctets)]] = std::uint64_t;
  return TrenteDeux::De([&](int i) SUDOKU_LAMBDA_EN_LIGNE {
    return reinterpret_cast<TrenteDeux::Registre>(reinterpret_cast<Mots>(v.r[i]) >> 8 * d);
  });
}

// What there is in four tables of nine lanes, those of two units: 8 bits a table, for its first eight lanes.
struct Releve {
  std::uint32_t seuls;      // lanes that hold one
  std::uint32_t neuviemes;  // the same for the ninth lane, 8 times over
  std::uint32_t debuts;  // lanes where a set of equal lanes begins, as many as each holds; some may be none
};

// Places and candidates of a unit, then of another. The low byte of a lane says which of those with the same
// count are equal.
SUDOKU_EN_LIGNE Releve Regarde(const QuatreTables& t) {
  const TrenteDeux comptes = Comptes(t.bas) + t.haut;
  const TrenteDeux compteNeuvieme = Comptes(t.neuviemeBas) + t.neuviemeHaut;
  const TrenteDeux un = TrenteDeux::Partout(1);
  TrenteDeux egales = un - Egaux(t.bas, t.neuviemeBas);
  const auto compare = [&](auto d) SUDOKU_LAMBDA_EN_LIGNE {
    egales = egales - Egaux(t.bas, AvanceHuit<decltype(d)::value + 1>(t.bas));
  };
  ChaqueConstante(compare, std::make_integer_sequence<int, 7>());
  return {BitsDesOctets(Egaux(comptes, un)), BitsDesOctets(Egaux(compteNeuvieme, un)),
          BitsDesOctets(AuMoins(egales, comptes) & AuMoins(comptes, un + un))};
}

// The lanes that hold something, three numbers at most with each of two lanes behind them: 8 bits a table.
SUDOKU_EN_LIGNE std::uint32_t TroisEnTrois(const QuatreTables& t) {
  const TrenteDeux un = TrenteDeux::Partout(1);
  // What the lanes lack; an empty one is to lack nothing, as one that holds all does.
  const TrenteDeux pleines = ~Egaux(t.bas + t.haut, TrenteDeux{});
  const TrenteDeux bas = ~t.bas & pleines;
  const TrenteDeux haut = (un - t.haut) & pleines;
  const TrenteDeux neuviemes = ~Egaux(t.neuviemeBas + t.neuviemeHaut, TrenteDeux{});
  TrenteDeux proches{};
  const auto compare = [&](const TrenteDeux& autreBas, const TrenteDeux& autreHaut) SUDOKU_LAMBDA_EN_LIGNE {
    proches = proches - AuMoins(Comptes(bas & autreBas) + (haut & autreHaut), TrenteDeux::Partout(6));
  };
  compare(~t.neuviemeBas & neuviemes, (un - t.neuviemeHaut) & neuviemes);
  const auto avance = [&](auto d) SUDOKU_LAMBDA_EN_LIGNE {
    compare(AvanceHuit<decltype(d)::value + 1>(bas), AvanceHuit<decltype(d)::value + 1>(haut));
  };
  ChaqueConstante(avance, std::make_integer_sequence<int, 7>());
  return BitsDesOctets(AuMoins(proches, un + un));
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
