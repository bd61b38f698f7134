// From a norm to the result: roots, and integers scaled by 2^-s.
#pragma once
#include <limits>

#include "frame/rounding.h"
#include "vector/to_integer.h"

namespace tav::TAV_VARIANT {

// Unlike the other functions with a scale factor these cut off what a shift moves out, and a factor as large as the
// result is wide gives 0.
template <class D> TAV_INLINE D norm_shifted(int64_t norm, int s) {
  constexpr int     bits  = sizeof(D) * 8;
  constexpr int64_t limit = std::numeric_limits<D>::max();
  if (s >= bits) return 0;
  if (s >= 0) {
    const int64_t down = norm >> s;
    return D(down < limit ? down : limit);
  }
  const int up = s > -bits ? -s : bits - 1;
  return D(norm > limit >> up ? limit : norm << up);
}

// To nearest in any mode. Root and product are those of doubles.
inline Tav32s norm_root_scaled(int64_t squares, int s) {
  constexpr int          enough = 64;  // more than the bits of any root or result
  const round_to_nearest scope;
  const Tav64f           scale = power_of_two_minus<Tav64f>(s > enough ? enough : s < -enough ? -enough : s);
  const __m128d          norm  = _mm_set_sd(root(double_of(squares)) * scale);
  return _mm_cvtsi128_si32(held(_mm_cvtpd_epi32(_mm_min_sd(norm, _mm_set_sd(std::numeric_limits<Tav32s>::max())))));
}

}  // namespace tav::TAV_VARIANT
