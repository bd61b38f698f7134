// Conversions by definition, in 80 bits: they hold every double, every 64-bit integer and every product with a power of
// two that occurs exactly.
#pragma once
#include <math.h>

#include <limits>
#include <type_traits>

#include "oracle/scale.h"

namespace oracle {

// The rounding modes of the SSE unit, as its control word writes them.
enum class mode : unsigned { nearest = 0, down = 0x2000, up = 0x4000, to_zero = 0x6000 };

// An exact value as a float, rounded once.
template <class F> F rounded_to(long double exact, mode how) {
  const F           nearest = F(exact);  // in the mode of the extended unit, which is to nearest throughout
  const long double got     = nearest;
  constexpr F       far     = std::numeric_limits<F>::infinity();
  const bool        above = got > exact, below = got < exact;
  const bool        fall = above && (how == mode::down || (how == mode::to_zero && exact > 0));
  const bool        rise = below && (how == mode::up || (how == mode::to_zero && exact < 0));
  return fall ? F(nextafter(nearest, -far)) : rise ? F(nextafter(nearest, far)) : nearest;
}

// 2^-s with the exponent that a float of type F can write: past its ends infinity, or 0, which also stands for the
// exponent of subnormal numbers.
template <class F> long double power_of_two_minus(int s) {
  constexpr int bias = std::numeric_limits<F>::max_exponent - 1;
  if (s >= bias) return 0;
  return s <= -bias - 1 ? std::numeric_limits<long double>::infinity() : ldexpl(1, -s);
}

template <class F, class S> F to_float(S v, mode how) { return rounded_to<F>(static_cast<long double>(v), how); }
template <class F, class S> F to_scaled_float(S v, int s, mode how) {
  return rounded_to<F>(to_float<F>(v, how) * power_of_two_minus<F>(s), how);
}

// roundMode of the conversions to integers.
inline ties ties_of(int round_mode) {
  return round_mode == 0 ? ties::no_rounding : round_mode == 1 ? ties::to_even : ties::away;
}

// A float times 2^-s as an integer; a NaN is the highest one.
template <class D, class F> D to_integer(F v, int round_mode, int s) {
  using limits             = std::numeric_limits<D>;
  const long double scaled = v * power_of_two_minus<F>(s), size = fabsl(scaled);
  if (!(scaled < 0x1p63L)) return limits::max();
  if (scaled < -0x1p63L) return limits::min();
  const long double below = floorl(size), rest = size - below;
  const bool        odd = fmodl(below, 2) != 0;
  const ties        how = ties_of(round_mode);
  const bool rises = how == ties::to_even ? rest > 0.5L || (rest == 0.5L && odd) : how == ties::away && rest >= 0.5L;
  const long double whole = copysignl(below + rises, scaled);
  if (whole >= static_cast<long double>(limits::max())) return limits::max();
  return whole <= static_cast<long double>(limits::min()) ? limits::min() : D(whole);
}

}  // namespace oracle
