// 24-bit integers by definition: three bytes, the lowest first.
#pragma once
#include <math.h>

#include <algorithm>
#include <type_traits>

#include "tavs.h"

namespace oracle {

struct int_24 {
  Tav8u bytes[3];

  bool operator==(const int_24&) const = default;
};

inline Tav32s value_24u(int_24 v) { return v.bytes[0] + 0x100 * v.bytes[1] + 0x10000 * v.bytes[2]; }
inline Tav32s value_24s(int_24 v) { return value_24u(v) - (v.bytes[2] >= 0x80 ? 0x1000000 : 0); }

inline int_24 of_value_24(int64_t v) { return {{Tav8u(v), Tav8u(v >> 8), Tav8u(v >> 16)}}; }

struct limits_24 {
  int64_t lowest, highest;
};
inline constexpr limits_24 limits_24s{-0x800000, 0x7FFFFF}, limits_24u{0, 0xFFFFFF};

// x * 2^-s in 64 bits, to nearest with ties to even, saturated; s stops at 31 on both sides.
template <class T>
requires std::is_integral_v<T> int_24 scaled_24(T x, int s, limits_24 limits) {
  const int     by   = s > 31 ? 31 : s < -31 ? -31 : s;
  const int64_t unit = int64_t(1) << (by > 0 ? by : 0), times = int64_t(1) << (by < 0 ? -by : 0);
  int64_t       quotient = int64_t(x) / unit, rest = int64_t(x) % unit;
  if (rest < 0) quotient -= 1, rest += unit;
  const bool up = 2 * rest > unit || (2 * rest == unit && quotient % 2 != 0);
  return of_value_24(std::clamp((quotient + up) * times, limits.lowest, limits.highest));
}

// The multiplier is 2^-s as the exponent of a single can say it: 0 from 127 on, infinite from -128 down.
inline double multiplier_32f(int s) { return s >= 127 ? 0.0 : s <= -128 ? HUGE_VAL : ldexp(1.0, -s); }

// A NaN gives the upper limit.
inline int_24 scaled_24(Tav32f x, int s, limits_24 limits) {
  const double product = double(x) * multiplier_32f(s);
  if (!(product < double(limits.highest))) return of_value_24(limits.highest);
  return of_value_24(int64_t(nearbyint(std::max(product, double(limits.lowest)))));
}

}  // namespace oracle
