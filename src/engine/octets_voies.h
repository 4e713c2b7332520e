#pragma once

#include <cstring>

#include "engine/bits_voies.h"

// Lanes narrowed to bytes, 32 of them side by side.
namespace sudoku::SUDOKU_MOTEUR {
namespace {

struct TrenteDeux {
#if defined(__AVX2__)
  static constexpr int kOctets = 32;  // of a register
#else
  static constexpr int kOctets = 16;
#endif
  using Registre [[gnu::vector_size(kOctets)]] = std::uint8_t;

  Registre r[32 / kOctets];

  int operator[](int i) const {
    return r[i / kOctets][i % kOctets];
  }
  // The registers that f(number of the register) gives.
  template <class F>
  SUDOKU_EN_LIGNE static TrenteDeux De(F f) {
    if constexpr (kOctets == 32)
      return {{f(0)}};
    else
      return {{f(0), f(1)}};
  }
  SUDOKU_EN_LIGNE static TrenteDeux Partout(int n) {
    return De([n](int) { return Registre{} + static_cast<std::uint8_t>(n); });
  }
};

SUDOKU_EN_LIGNE TrenteDeux operator+(const TrenteDeux& a, const TrenteDeux& b) {
  return TrenteDeux::De([&](int i) SUDOKU_LAMBDA_EN_LIGNE { return a.r[i] + b.r[i]; });
}
SUDOKU_EN_LIGNE TrenteDeux operator-(const TrenteDeux& a, const TrenteDeux& b) {
  return TrenteDeux::De([&](int i) SUDOKU_LAMBDA_EN_LIGNE { return a.r[i] - b.r[i]; });
}
SUDOKU_EN_LIGNE TrenteDeux operator&(const TrenteDeux& a, const TrenteDeux& b) {
  return TrenteDeux::De([&](int i) SUDOKU_LAMBDA_EN_LIGNE { return a.r[i] & b.r[i]; });
}
SUDOKU_EN_LIGNE TrenteDeux operator~(const TrenteDeux& a) {
  return TrenteDeux::De([&](int i) SUDOKU_LAMBDA_EN_LIGNE { return ~a.r[i]; });
}
// Bytes all ones where that is so, 0 elsewhere.
SUDOKU_EN_LIGNE TrenteDeux Egaux(const TrenteDeux& a, const TrenteDeux& b) {
  return TrenteDeux::De(
      [&](int i) SUDOKU_LAMBDA_EN_LIGNE { return reinterpret_cast<TrenteDeux::Registre>(a.r[i] == b.r[i]); });
}
SUDOKU_EN_LIGNE TrenteDeux AuMoins(const TrenteDeux& a, const TrenteDeux& b) {
  return TrenteDeux::De(
      [&](int i) SUDOKU_LAMBDA_EN_LIGNE { return reinterpret_cast<TrenteDeux::Registre>(a.r[i] >= b.r[i]); });
}

// A bit a byte, of bytes that are all ones or 0.
SUDOKU_EN_LIGNE std::uint32_t BitsDesOctets(const TrenteDeux& masque) {
#if defined(__AVX2__)
  return static_cast<std::uint32_t>(_mm256_movemask_epi8(reinterpret_cast<__m256i>(masque.r[0])));
#elif defined(__SSE2__)
  const auto seize = [&](int i) { return _mm_movemask_epi8(reinterpret_cast<__m128i>(masque.r[i])); };
  return static_cast<std::uint32_t>(seize(0) | seize(1) << 16);
#else
  std::uint32_t bits = 0;
  for (int i = 0; i < 32; ++i) bits |= std::uint32_t{masque.r[i / 16][i % 16] != 0} << i;
  return bits;
#endif
}
// The bytes that are `bas` to `haut`.
SUDOKU_EN_LIGNE std::uint32_t BitsEntre(const TrenteDeux& v, int bas, int haut) {
  return BitsDesOctets(AuMoins(TrenteDeux::Partout(haut - bas), v - TrenteDeux::Partout(bas)));
}

// In each half byte i gets byte i + d, 0 behind the last one.
template <int d>
SUDOKU_EN_LIGNE TrenteDeux Avance(const TrenteDeux& v) {
  using Registre [[maybe_unused]] = TrenteDeux::Registre;
#if defined(__AVX2__)
  return {{reinterpret_cast<Registre>(_mm256_srli_si256(reinterpret_cast<__m256i>(v.r[0]), d))}};
#elif defined(__SSE2__)
  return TrenteDeux::De([&](int i) {
    return reinterpret_cast<Registre>(_mm_srli_si128(reinterpret_cast<__m128i>(v.r[i]), d));
  });
#else
  TrenteDeux avancee{};
  for (int i = 0; i < 32; ++i) {
    if (i % 16 + d < 16) avancee.r[i / 16][i % 16] = v.r[i / 16][i % 16 + d];
  }
  return avancee;
#endif
}

// How many bits each byte holds.
SUDOKU_EN_LIGNE TrenteDeux Comptes(const TrenteDeux& octets) {
  using Registre [[maybe_unused]] = TrenteDeux::Registre;
#if defined(SUDOKU_VOIES_512)
  return {{reinterpret_cast<Registre>(_mm256_popcnt_epi8(reinterpret_cast<__m256i>(octets.r[0])))}};
#elif defined(__AVX2__)
  const __m256i combien = _mm256_setr_epi8(0, 1, 1, 2, 1, 2, 2, 3, 1, 2, 2, 3, 2, 3, 3, 4, 0, 1, 1, 2, 1, 2,
                                           2, 3, 1, 2, 2, 3, 2, 3, 3, 4);
  const __m256i bas = _mm256_set1_epi8(15);
  const auto bits = reinterpret_cast<__m256i>(octets.r[0]);
  const __m256i hauts = _mm256_and_si256(_mm256_srli_epi16(bits, 4), bas);
  return {{reinterpret_cast<Registre>(_mm256_add_epi8(
      _mm256_shuffle_epi8(combien, _mm256_and_si256(bits, bas)), _mm256_shuffle_epi8(combien, hauts)))}};
#else
  return TrenteDeux::De([&](int i) {
    Registre v = octets.r[i];
    v = v - ((v >> 1) & 0x55);
    v = (v & 0x33) + ((v >> 2) & 0x33);
    return (v + (v >> 4)) & 15;
  });
#endif
}

// Two tables of up to 16 lanes: the first eight of both side by side, and the last eight.
template <int S>
struct Moities {
  Voies<S> premieres;
  Voies<S> dernieres;

