#pragma once

#include <cstdint>
#include <cstring>

#if defined(__AVX512BW__) && defined(__AVX512VL__) && defined(__AVX512BITALG__)
#define SUDOKU_VOIES_512
#include <immintrin.h>
#elif defined(__AVX2__)
#include <immintrin.h>
#endif

// Sixteen 16-bit lanes and the few operations that the kernel for grids of side 9 needs, written once in the
// compilers' vector extension; what that can't say well has a version for each instruction set. Each version
// of the kernel has its own, in its own namespace SUDOKU_MOTEUR, so that no two of them share a function.
namespace sudoku::SUDOKU_MOTEUR {
namespace {

using V16 = std::uint16_t __attribute__((vector_size(32)));

inline V16 Lit(const std::uint16_t* p) {
  V16 v;
  std::memcpy(&v, p, sizeof v);
  return v;
}
inline void Range(std::uint16_t* p, V16 v) {
  std::memcpy(p, &v, sizeof v);
}
inline V16 Partout(int n) {
  return V16{} + static_cast<std::uint16_t>(n);
}

// A bit a lane, from a vector of lanes all ones or all zero.
inline std::uint32_t Bits(V16 masque) {
#if defined(SUDOKU_VOIES_512)
  return _mm256_movepi16_mask(reinterpret_cast<__m256i>(masque));
#elif defined(__AVX2__)
  const auto m = reinterpret_cast<__m256i>(masque);
  const __m128i octets = _mm_packs_epi16(_mm256_castsi256_si128(m), _mm256_extracti128_si256(m, 1));
  return static_cast<std::uint32_t>(_mm_movemask_epi8(octets));
#else
  std::uint32_t bits = 0;
  for (int i = 0; i < 16; ++i) bits |= static_cast<std::uint32_t>(masque[i] & 1U) << i;
  return bits;
#endif
}

inline V16 NonNul(V16 v) {
  return reinterpret_cast<V16>(v != 0);
}
inline V16 Egales(V16 a, V16 b) {
  return reinterpret_cast<V16>(a == b);
}

// Lanes 0 to 8 all ones where their bit is set.
inline V16 Etale(int bits) {
  constexpr V16 kUn = {1, 2, 4, 8, 16, 32, 64, 128, 256};
  return NonNul(Partout(bits) & kUn);
}

// Lane i gets lane i + d; what comes from beyond is lane 15, which is 0 in every vector of nine lanes.
template <int d>
inline V16 Descend(V16 v) {
  constexpr auto k = [](int i) { return i + d < 9 ? i + d : 15; };
  return __builtin_shufflevector(v, v, k(0), k(1), k(2), k(3), k(4), k(5), k(6), k(7), k(8), 15, 15, 15, 15,
                                 15, 15, 15);
}

inline V16 Comptes(V16 v) {
#if defined(SUDOKU_VOIES_512)
  return reinterpret_cast<V16>(_mm256_popcnt_epi16(reinterpret_cast<__m256i>(v)));
#else
  v = v - ((v >> 1) & 0x5555);
  v = (v & 0x3333) + ((v >> 2) & 0x3333);
  v = (v + (v >> 4)) & 0x0F0F;
  return (v + (v >> 8)) & 0x1F;
#endif
}

// Bits i where lane i of `cles` and the later lanes equal to it are as many as `comptes` says, two or more: a
// set of equal lanes begins there. At most nine lanes are used.
[[gnu::always_inline]] inline std::uint32_t Ensembles(V16 cles, V16 comptes) {
  V16 egales = Partout(1);
  egales -= Egales(cles, Descend<1>(cles));
  egales -= Egales(cles, Descend<2>(cles));
  egales -= Egales(cles, Descend<3>(cles));
  egales -= Egales(cles, Descend<4>(cles));
  egales -= Egales(cles, Descend<5>(cles));
  egales -= Egales(cles, Descend<6>(cles));
  egales -= Egales(cles, Descend<7>(cles));
  egales -= Egales(cles, Descend<8>(cles));
  return Bits(Egales(egales, comptes) & reinterpret_cast<V16>(comptes > 1));
}
inline std::uint32_t Ensembles(V16 masques) {
  return Ensembles(masques, Comptes(masques));
}

}  // namespace
}  // namespace sudoku::SUDOKU_MOTEUR
