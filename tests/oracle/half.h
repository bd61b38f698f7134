// Half floats by definition: the value of each code, and the code whose value is next to a number.
#pragma once
#include <math.h>

#include "tavs.h"

namespace oracle {

namespace half {
inline constexpr Tav16u sign = 0x8000, largest = 0x7BFF, infinity = 0x7C00, quiet_nan = 0x7E00;
}

inline bool is_nan_half(Tav16u h) { return (h & 0x7FFF) > half::infinity; }

// Of a code without a sign: 2^(exponent - 15) * 1.fraction, or 2^-14 * 0.fraction. Infinity as if it were finite.
inline double magnitude_of_half(int code) {
  const int exponent = code / 0x400, fraction = code % 0x400;
  return exponent == 0 ? ldexp(fraction, -24) : ldexp(0x400 + fraction, exponent - 25);
}

inline double value_of_half(Tav16u h) {
  const int    code      = h & 0x7FFF;
  const double magnitude = is_nan_half(h) ? NAN : code == half::infinity ? HUGE_VAL : magnitude_of_half(code);
  return h & half::sign ? -magnitude : magnitude;
}

// The highest code whose value does not exceed x, which is below infinity's. Values rise with their codes.
inline int half_below(double x) {
  int low = 0, high = half::infinity;
  while (high - low > 1) {
    const int middle                              = (low + high) / 2;
    (magnitude_of_half(middle) <= x ? low : high) = middle;
  }
  return low;
}

// To nearest with ties to the even code, 65536 counting as the value of infinity's; or toward zero.
inline Tav16u half_of(double x, bool to_nearest) {
  const Tav16u sign      = signbit(x) ? half::sign : 0;
  const double magnitude = fabs(x);
  if (x != x) return sign | half::quiet_nan;
  if (isinf(magnitude)) return sign | half::infinity;
  if (magnitude >= magnitude_of_half(half::infinity)) return sign | (to_nearest ? half::infinity : half::largest);
  const int    code  = half_below(magnitude);
  const double below = magnitude - magnitude_of_half(code), above = magnitude_of_half(code + 1) - magnitude;
  return Tav16u(sign | (code + (to_nearest && (above < below || (above == below && code % 2 != 0)))));
}

// The half's value * 2^-s as a 16-bit integer, to nearest with ties to even or toward zero. The multiplier is what the
// exponent of a single can say: 0 from 127 on, infinite from -128 down. A NaN gives the upper limit.
inline Tav16s scaled_16s_of_half(Tav16u h, bool to_nearest, int s) {
  const double product = value_of_half(h) * (s >= 127 ? 0.0 : s <= -128 ? HUGE_VAL : ldexp(1.0, -s));
  if (!(product < 32767)) return 32767;
  if (product < -32768) return -32768;
  return Tav16s(to_nearest ? nearbyint(product) : trunc(product));
}

}  // namespace oracle
