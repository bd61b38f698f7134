// Elements of three bytes, lowest byte first, in and out of lanes of 32 bits.
#pragma once
#include "frame/registers.h"

namespace tav::TAV_VARIANT {

// Which three bytes of a lane hold the element.
enum class in_lane { low, high };

// The fourth byte of each lane becomes zero.
template <in_lane Place> TAV_INLINE __m128i lanes_of_24(__m128i packed) {
  constexpr char no = -128;
  if constexpr (Place == in_lane::low)
    return _mm_shuffle_epi8(packed, _mm_setr_epi8(0, 1, 2, no, 3, 4, 5, no, 6, 7, 8, no, 9, 10, 11, no));
  else
    return _mm_shuffle_epi8(packed, _mm_setr_epi8(no, 0, 1, 2, no, 3, 4, 5, no, 6, 7, 8, no, 9, 10, 11));
}

// Four elements in the low 12 bytes, zeros above.
template <in_lane Place> TAV_INLINE __m128i packed_24(__m128i lanes) {
  constexpr char no = -128;
  if constexpr (Place == in_lane::low)
    return _mm_shuffle_epi8(lanes, _mm_setr_epi8(0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, no, no, no, no));
  else
    return _mm_shuffle_epi8(lanes, _mm_setr_epi8(1, 2, 3, 5, 6, 7, 9, 10, 11, 13, 14, 15, no, no, no, no));
}

// Four elements and not a byte more.
TAV_INLINE __m128i load_12_bytes(const Tav8u* p) { return _mm_unpacklo_epi64(load_low<8>(p), load_low<4>(p + 8)); }
TAV_INLINE void    store_12_bytes(Tav8u* p, __m128i v) {
     _mm_storel_epi64(reinterpret_cast<__m128i*>(p), v);
     const int last = _mm_cvtsi128_si32(_mm_unpackhi_epi64(v, v));
     __builtin_memcpy(p + 8, &last, 4);
}

// One element.
TAV_INLINE __m128i load_3_bytes(const Tav8u* p) { return _mm_cvtsi32_si128(p[0] | p[1] << 8 | p[2] << 16); }
TAV_INLINE void    store_3_bytes(Tav8u* p, __m128i v) {
     const int word = _mm_cvtsi128_si32(v);
     p[0] = Tav8u(word), p[1] = Tav8u(word >> 8), p[2] = Tav8u(word >> 16);
}

}  // namespace tav::TAV_VARIANT
