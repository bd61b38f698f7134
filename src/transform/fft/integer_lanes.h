// Fixed point in four lanes of 32 bits: there, back, and products with 1/sqrt(2).
//
// A product is made of those of the upper and the lower 16 bits, each cut by itself.
#pragma once
#include "frame/registers.h"

namespace tav::TAV_VARIANT::fixed_point {

// v * 23170 / 2^15, cut. As a twiddle the factor is 11585 / 2^14, which comes to the same: what it is applied to has
// zeros in the guard bits yet.
TAV_INLINE __m128i times_root_half(__m128i v) {
  constexpr int q15  = 23170;
  const __m128i high = _mm_slli_epi32(_mm_madd_epi16(v, _mm_set1_epi32(q15 << 16)), 1);
  const __m128i low  = _mm_and_si128(v, _mm_set1_epi32(0xFFFF));
  return _mm_add_epi32(high, _mm_mulhi_epu16(low, _mm_set1_epi32(2 * q15)));
}

// Lanes times 1, -1 or 0.
TAV_INLINE __m128i with_signs(__m128i v, int a, int b, int c, int d) {
  return _mm_sign_epi32(v, _mm_setr_epi32(a, b, c, d));
}

// Two complex points times -i.
TAV_INLINE __m128i turned(__m128i v) { return with_signs(parts_exchanged(v), 1, -1, 1, -1); }

// The lower half of one register and the upper half of another.
TAV_INLINE __m128i halves(__m128i lower, __m128i upper) {
  return _mm_castpd_si128(_mm_shuffle_pd(_mm_castsi128_pd(lower), _mm_castsi128_pd(upper), 2));
}
TAV_INLINE __m128i upper_then_lower(__m128i upper, __m128i lower) {
  return _mm_castpd_si128(_mm_shuffle_pd(_mm_castsi128_pd(upper), _mm_castsi128_pd(lower), 1));
}

// 16-bit elements times 2^up.
class widening {
 public:
  explicit widening(int up) : down_(16 - up) {}

  __m128i lower(__m128i v) const { return _mm_sra_epi32(_mm_unpacklo_epi16(zero(), v), count()); }
  __m128i upper(__m128i v) const { return _mm_sra_epi32(_mm_unpackhi_epi16(zero(), v), count()); }

 private:
  static __m128i zero() { return _mm_setzero_si128(); }
  __m128i        count() const { return _mm_cvtsi32_si128(down_); }

  int down_;
};

// Back to 16 bits, times 2^-shift. To the right it rounds, ties upward, and past 31 gives 0, both by the way that the
// sum is made; to the left bits are lost, all of them from a scale factor of -32 on.
class narrowing {
 public:
  narrowing(int shift, int scale_factor) : shift_(total(shift, scale_factor)) {}

  __m128i word(__m128i v) const {
    if (shift_ <= 0) return _mm_sll_epi32(v, _mm_cvtsi32_si128(-shift_));
    const __m128i cut = _mm_sra_epi32(v, _mm_cvtsi32_si128(shift_ - 1));
    return _mm_srai_epi32(_mm_add_epi32(cut, _mm_set1_epi32(1)), 1);
  }
  __m128i words(__m128i low, __m128i high) const { return _mm_packs_epi32(word(low), word(high)); }

 private:
  static constexpr int bits = 32;

  static int total(int shift, int scale_factor) {
    if (scale_factor <= -bits) return -bits;
    return shift + (scale_factor < 2 * bits ? scale_factor : 2 * bits);
  }

  int shift_;
};

}  // namespace tav::TAV_VARIANT::fixed_point
