// Integers of 8, 16 and 32 bits as floats. Most fit; a 32-bit integer in single precision is rounded in the caller's
// mode.
#pragma once
#include "vector/convert_forms.h"
#include "vector/narrow_lanes.h"
#include "vector/to_integer.h"

namespace tav::TAV_VARIANT {

// A register of elements as registers of 32-bit integers.
template <class S> TAV_INLINE auto as_words(__m128i v) {
  if constexpr (sizeof(S) == 4) {
    return several<__m128i, 1>{{v}};
  } else if constexpr (sizeof(S) == 2) {
    return narrow_row<S>::widen(v);
  } else {
    const pair_of_lanes w = narrow_row<S>::widen(v), low = narrow_row<Tav16u>::widen(w.r[0]),
                        high = narrow_row<Tav16u>::widen(w.r[1]);
    return several<__m128i, 4>{{low.r[0], low.r[1], high.r[0], high.r[1]}};
  }
}

// The same with each element in the upper bits of its integer: 2^16 times a 16-bit one, 2^24 times one of 8 bits.
template <class S> TAV_INLINE auto as_high_words(__m128i v) {
  const __m128i zero = _mm_setzero_si128();
  if constexpr (sizeof(S) == 2) {
    return several<__m128i, 2>{{_mm_unpacklo_epi16(zero, v), _mm_unpackhi_epi16(zero, v)}};
  } else {
    const __m128i low = _mm_unpacklo_epi8(zero, v), high = _mm_unpackhi_epi8(zero, v);
    return several<__m128i, 4>{{_mm_unpacklo_epi16(zero, low), _mm_unpackhi_epi16(zero, low),
                                _mm_unpacklo_epi16(zero, high), _mm_unpackhi_epi16(zero, high)}};
  }
}

template <class F, int K> TAV_INLINE auto as_floats(several<__m128i, K> words) {
  several<reg<F>, K * sizeof(F) / 4> all;
#pragma GCC unroll 4
  for (int k = 0; k < K; ++k) {
    if constexpr (sizeof(F) == 4) {
      all.r[k] = _mm_cvtepi32_ps(words.r[k]);
    } else {
      all.r[2 * k]     = _mm_cvtepi32_pd(words.r[k]);
      all.r[2 * k + 1] = _mm_cvtepi32_pd(_mm_unpackhi_epi64(words.r[k], words.r[k]));
    }
  }
  return all;
}

template <class R, int K> TAV_INLINE several<R, K> times(several<R, K> floats, R factor) {
  several<R, K> products;
#pragma GCC unroll 4
  for (int k = 0; k < K; ++k) products.r[k] = floats.r[k] * factor;
  return products;
}

// Small signed integers become singles by way of the upper bits: a product takes the place of the shift that would
// extend the sign, exact as that, and measured a fifth faster.
template <class S, class F> struct to_floats : types<S, S, F> {
  static constexpr kernel_shape shape{.round_bytes = 64, .step = lanes<S>};
  static constexpr bool         from_the_top = std::is_signed_v<S> && sizeof(S) < 4 && sizeof(F) == 4;

  static F    one(S a) { return F(a); }
  static auto many(__m128i v) {
    if constexpr (from_the_top)
      return times(as_floats<F>(as_high_words<S>(v)), _mm_set1_ps(sizeof(S) == 2 ? 0x1p-16f : 0x1p-24f));
    else
      return as_floats<F>(as_words<S>(v));
  }
};

// The converted value times a power of two. Past the ends of its exponent that is 0, or infinity, which makes NaNs of
// zeros.
template <class S, class F> struct to_scaled_floats : types<S, S, F> {
  static constexpr kernel_shape shape = to_floats<S, F>::shape;

  explicit to_scaled_floats(F power) : by(power), all(from_bits<F>(repeated(power))) {}

  F    one(S a) const { return F(a) * by; }
  auto many(__m128i v) const { return times(to_floats<S, F>::many(v), all); }

  static TavStatus run(int s, F* dst, size_t len, const S* src) {
    if (s == 0) return elementwise(to_floats<S, F>{}, dst, len, src);
    return elementwise(to_scaled_floats(power_of_two_minus<F>(s)), dst, len, src);
  }

 private:
  F      by;
  reg<F> all;
};

}  // namespace tav::TAV_VARIANT
