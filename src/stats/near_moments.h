// Mean and deviation of singles in doubles, and whether they surely round to the singles that extended ones round to.
//
// Sums come exactly. The mean has two roundings. The variance is a difference of products: if it is at least a 2^-10th
// of the first one, the deviation is off by less than 2^-42 of itself, and what is extended by far less. A mean of 0 is
// exact, and so is the deviation where there are no squares.
#pragma once
#include "frame/registers.h"
#include "frame/rounding.h"

namespace tav::TAV_VARIANT {

TAV_INLINE uint32_t low_word(Tav64f v) { return uint32_t(_mm_cvtsi128_si32(_mm_castpd_si128(_mm_set_sd(v)))); }
TAV_INLINE uint32_t high_word(Tav64f v) {
  return uint32_t(_mm_cvtsi128_si32(_mm_srli_epi64(_mm_castpd_si128(_mm_set_sd(v)), 32)));
}

// 0, or neither too large for a single nor too small for a normal one, and not within 2^-40 of the middle of two.
TAV_INLINE bool rounds_surely(Tav64f v) {
  constexpr uint32_t smallest = 0x38100000, too_large = 0x47E00000;  // high words of 2^-126 and 2^127
  constexpr uint32_t cut_off = 0x1FFFFFFF, middle = 0x10000000, margin = 0x1000;
  const uint32_t     magnitude = high_word(v) & 0x7FFFFFFF, low = low_word(v);
  if (magnitude - smallest >= too_large - smallest) return (magnitude | low) == 0;
  return (low & cut_off) - middle + margin > 2 * margin;
}

struct near_moments {
  Tav64f mean, squares, difference, deviation;  // squares and difference: times n

  TAV_INLINE near_moments(Tav32f first, Tav64f sum, Tav64f sum_of_squares, int len) {
    const Tav64f n = len, less_one = len - 1;
    mean                   = (Tav64f(first) * n + sum) / n;
    squares                = sum_of_squares * n;
    difference             = squares - sum * sum;
    const __m128d variance = _mm_set_sd(difference / (n * less_one));
    deviation              = _mm_cvtsd_f64(_mm_sqrt_sd(variance, variance));
  }

  TAV_INLINE bool mean_is_known() const { return rounds_surely(mean); }
  TAV_INLINE bool deviation_is_known() const {
    constexpr uint32_t ten_binary_places = 10u << 20;  // of numbers, the high words compare as these do
    return high_word(difference) + ten_binary_places >= high_word(squares) && rounds_surely(deviation);
  }
};

// In another mode doubles would be rounded otherwise, trap, or take a denormal element for 0.
TAV_INLINE bool usual_sse_mode() {
  constexpr uint32_t without_denormals = 0x8040;
  return (_mm_getcsr() & (sse_bits::rounding | sse_bits::all_masks | without_denormals))
         == (sse_bits::to_nearest | sse_bits::all_masks);
}

}  // namespace tav::TAV_VARIANT
