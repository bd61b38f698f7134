// The Direct FIR calls from their definition, sample by sample: the ring that is written twice, the two sums, of the
// samples at even places of the window and of those at odd ones, and how sums become integers.
#pragma once
#include <math.h>

#include "oracle/fir_integer.h"

namespace oracle {

template <class Data> struct ring {
  std::vector<Data> places;  // twice as many as taps
  int               index = 0;

  std::vector<Data> window_after(Data val) {
    const size_t n = places.size() / 2, i = size_t(index);
    places[i] = places[i + n] = val;
    index                     = i + 1 == n ? 0 : int(i + 1);
    return {places.begin() + index, places.begin() + index + long(n)};
  }
};

template <class T, class D> T as_tap(const D& v) {
  if constexpr (requires(T t) { t.re; })
    return {decltype(T::re)(v.re), decltype(T::re)(v.im)};
  else
    return T(v);
}
template <class T> T product(const T& a, const T& b) {
  if constexpr (requires { a.re; }) {
    const auto re = a.re * b.re - a.im * b.im;
    const auto im = a.re * b.im + a.im * b.re;
    return {re, im};
  } else {
    return a * b;
  }
}
template <class S, class T> void add(S& sum, const T& v) {
  if constexpr (requires { v.re; })
    sum.re += v.re, sum.im += v.im;
  else
    sum += v;
}

// Products in the type of the taps, sums in S.
template <class S, class T, class D> S direct_sum(const std::vector<T>& h, const std::vector<D>& window) {
  const size_t n = h.size();
  S            sums[2]{};
  for (size_t i = 0; i < n / 2 * 2; ++i) add(sums[i % 2], product(h[n - 1 - i], as_tap<T>(window[i])));
  add(sums[0], sums[1]);
  if (n % 2 != 0) add(sums[0], product(h[0], as_tap<T>(window[n - 1])));
  return sums[0];
}

// 2^-s for singles or doubles; the low seven bits of the magnitude count.
template <class F> F direct_scale(int s) {
  const int magnitude = int((s < 0 ? 0 - uint32_t(s) : uint32_t(s)) % 128);
  if (sizeof(F) == 4 && s >= 0 && magnitude == 127) return 0;
  return F(ldexp(1.0, s >= 0 ? -magnitude : magnitude));
}

template <class I> I half_away(double v) {
  using limits = std::numeric_limits<I>;
  if (v < double(limits::min())) return limits::min();
  if (v > double(limits::max())) return limits::max();
  return I(v < 0 ? v - 0.5 : v + 0.5);
}

}  // namespace oracle
