// Integer FIR filters from their definition: products and sums of 32 bits that wrap, the power of two, the limit.
#pragma once
#include <math.h>

#include <algorithm>
#include <vector>

#include "oracle/scale.h"

namespace oracle {

inline int32_t wrapped(int64_t v) { return int32_t(uint32_t(v)); }

// sum * 2^s, s within 31 places, ties to even; all of it in 32 bits but for the limit.
inline Tav16s word_of(int32_t sum, int64_t s) {
  s = std::clamp<int64_t>(s, -31, 31);
  if (s >= 0) return saturated<Tav16s>(int64_t(wrapped(int64_t(sum) * (int64_t(1) << s))));
  const int64_t unit = int64_t(1) << -s, odd = (int64_t(sum) >> -s) & 1;
  return saturated<Tav16s>(int64_t(wrapped(int64_t(sum) + unit / 2 - 1 + odd)) >> -s);
}

struct word_pair {
  int32_t re = 0, im = 0;
};
template <class T> word_pair words(const T& v) {
  if constexpr (requires { v.re; })
    return {v.re, v.im};
  else
    return {v, 0};
}

// sum over k of h[k] x[n-k]; `x` is the whole signal from its beginning, what lies before it is zero.
template <class Tap, class Data>
word_pair wrapped_sum(const std::vector<Tap>& h, const std::vector<Data>& x, size_t n) {
  uint64_t re = 0, im = 0;
  for (size_t k = 0; k < h.size() && k <= n; ++k) {
    const word_pair a = words(h[k]), b = words(x[n - k]);
    re += uint64_t(int64_t(a.re) * b.re) - uint64_t(int64_t(a.im) * b.im);
    im += uint64_t(int64_t(a.re) * b.im) + uint64_t(int64_t(a.im) * b.re);
  }
  return {wrapped(int64_t(re)), wrapped(int64_t(im))};
}

template <class Data> Data word_result(word_pair sum, int64_t s) {
  if constexpr (requires(Data v) { v.re; })
    return {word_of(sum.re, s), word_of(sum.im, s)};
  else
    return word_of(sum.re, s);
}

// Taps as filters keep them, and their exponent.
template <class Tap> struct kept_taps {
  std::vector<Tap> taps;
  int              scale = 0;
};

inline int64_t             magnitude(int64_t v) { return v < 0 ? -v : v; }
template <class T> int64_t largest_part(const std::vector<T>& h) {
  int64_t most = 0;
  for (const T& v : h) most = std::max({most, magnitude(words(v).re), magnitude(words(v).im)});
  return most;
}

// Shifted down together until 32766 is the most, and words by one place if there is -32768.
template <class Tap> kept_taps<Tap> kept(std::vector<Tap> h, int tapsFactor) {
  int     shift = 0;
  int64_t most  = largest_part(h);
  if (sizeof(Tap) == 2)
    shift = most == 32768;
  else
    for (; most > 32766; most /= 2) ++shift;
  for (Tap& v : h) {
    if constexpr (requires { v.re; })
      v = {v.re >> shift, v.im >> shift};
    else
      v = Tap(v >> shift);
  }
  return {h, wrapped(int64_t(tapsFactor) + shift)};
}

// From floats: the exponent by which the largest is in (16383.5, 32767], within -33 and 33; nearest integers, half away
// from zero.
inline int exponent_of(float most) {
  int e = 0;
  while (most * ldexp(1.0, -e) > 32767 && e < 33) ++e;
  while (e <= 0 && 2 * most * ldexp(1.0, -e) < 32767 && e > -33) --e;
  return e;
}
inline int32_t nearest(double v) { return int32_t(v < 0 ? v - 0.5 : v + 0.5); }

inline kept_taps<Tav32s> kept_floats(const std::vector<Tav32f>& h) {
  kept_taps<Tav32s> k;
  float             most = 0;
  for (float v : h) most = std::max(most, fabsf(v));
  k.scale = exponent_of(most);
  for (float v : h) k.taps.push_back(nearest(v * ldexp(1.0, -k.scale)));
  return k;
}
inline kept_taps<Tav32sc> kept_floats(const std::vector<Tav32fc>& h) {
  std::vector<Tav32f> parts;
  for (const Tav32fc& v : h) parts.insert(parts.end(), {v.re, v.im});
  const auto         all = kept_floats(parts);
  kept_taps<Tav32sc> k{{}, all.scale};
  for (size_t i = 0; i < h.size(); ++i) k.taps.push_back({all.taps[2 * i], all.taps[2 * i + 1]});
  return k;
}

}  // namespace oracle
