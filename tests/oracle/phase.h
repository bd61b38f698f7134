// Angles by definition, in extended precision, and how far a float lies from one.
#pragma once
#include <math.h>

#include <limits>

#include "tavs.h"

namespace oracle {

inline long double angle(long double re, long double im) { return atan2l(im, re); }

// The distance of a float from the right value, in units in the last place of that value.
template <class F> long double units_off(F got, long double want) {
  using limits = std::numeric_limits<F>;
  if (want != want) return got != got ? 0 : INFINITY;
  if (!(std::fabs(got) <= limits::max())) return INFINITY;
  const long double size = fabsl(want), smallest = limits::denorm_min();
  const int         exponent = size < limits::min() ? limits::min_exponent - 1 : ilogbl(size);
  const long double unit     = ldexpl(1, exponent - (limits::digits - 1));
  return fabsl(got - want) / (unit < smallest ? smallest : unit);
}

// An angle times 2^-s, not yet rounded.
inline long double scaled_angle(long double re, long double im, int s) {
  return ldexpl(angle(re, im), s < -1000 ? 1000 : -s);
}

// The same to nearest, ties to even, saturated. Factors of 2 and more give 0; in 16 bits those below -28 only tell
// signs.
template <class T> T fixed_angle(long double re, long double im, int s) {
  using limits = std::numeric_limits<T>;
  if (s >= 2) return 0;
  const long double a = angle(re, im);
  if (sizeof(T) == 2 && s < -28) return a > 0 ? limits::max() : a < 0 ? limits::min() : T(0);
  const long double r = rintl(scaled_angle(re, im, s));
  return r > limits::max() ? limits::max() : r < limits::min() ? limits::min() : T(r);
}

}  // namespace oracle
