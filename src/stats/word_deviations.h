// The standard deviation of 16-bit integers, unbiased, and their exact sums.
#pragma once
#include "frame/rounding.h"
#include "stats/exact_sums.h"

namespace tav::TAV_VARIANT {

struct words_total {
  int64_t sum, squares;
};
TAV_INLINE words_total total_of(const words_total& a, const words_total& b) {
  return {a.sum + b.sum, a.squares + b.squares};
}

// The squares of two words have 32 bits without a sign. Lanes of 64 bits add two of these at once, modulo 2^64, and the
// upper one by itself, from which the sum of the lower ones is known.
struct word_squares {
  static constexpr reduce_shape shape{.step = 16, .partials = 1};  // integer additions wait for none

  struct partial {
    __m128i sum, squares, upper;
  };

  static partial start() { return {_mm_setzero_si128(), _mm_setzero_si128(), _mm_setzero_si128()}; }
  static void    many(partial& p, const several<__m128i, 2>& v) { add(p, v.r[0]), add(p, v.r[1]); }
  static void    add(partial& p, __m128i v) {
       v                     = loaded_once(v);
       const __m128i squares = squares_of_words(v);
       p.sum                 = _mm_add_epi32(p.sum, _mm_madd_epi16(v, _mm_set1_epi16(1)));
       p.squares             = _mm_add_epi64(p.squares, squares);
       p.upper               = _mm_add_epi64(p.upper, _mm_srli_epi64(squares, 32));
  }
  static words_total total(const partial& p) {
    const __m128i lower = _mm_sub_epi64(p.squares, _mm_slli_epi64(p.upper, 32));
    return {sum_of_lanes_32(p.sum), sum_of_lanes_64(_mm_add_epi64(lower, p.upper))};
  }
  static void one(words_total& t, Tav16s v) { t = total_of(t, {v, int64_t(v) * v}); }
};

inline words_total word_sums_over(size_t len, const Tav16s* src) {
  return sum_of_blocks<block_of_words>(word_squares{}, len, src);
}

// a * b - c * c >= 0 for a below 2^61, b below 2^31 and c below 2^47 in magnitude: exact in two digits of 2^32, so that
// a constant array has no variance at all; then a double.
TAV_INLINE Tav64f difference_of_products(Tav64u a, Tav64u b, int64_t c) {
  constexpr Tav64u digit = 0xFFFFFFFF;
  const Tav64u     m = c < 0 ? -Tav64u(c) : Tav64u(c), c_low = m & digit, c_high = m >> 32;
  const Tav64u     low = (a & digit) * b, square = c_low * c_low;
  const int64_t    upper = int64_t((a >> 32) * b + (low >> 32)),
                lifted   = int64_t((c_high * c_high << 32) + 2 * c_high * c_low + (square >> 32)),
                lower    = int64_t(low & digit) - int64_t(square & digit);
  return Tav64f(upper - lifted) * 0x1p32 + Tav64f(lower);
}

// Always to nearest, other than sums and means.
template <class D> D std_dev_of(const words_total& sums, size_t len, int s) {
  const round_to_nearest scope;
  const words_total      w        = settled(sums);
  const Tav64f           n        = int(len);
  const Tav64f           variance = difference_of_products(Tav64u(w.squares), Tav64u(len), w.sum) / (n * (n - 1));
  const __m128d          root     = _mm_sqrt_sd(_mm_setzero_pd(), _mm_set_sd(variance));
  return settled(rounded_to<D>(times_scale(_mm_cvtsd_f64(root), s)));
}

}  // namespace tav::TAV_VARIANT
