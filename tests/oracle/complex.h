// Conjugates, squares and magnitudes of complex numbers by definition: floats in doubles, rounded where the function
// rounds; integers exactly, their roots by search.
#pragma once
#include <math.h>

#include <algorithm>
#include <vector>

#include "oracle/arithmetic.h"
#include "oracle/scale.h"

namespace oracle {

template <class C> C conjugate(C v) {
  if constexpr (std::is_integral_v<decltype(v.re)>)
    return {v.re, narrowed<decltype(v.re)>(-int64_t(v.im))};
  else
    return {v.re, -v.im};
}

template <class C> std::vector<C> conjugates_flipped(std::vector<C> v) {
  std::reverse(v.begin(), v.end());
  for (C& x : v) x = conjugate(x);
  return v;
}

// In the precision of F: both squares are rounded, then their sum.
template <class F> F power(F re, F im) {
  using sums = arithmetic<F>;
  return sums::add(sums::mul(re, re), sums::mul(im, im));
}

// The root of a single has no more than 24 bits or goes on for more than a double shows: it rounds to the same.
template <class F> F root(F v) { return F(sqrt(Tav64f(v))); }

template <class T> exact squares(T re, T im) { return exact(re) * exact(re) + exact(im) * exact(im); }

// Where sqrt(n) * 2^-s stands against q + 1/2, for q below 2^32: below 0, 0, or above. All numbers times 4: n * 4
// against (2 q + 1)^2 * 4^s.
inline int against_middle(exact n, int s, uint64_t q) {
  if (n == exact(0)) return -1;
  exact left = n + n, right = exact(2 * q + 1) * exact(2 * q + 1);
  left                = left + left;
  const exact enough  = exact(int64_t(1) << 40, 0);  // above every left or right before it grows
  exact&      growing = s > 0 ? right : left;
  for (int k = 0; k < 2 * std::min(std::abs(int64_t(s)), int64_t(100)) && growing < enough; ++k)
    growing = growing + growing;
  return left < right ? -1 : right < left ? 1 : 0;
}

// sqrt(n) * 2^-s to nearest, ties to even, saturated.
template <class T> T scaled_root(exact n, int s) {
  uint64_t low = 0, high = std::numeric_limits<T>::max();  // the first that is not too low, if it is in the range
  while (low < high) {
    const uint64_t q     = (low + high) / 2;
    const int      where = against_middle(n, s, q);
    if (where > 0 || (where == 0 && q % 2 != 0))
      low = q + 1;
    else
      high = q;
  }
  return T(low);
}

}  // namespace oracle
