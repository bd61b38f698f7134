// From a norm to the result: roots, and integers scaled by 2^-s.
#pragma once
#include <limits>

#include "frame/rounding.h"
#include "vector/to_integer.h"

namespace tav::TAV_VARIANT {

TAV_INLINE Tav32f norm_root(Tav32f v) { return _mm_cvtss_f32(_mm_sqrt_ss(_mm_set_ss(v))); }
TAV_INLINE Tav64f norm_root(Tav64f v) { return _mm_cvtsd_f64(_mm_sqrt_sd(_mm_setzero_pd(), _mm_set_sd(v))); }

// From 0 to 2^63 - 2^31, rounded once, in the mode of the SSE unit for either word size: in that of a scope, if the
// caller has one.
TAV_INLINE Tav64f norm_as_double(int64_t v) {
  const int low = int(uint32_t(v)), high = int((v - low) >> 32);
  return held(Tav64f(high)) * 0x1p32 + Tav64f(low);
}

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
  const __m128d          norm  = _mm_set_sd(norm_root(norm_as_double(squares)) * scale);
  return _mm_cvtsi128_si32(held(_mm_cvtpd_epi32(_mm_min_sd(norm, _mm_set_sd(std::numeric_limits<Tav32s>::max())))));
}

}  // namespace tav::TAV_VARIANT
