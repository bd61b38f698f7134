// The scale factor by definition: r * 2^-s, rounded, and limited to the range of the result.
#pragma once
#include <limits>

#include "oracle/wide.h"

namespace oracle {

enum class ties { to_even, away, no_rounding };  // no_rounding cuts toward zero

template <class T> T saturated(int64_t r) {
  using limits = std::numeric_limits<T>;
  return r > int64_t(limits::max()) ? limits::max() : r < int64_t(limits::min()) ? limits::min() : T(r);
}

template <class T> T saturated(exact r) {
  using limits = std::numeric_limits<T>;
  if (r < exact(limits::min())) return limits::min();
  if (exact(limits::max()) < r) return limits::max();
  return T(r.low);
}

// r / 2^s for s >= 1.
inline exact divided(exact r, int s, ties how = ties::to_even) {
  const bool below_zero = r.negative();
  bool       half = false, rest = false;           // the uppermost bit cut off, and whether any below it is set
  for (int k = 0; k < (s < 130 ? s : 130); ++k) {  // longer than the number: nothing new
    rest |= half;
    half = r.odd();
    r    = halved(r);
  }
  const bool tie = half && !rest;
  switch (how) {
    case ties::to_even:
      return (tie ? r.odd() : half) ? r + exact(1) : r;
    case ties::away:
      return (tie ? !below_zero : half) ? r + exact(1) : r;
    default:
      return below_zero && (half || rest) ? r + exact(1) : r;
  }
}

template <class T> T scaled(exact r, int s, ties how = ties::to_even) {
  if (s > 0) return saturated<T>(divided(r, s, how));
  if (r == exact(0)) return 0;
  for (int k = 0; k > s && exact(saturated<T>(r)) == r; --k) r = r + r;
  return saturated<T>(r);
}

// The same for exact results below 2^40 in magnitude and narrower destinations: fast enough for sweeps over all values.
template <class T>
requires(sizeof(T) < 8) T scaled(int64_t r, int s) {
  if (s <= 0) {
    const int64_t far = int64_t(1) << 60;
    if (s < -32) return saturated<T>(r > 0 ? far : r < 0 ? -far : 0);
    if (r > far >> -s || r < -(far >> -s)) return saturated<T>(r > 0 ? far : -far);
    return saturated<T>(r * (int64_t(1) << -s));
  }
  if (s > 41) return 0;
  const int64_t unit = int64_t(1) << s, below = r >> s, rest = r & (unit - 1);  // a division, rounded down
  const bool    up = rest * 2 > unit || (rest * 2 == unit && below % 2 != 0);
  return saturated<T>(below + up);
}

}  // namespace oracle
