// Square roots of integers n, times 2^-s, rounded to nearest with ties to even: exactly, and in any rounding mode.
//
// A float root of n, scaled and truncated, is an integer c; its error is far below 1/2. So the result is c or the next
// one, and what decides is exact: the next one if sqrt(n) * 2^-s > c + 1/2, that is n * 4^-s > c * (c + 1) + 1/4.
//
// A row says how wide n is and how wide the result. Beyond that c may be too large for the test, which then says what
// it likes: both results saturate.
#pragma once
#include "vector/scale.h"
#include "vector/to_integer.h"

namespace tav::TAV_VARIANT {

// Roots of 16 bits from numbers of 32 bits without a sign, up to 2^31. Here c may exceed 16 bits, but not 32.
struct roots_of_32_bits {
  using F = Tav32f;

  static __m128i all(int64_t v) { return _mm_set1_epi32(int(v)); }
  static __m128i up(__m128i v, __m128i by) { return _mm_sll_epi32(v, by); }
  static __m128i add(__m128i a, __m128i b) { return _mm_add_epi32(a, b); }
  static __m128i sub(__m128i a, __m128i b) { return _mm_sub_epi32(a, b); }
  static __m128i top_bit(__m128i v) { return _mm_srli_epi32(v, 31); }

  static __m128i by_next(__m128i c) {  // c * c + c * 1, of words
    return _mm_madd_epi16(_mm_or_si128(c, _mm_slli_epi32(c, 16)), _mm_or_si128(c, _mm_set1_epi32(0x10000)));
  }

  static __m128i truncated_root(__m128i n, F scale) {
    const __m128 v = sign_cleared(_mm_cvtepi32_ps(n));
    return _mm_cvttps_epi32(_mm_mul_ps(_mm_sqrt_ps(v), _mm_set1_ps(scale)));
  }
};

// Roots of 32 bits from numbers of 64 bits without a sign, up to 2^63. The result is without a sign too, up to 2^31.
struct roots_of_64_bits {
  using F = Tav64f;

  static __m128i all(int64_t v) { return _mm_set1_epi64x(v); }
  static __m128i up(__m128i v, __m128i by) { return _mm_sll_epi64(v, by); }
  static __m128i add(__m128i a, __m128i b) { return _mm_add_epi64(a, b); }
  static __m128i sub(__m128i a, __m128i b) { return _mm_sub_epi64(a, b); }
  static __m128i top_bit(__m128i v) { return _mm_srli_epi64(v, 63); }

  static __m128i by_next(__m128i c) { return _mm_mul_epu32(c, _mm_add_epi32(c, _mm_set1_epi32(1))); }

  // Both halves of n as the fractions of doubles with large exponents.
  static __m128i truncated_root(__m128i n, F scale) {
    const __m128i low_exponent  = _mm_castpd_si128(_mm_set1_pd(0x1p52)),
                  high_exponent = _mm_castpd_si128(_mm_set1_pd(0x1p84));
    const __m128d low  = _mm_castsi128_pd(_mm_or_si128(_mm_and_si128(n, _mm_set1_epi64x(0xFFFFFFFF)), low_exponent)),
                  high = _mm_castsi128_pd(_mm_or_si128(_mm_srli_epi64(n, 32), high_exponent)),
                  v    = _mm_add_pd(_mm_sub_pd(high, _mm_set1_pd(0x1p84 + 0x1p52)), low);
    const __m128d c    = _mm_mul_pd(_mm_sqrt_pd(v), _mm_set1_pd(scale));
    return _mm_unpacklo_epi32(_mm_cvttpd_epi32(_mm_min_pd(c, _mm_set1_pd(2147483647.0))), _mm_setzero_si128());
  }
};

template <class Row> class root_scaled_up {  // by 0 bits or more
 public:
  explicit root_scaled_up(int by) : scale_(power_of_two_minus<typename Row::F>(-by)), by_(_mm_cvtsi32_si128(2 * by)) {}

  __m128i of(__m128i n) const {
    const __m128i c = Row::truncated_root(n, scale_);
    return Row::add(c, Row::top_bit(Row::sub(Row::by_next(c), Row::up(n, by_))));
  }

 private:
  typename Row::F scale_;
  __m128i         by_;
};

// The test times 4^s, so that no bit of n is lost: all differences fit.
template <class Row> class root_scaled_down {  // by 1 bit or more
 public:
  explicit root_scaled_down(int s)
      : scale_(power_of_two_minus<typename Row::F>(s)),
        by_(_mm_cvtsi32_si128(2 * s)),
        tie_(Row::all(int64_t(1) << (2 * s - 2))) {}

  __m128i of(__m128i n) const {
    const __m128i c = Row::truncated_root(n, scale_), odd = _mm_and_si128(c, Row::all(1));
    const __m128i middle = Row::add(Row::up(Row::by_next(c), by_), Row::sub(tie_, odd));  // a tie rises from an odd c
    return Row::add(c, Row::top_bit(Row::sub(middle, n)));
  }

 private:
  typename Row::F scale_;
  __m128i         by_, tie_;
};

// Runs `with` the root for a factor.
template <class Row, class With> struct each_root {
  const With& with;

  TavStatus none() const { return with(root_scaled_up<Row>(0)); }
  TavStatus up(int by) const { return with(root_scaled_up<Row>(by)); }
  TavStatus down(int s) const { return with(root_scaled_down<Row>(s)); }
};

template <class Row, scale_range Range, class D, class With>
TAV_INLINE TavStatus with_root(int s, D* dst, size_t len, const With& with) {
  return with_scale<Range>(s, dst, len, each_root<Row, With>{with});
}

}  // namespace tav::TAV_VARIANT
