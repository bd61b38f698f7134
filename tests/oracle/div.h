// Division by definition: exact quotients in 64-bit integers, rounded once; the values over zero; ranges of factors.
#pragma once
#include <math.h>

#include "oracle/scale.h"
#include "tavs.h"

namespace oracle {

enum rounding { toward_zero = 0, ties_to_even = 1, ties_away = 2 };

// n / d * 2^-s for magnitudes up to 2^31, -32 <= s <= 32, d not 0.
inline int64_t rounded_quotient(int64_t n, int64_t d, int s, rounding mode) {
  const bool     negative = (n < 0) != (d < 0);
  const uint64_t top = uint64_t(n < 0 ? -n : n) << (s < 0 ? -s : 0), bottom = uint64_t(d < 0 ? -d : d)
                                                                              << (s > 0 ? s : 0);
  uint64_t       q    = top / bottom;
  const uint64_t rest = top % bottom, lack = bottom - rest;
  if (mode == ties_away) q += rest >= lack;
  if (mode == ties_to_even) q += rest > lack || (rest == lack && q % 2 != 0);
  return negative ? -int64_t(q) : int64_t(q);
}

template <class T> T by_sign(bool positive, bool negative) {
  return positive ? std::numeric_limits<T>::max() : negative ? std::numeric_limits<T>::min() : T(0);
}

// Within the factors from low to high; outside it only signs count.
struct division {
  int low, high;

  template <class T> T of(int64_t n, int64_t d, int s, rounding mode = ties_to_even) const {
    if (d == 0) return by_sign<T>(n > 0, n < 0);
    if (s > high) return 0;
    if (s < low) return by_sign<T>((n > 0 && d > 0) || (n < 0 && d < 0), (n > 0 && d < 0) || (n < 0 && d > 0));
    return saturated<T>(rounded_quotient(n, d, s, mode));
  }

  Tav16sc of(Tav16sc a, Tav16sc b, int s) const {
    const int64_t ar = a.re, ai = a.im, br = b.re, bi = b.im, square = br * br + bi * bi;
    if (square == 0) return {of<Tav16s>(ar, 0, s), of<Tav16s>(ai, 0, s)};
    return {of<Tav16s>(ar * br + ai * bi, square, s), of<Tav16s>(ai * br - ar * bi, square, s)};
  }
};

inline constexpr division div_8u{-15, 8}, div_16s{-30, 15}, div_16u{-31, 16}, div_32s16s{-29, 31}, div_32s{-62, 32},
    div_16sc{-32, 32}, div_c_16sc{-16, 15};

// Below factor 0 tavsDiv_32s rounds the scaled quotient to a double first.
inline Tav32s quotient_32s(Tav32s n, Tav32s d, int s) {
  if (d == 0 || s >= 0 || s < div_32s.low) return div_32s.of<Tav32s>(n, d, s);
  const double q = nearbyint(ldexp(double(n), -s) / double(d));
  return q > 2147483647.0 ? 2147483647 : q < -2147483648.0 ? INT32_MIN : Tav32s(q);
}

// n / d * 2^-s for s >= 0, d not 0, to nearest with ties to even.
inline Tav64s quotient_64s(Tav64s n, Tav64s d, int s) {
  if (s > 63) return 0;
  const bool     negative = (n < 0) != (d < 0);
  const uint64_t top = n < 0 ? -uint64_t(n) : uint64_t(n), bottom = d < 0 ? -uint64_t(d) : uint64_t(d);
  uint64_t       q    = top / bottom;
  const uint64_t rest = top % bottom;
  bool           up, tie;
  if (s == 0) {
    up  = rest > bottom - rest;
    tie = rest == bottom - rest;
  } else {
    const uint64_t half = uint64_t(1) << (s - 1), fraction = q & (2 * half - 1);
    up  = fraction > half || (fraction == half && rest != 0);
    tie = fraction == half && rest == 0;
    q   = q >> s;
  }
  q += up || (tie && q % 2 != 0);
  const uint64_t most = uint64_t(INT64_MAX) + negative;
  if (q > most) q = most;
  return Tav64s(negative ? -q : q);
}

template <class C> C complex_quotient(C a, C b) {
  using part      = decltype(C::re);
  const double ar = a.re, ai = a.im, br = b.re, bi = b.im, square = br * br + bi * bi;
  if (br == 0 && bi == 0) return {part(ar / 0.0), part(ai / 0.0)};
  return {part((ar * br + ai * bi) / square), part((ai * br - ar * bi) / square)};
}

}  // namespace oracle
