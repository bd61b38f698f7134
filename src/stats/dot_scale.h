// What becomes of the exact sums of integer products: a scale factor, rounded to nearest with ties to even, and
// saturated; a float; or the sum itself.
#pragma once
#include <limits>

#include "frame/registers.h"
#include "frame/rounding.h"

namespace tav::TAV_VARIANT {

// sum * 2^-s. Shifted up, whatever a limit of T shifted down does not reach saturates.
template <class T> inline T scaled_dot(Tav64s sum, int s) {
  using limits = std::numeric_limits<T>;
  if (s > 63) return 0;
  if (s > 0) {
    const Tav64u rest = Tav64u(sum) & ((Tav64u(1) << s) - 1), half = Tav64u(1) << (s - 1);
    sum >>= s;
    sum += rest > half || (rest == half && (sum & 1) != 0);
    s = 0;
  }
  const int up = s < -limits::digits ? limits::digits : -s;
  if (sum > limits::max() >> up) return limits::max();
  if (sum < limits::min() >> up) return limits::min();
  return T(sum * (Tav64s(1) << up));
}

// In the caller's rounding mode. The bits of a longer sum that do not go into a double leave a 1 in its last place if
// they are not all 0, far below what a single holds: the conversion to it stays the only rounding.
TAV_INLINE Tav32f single_of_dot(Tav64s sum) {
  constexpr Tav64s longest = Tav64s(1) << 52;
  constexpr int    cut     = 11;
  if (sum >= -longest && sum <= longest) return Tav32f(double_of(sum));
  const bool more = (sum & ((1 << cut) - 1)) != 0;
  return Tav32f(double_of(sum >> cut | more) * (1 << cut));
}

// The same by the type of the result, and for both parts of a complex one.

template <class D> TAV_INLINE D result_of_dot(Tav64s sum) {
  if constexpr (std::is_same_v<D, Tav32f>)
    return single_of_dot(sum);
  else
    return sum;
}

// Sums of words are scaled down by 31 places at the most.
template <class D> TAV_INLINE D result_of_dot(Tav64s sum, int s) { return scaled_dot<D>(sum, s > 31 ? 31 : s); }

template <class D> TAV_INLINE D result_of_dot(const Tav64sc& sum, auto... s) {
  using part = part_of<D>;
  return {result_of_dot<part>(sum.re, s...), result_of_dot<part>(sum.im, s...)};
}

}  // namespace tav::TAV_VARIANT