  SUDOKU_EN_LIGNE Moities(const MotDe<S>* a, const MotDe<S>* b)
      : premieres(Huit(a, b)), dernieres(Huit(a + 8, b + 8)) {}
#if defined(__AVX2__)
  SUDOKU_EN_LIGNE Moities(const Voies<S>& a, const Voies<S>& b)
      : premieres(Cote<0x20>(a, b)), dernieres(Cote<0x31>(a, b)) {}
#else
  SUDOKU_EN_LIGNE Moities(const Voies<S>& a, const Voies<S>& b)
      : premieres{{a.r[0], b.r[0]}}, dernieres{{a.r[1], b.r[1]}} {}
#endif

 private:
#if defined(__AVX2__)
  template <int moities>
  SUDOKU_EN_LIGNE static Voies<S> Cote(const Voies<S>& a, const Voies<S>& b) {
    return {{reinterpret_cast<typename Voies<S>::Registre>(_mm256_permute2x128_si256(
        reinterpret_cast<__m256i>(a.r[0]), reinterpret_cast<__m256i>(b.r[0]), moities))}};
  }
#endif
  SUDOKU_EN_LIGNE static Voies<S> Huit(const MotDe<S>* a, const MotDe<S>* b) {
#if defined(__AVX2__)
    const auto huit = [](const MotDe<S>* p) { return _mm_load_si128(reinterpret_cast<const __m128i*>(p)); };
    return {{reinterpret_cast<typename Voies<S>::Registre>(_mm256_set_m128i(huit(b), huit(a)))}};
#else
    return Voies<S>::De([&](int i) {
      typename Voies<S>::Registre registre;
      std::memcpy(&registre, i == 0 ? a : b, sizeof registre);
      return registre;
    });
#endif
  }
};

// Lanes below 256 of two tables as bytes: 16 of the first, 16 of the second.
template <int S>
SUDOKU_EN_LIGNE TrenteDeux EnOctets(const Voies<S>& premieres, const Voies<S>& dernieres) {
#if defined(__AVX2__)
  return {{reinterpret_cast<TrenteDeux::Registre>(_mm256_packus_epi16(
      reinterpret_cast<__m256i>(premieres.r[0]), reinterpret_cast<__m256i>(dernieres.r[0])))}};
#elif defined(__SSE2__)
  return TrenteDeux::De([&](int i) {
    return reinterpret_cast<TrenteDeux::Registre>(_mm_packus_epi16(
        reinterpret_cast<__m128i>(premieres.r[i]), reinterpret_cast<__m128i>(dernieres.r[i])));
  });
#else
  TrenteDeux octets;
  for (int i = 0; i < 32; ++i) {
    const Voies<S>& v = i % 16 < 8 ? premieres : dernieres;
    octets.r[i / 16][i % 16] = static_cast<std::uint8_t>(v.r[i / 16][i % 8]);
  }
  return octets;
#endif
}

// The lanes of 25, all below 256, as bytes.
SUDOKU_EN_LIGNE TrenteDeux EnOctets(const Voies<5>& v) {
  using Registre [[maybe_unused]] = TrenteDeux::Registre;
#if defined(SUDOKU_VOIES_512)
  const auto seize = [&](int i) {
    return _mm512_maskz_cvtepi32_epi8(0xFFFF, reinterpret_cast<__m512i>(v.r[i]));
  };
  return {{reinterpret_cast<Registre>(_mm256_set_m128i(seize(1), seize(0)))}};
#elif defined(__AVX2__)
  const auto r = [&](int i) { return reinterpret_cast<__m256i>(v.r[i]); };
  const __m256i melees = _mm256_packus_epi16(_mm256_packs_epi32(r(0), r(1)), _mm256_packs_epi32(r(2), r(3)));
  return {{reinterpret_cast<Registre>(
      _mm256_permutevar8x32_epi32(melees, _mm256_setr_epi32(0, 4, 1, 5, 2, 6, 3, 7)))}};
#elif defined(__SSE2__)
  return TrenteDeux::De([&](int i) {
    const auto r = [&](int k) { return reinterpret_cast<__m128i>(v.r[4 * i + k]); };
    return reinterpret_cast<Registre>(
        _mm_packus_epi16(_mm_packs_epi32(r(0), r(1)), _mm_packs_epi32(r(2), r(3))));
  });
#else
  TrenteDeux octets;
  for (int i = 0; i < 32; ++i) octets.r[i / 16][i % 16] = static_cast<std::uint8_t>(v.r[i / 4][i % 4]);
  return octets;
#endif
}

// A byte a lane: the same for lanes that are the same, and nearly always another for others.
SUDOKU_EN_LIGNE TrenteDeux Empreintes(const Voies<5>& v) {
  constexpr int k = 0x1E3779B1;
  return EnOctets(Voies<5>::De([&](int i) SUDOKU_LAMBDA_EN_LIGNE {
    using Registre = Voies<5>::Registre;
#if defined(SUDOKU_VOIES_512)
    const __m512i melees = _mm512_madd_epi16(reinterpret_cast<__m512i>(v.r[i]), _mm512_set1_epi32(k));
#elif defined(__AVX2__)
    const __m256i melees = _mm256_madd_epi16(reinterpret_cast<__m256i>(v.r[i]), _mm256_set1_epi32(k));
#elif defined(__SSE2__)
    const __m128i melees = _mm_madd_epi16(reinterpret_cast<__m128i>(v.r[i]), _mm_set1_epi32(k));
#else
    const Registre melees = v.r[i] * static_cast<std::uint32_t>(k);
#endif
    return reinterpret_cast<Registre>(melees) >> 24;
  }));
}

}  // namespace
}  // namespace sudoku::SUDOKU_MOTEUR
