#pragma once

#include <cstdint>
#include <cstring>

#include "engine/bits.h"
#include "engine/voies.h"

namespace sudoku::SUDOKU_MOTEUR {
namespace {

// How many numbers masks have, a byte a mask, for as many of them as a set of type B can name.
template <class B>
struct Octets {
  alignas(64) std::uint8_t n[Taille(64 * kMotsDe<B>)];
};

// Those of 64 bytes from `premier` to `dernier`.
inline std::uint64_t Entre64(const std::uint8_t* n, std::uint8_t premier, std::uint8_t dernier) {
  std::uint64_t bits = 0;
  const auto plus = static_cast<std::uint8_t>(dernier - premier);
#if defined(SUDOKU_VOIES_512)
  const __m512i v = _mm512_sub_epi8(_mm512_loadu_si512(n), _mm512_set1_epi8(static_cast<char>(premier)));
  bits = _mm512_cmple_epu8_mask(v, _mm512_set1_epi8(static_cast<char>(plus)));
#elif defined(__AVX2__)
  for (int i = 0; i < 64; i += 32) {
    const __m256i octets = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(n + i));
    const __m256i v = _mm256_sub_epi8(octets, _mm256_set1_epi8(static_cast<char>(premier)));
    const __m256i la = _mm256_cmpeq_epi8(_mm256_min_epu8(v, _mm256_set1_epi8(static_cast<char>(plus))), v);
    bits |= static_cast<std::uint64_t>(static_cast<std::uint32_t>(_mm256_movemask_epi8(la))) << i;
  }
#elif defined(__SSE2__)
  for (int i = 0; i < 64; i += 16) {
    const __m128i octets = _mm_loadu_si128(reinterpret_cast<const __m128i*>(n + i));
    const __m128i v = _mm_sub_epi8(octets, _mm_set1_epi8(static_cast<char>(premier)));
    const __m128i la = _mm_cmpeq_epi8(_mm_min_epu8(v, _mm_set1_epi8(static_cast<char>(plus))), v);
    bits |= static_cast<std::uint64_t>(static_cast<std::uint32_t>(_mm_movemask_epi8(la))) << i;
  }
#else
  for (int i = 0; i < 64; ++i) {
    bits |= std::uint64_t{static_cast<std::uint8_t>(n[i] - premier) <= plus} << i;
  }
#endif
  return bits;
}

// The masks of `premier` to `dernier` numbers.
template <class B>
B Entre(const Octets<B>& nombres, int premier, int dernier) {
  B bits{};
  if (dernier < premier) return bits;
  for (int i = 0; i < kMotsDe<B>; ++i) {
    const std::uint64_t mot =
        Entre64(nombres.n + 64 * i, static_cast<std::uint8_t>(premier), static_cast<std::uint8_t>(dernier));
    if constexpr (std::is_integral_v<B>)
      bits = static_cast<B>(mot);
    else
      bits[i] = mot;
  }
  return bits;
}

// Turns n rows of bytes round: byte j of de(i) becomes byte i of a(j). Rows of both have room for a multiple
// of 16; what stands there from n on isn't kept.
template <class De, class A>
void TourneOctets(int n, De de, A a) {
  using Seize [[gnu::vector_size(16)]] = std::uint8_t;
  for (int i = 0; i < n; i += 16) {
    for (int j = 0; j < n; j += 16) {
      Seize r[16];
      for (int k = 0; k < 16; ++k) {
        r[k] = Seize{};
        if (i + k < n) std::memcpy(&r[k], de(i + k) + j, sizeof r[k]);
      }
      // Rows 8 apart go into each other, four times over.
      for (int fois = 0; fois < 4; ++fois) {
        Seize melees[16];
        for (int k = 0; k < 8; ++k) {
          melees[2 * k] =
              __builtin_shufflevector(r[k], r[k + 8], 0, 16, 1, 17, 2, 18, 3, 19, 4, 20, 5, 21, 6, 22, 7, 23);
          melees[2 * k + 1] = __builtin_shufflevector(r[k], r[k + 8], 8, 24, 9, 25, 10, 26, 11, 27, 12, 28,
                                                      13, 29, 14, 30, 15, 31);
        }
        std::memcpy(r, melees, sizeof r);
      }
      for (int k = 0; k < 16 && j + k < n; ++k) std::memcpy(a(j + k) + i, &r[k], sizeof r[k]);
    }
  }
}

}  // namespace
}  // namespace sudoku::SUDOKU_MOTEUR
