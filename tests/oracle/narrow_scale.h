// The scale factor by definition: r * 2^-s, to nearest with ties to even, saturated.
#pragma once
#include <stdint.h>

#include <limits>

namespace oracle {

template <class T> T saturated(int64_t r) {
  using limits = std::numeric_limits<T>;
  return r > int64_t(limits::max()) ? limits::max() : r < int64_t(limits::min()) ? limits::min() : T(r);
}

// For exact results below 2^40 in magnitude, and destinations of at most 32 bits.
template <class T> T scaled(int64_t r, int s) {
  if (s <= 0) {
    const int64_t far = int64_t(1) << 60;
    if (s < -32) return saturated<T>(r > 0 ? far : r < 0 ? -far : 0);
    if (r > far >> -s || r < -(far >> -s)) return saturated<T>(r > 0 ? far : -far);
    return saturated<T>(r * (int64_t(1) << -s));
  }
  if (s > 41) return 0;
  const int64_t unit = int64_t(1) << s, below = r >= 0 ? r / unit : -((-r + unit - 1) / unit), rest = r - below * unit;
  const bool    up = rest * 2 > unit || (rest * 2 == unit && below % 2 != 0);
  return saturated<T>(below + up);
}

}  // namespace oracle
