// Floats on their way to integers: the multiplier of a scale factor, and the limits before a conversion.
#pragma once
#include "frame/registers.h"

namespace tav::TAV_VARIANT {

// 2^-s, written as an exponent: past the ends of that field it is infinity or 0, so that 2^-127 is 0 in single
// precision already.
template <class F> TAV_INLINE F power_of_two_minus(int s) {
  using word         = std::conditional_t<sizeof(F) == 4, Tav32u, Tav64u>;
  constexpr int bias = sizeof(F) == 4 ? 127 : 1023, fraction = sizeof(F) == 4 ? 23 : 52;
  const int     field = s >= bias ? 0 : s <= -bias - 1 ? 2 * bias + 1 : bias - s;
  return __builtin_bit_cast(F, word(field) << fraction);
}

// The minimum comes first and has the limit as its second operand, which is what it gives for a NaN: the upper limit.
TAV_INLINE __m128 limited(__m128 v, float lowest, float highest) {
  return _mm_max_ps(_mm_min_ps(v, _mm_set1_ps(highest)), _mm_set1_ps(lowest));
}
TAV_INLINE __m128d limited(__m128d v, double lowest, double highest) {
  return _mm_max_pd(_mm_min_pd(v, _mm_set1_pd(highest)), _mm_set1_pd(lowest));
}

}  // namespace tav::TAV_VARIANT
