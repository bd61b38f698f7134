// FIR filters from their definition: y[n] = sum over k of h[k] x[n - k], in the widest floats there are.
#pragma once
#include <math.h>

#include <algorithm>
#include <vector>

namespace oracle {

struct wide_pair {
  long double re, im;
};

template <class T> wide_pair wide(const T& v) {
  if constexpr (requires { v.re; })
    return {(long double)v.re, (long double)v.im};
  else
    return {(long double)v, 0};
}

// One output, and the sum of the magnitudes that went into it.
struct fir_output {
  wide_pair   value{};
  long double size = 0;
};

// `x` is the whole signal from its beginning; what lies before it is zero.
template <class Tap, class Data> fir_output fir(const std::vector<Tap>& h, const std::vector<Data>& x, size_t n) {
  fir_output y;
  for (size_t k = 0; k < h.size() && k <= n; ++k) {
    const wide_pair a = wide(h[k]), b = wide(x[n - k]);
    if constexpr (requires { x[0].re; }) {
      y.value.re += a.re * b.re - a.im * b.im;
      y.value.im += a.re * b.im + a.im * b.re;
      y.size += (fabsl(a.re) + fabsl(a.im)) * (fabsl(b.re) + fabsl(b.im));
    } else {
      y.value.re += a.re * b.re;
      y.size += fabsl(a.re * b.re);
    }
  }
  return y;
}

// To nearest, ties to even, saturated to T.
template <class T> T to_integer(long double v) {
  const long double low = (long double)std::numeric_limits<T>::min(), high = (long double)std::numeric_limits<T>::max();
  return T(std::clamp(rintl(v), low, high));
}

}  // namespace oracle
