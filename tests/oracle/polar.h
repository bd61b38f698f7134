// Polar coordinates by definition, in extended precision, in which the C library's functions are right for angles of
// any size.
#pragma once
#include <math.h>

#include <limits>

namespace oracle {

struct cartesian {
  long double re, im;
};

inline cartesian from_polar(long double magn, long double phase) { return {magn * cosl(phase), magn * sinl(phase)}; }

// How far a result is from what it should be, in units of that number's last place.
template <class T> long double ulps_off(T got, long double want) {
  using limits = std::numeric_limits<T>;
  int exponent;
  frexpl(want, &exponent);
  const int place = exponent - limits::digits, lowest = limits::min_exponent - limits::digits;
  return fabsl(got - want) / ldexpl(1, place < lowest ? lowest : place);
}

// A number within the range of an integer type, and the nearest integer.
template <class I> long double limited(long double v) {
  using limits = std::numeric_limits<I>;
  return v < limits::min() ? limits::min() : v > limits::max() ? limits::max() : v;
}
template <class I> I nearest(long double v) { return I(nearbyintl(limited<I>(v))); }

}  // namespace oracle
