// Conjugates of complex elements. Of floats only the sign bit of the imaginary part changes; an imaginary part of
// -32768 becomes 32767.
#pragma once
#include "vector/parts.h"

namespace tav::TAV_VARIANT {

template <class C> struct conjugate_of : types<C, C, C> {
  static constexpr kernel_shape shape{.round_bytes = 32};

  TAV_INLINE static C      one(C v) { return {v.re, -v.im}; }
  TAV_INLINE static reg<C> many(reg<C> v) {
    return from_bits<C>(_mm_xor_si128(as_bits(v), repeated(C{part_of<C>(0.0), part_of<C>(-0.0)})));
  }
};

template <> struct conjugate_of<Tav16sc> : types<Tav16sc, Tav16sc, Tav16sc> {
  static constexpr kernel_shape shape{.round_bytes = 32};

  static Tav16sc one(Tav16sc v) { return {v.re, Tav16s(v.im < -32767 ? 32767 : -v.im)}; }
  static __m128i many(__m128i v) {  // -im is one more than the complement of im
    return _mm_adds_epi16(_mm_xor_si128(v, _mm_set1_epi32(int(0xFFFF0000))), _mm_set1_epi32(0x00010000));
  }
};

}  // namespace tav::TAV_VARIANT
