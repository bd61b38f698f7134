// Transforms of up to 8 points in fixed point, written in 64-bit integers: guard bits, products cut in halves of 16
// bits, ties upward.
#pragma once
#include <stdint.h>

#include <algorithm>
#include <vector>

#include "tavs.h"

namespace oracle {

struct integer_pair {
  int64_t re, im;
};
inline integer_pair operator+(integer_pair a, integer_pair b) { return {a.re + b.re, a.im + b.im}; }
inline integer_pair operator-(integer_pair a, integer_pair b) { return {a.re - b.re, a.im - b.im}; }
inline integer_pair conjugate(integer_pair a) { return {a.re, -a.im}; }
inline integer_pair halved(integer_pair a) { return {a.re >> 1, a.im >> 1}; }
inline integer_pair times_i(integer_pair a) { return {-a.im, a.re}; }
inline integer_pair times_minus_i(integer_pair a) { return {a.im, -a.re}; }

inline integer_pair quarter_turns(integer_pair a, int clockwise) {
  return clockwise == 0 ? a : quarter_turns(times_minus_i(a), clockwise - 1);
}

inline int64_t upper_half(int64_t v) { return v >> 16; }
inline int64_t lower_half(int64_t v) { return v - upper_half(v) * 65536; }

// By 11585 / 2^14 and by 23170 / 2^15.
inline int64_t by_twiddle(int64_t v) { return 4 * upper_half(v) * 11585 + (((lower_half(v) >> 1) * 11585) >> 13); }
inline int64_t by_root_half(int64_t v) { return 2 * upper_half(v) * 23170 + ((lower_half(v) * 23170) >> 15); }

// Times exp(-2 pi i eighths / 8), for 0 to 3 eighths.
inline integer_pair turned(integer_pair a, int eighths) {
  if (eighths == 1) return {by_twiddle(a.re + a.im), by_twiddle(a.im - a.re)};
  if (eighths == 2) return times_minus_i(a);
  if (eighths == 3) return {by_twiddle(a.im - a.re), -by_twiddle(a.re + a.im)};
  return a;
}
// Times exp(2 pi i eighths / 8), for 1 and 2 eighths.
inline integer_pair turned_back(integer_pair a, int eighths) {
  if (eighths == 1) return {by_twiddle(a.re - a.im), by_twiddle(a.re + a.im)};
  return times_i(a);
}

// X[k] = sum of x[m] exp(-2 pi i m k / n); the inverse transforms the points from the second on in reverse.
inline std::vector<integer_pair> fixed_transform(std::vector<integer_pair> x, bool inverse) {
  const int n = int(x.size()), inner = n == 8 ? 4 : n;
  if (inverse) std::reverse(x.begin() + 1, x.end());
  const auto of_every = [&](int first, int step, int k) {
    integer_pair sum{0, 0};
    for (int m = 0; m < inner; ++m) sum = sum + quarter_turns(x[first + m * step], m * k * (4 / inner) % 4);
    return sum;
  };
  std::vector<integer_pair> bins(n);
  for (int k = 0; k < inner; ++k) {
    if (n < 8) {
      bins[k] = of_every(0, 1, k);
    } else {
      const integer_pair even = of_every(0, 2, k), odd = turned(of_every(1, 2, k), k);
      bins[k] = even + odd, bins[k + 4] = even - odd;
    }
  }
  return bins;
}

// The call of a context: flag 1 scales forward, 2 inverse, 4 both.
struct fixed_call {
  int  order, flag, scale_factor;
  bool inverse;

  bool by_both() const { return flag == 4; }
  int  shift() const { return by_both() ? order / 2 : flag == (inverse ? 2 : 1) ? order : 0; }
};

inline Tav16s fixed_result(int64_t v, int shift, int scale_factor) {
  if (scale_factor <= -32) return 0;
  const int64_t total = int64_t(shift) + scale_factor;
  if (total > 40) return 0;
  if (total > 0) v = (v + (int64_t(1) << (total - 1))) >> total;
  if (total < 0) v = -total >= 32 ? 0 : int32_t(uint32_t(v) << -total);
  return Tav16s(std::clamp<int64_t>(v, -32768, 32767));
}

inline Tav16s fixed_result(int64_t v, const fixed_call& c, int guard) {
  if (c.by_both() && c.order % 2 == 1) v = by_root_half(v);
  return fixed_result(v, c.shift() + guard, c.scale_factor);
}

inline std::vector<Tav16sc> fixed_complex(const std::vector<Tav16sc>& x, const fixed_call& c) {
  const int guard = c.order == 0 ? 0 : 15 - c.order;
  if (c.order == 0) return {{fixed_result(x[0].re, 0, c.scale_factor), fixed_result(x[0].im, 0, c.scale_factor)}};
  std::vector<integer_pair> z;
  for (const Tav16sc& p : x) z.push_back({int64_t(p.re) * (1 << guard), int64_t(p.im) * (1 << guard)});
  std::vector<Tav16sc> y;
  for (const integer_pair& p : fixed_transform(z, c.inverse))
    y.push_back({fixed_result(p.re, c, guard), fixed_result(p.im, c, guard)});
  return y;
}

// Real samples as pairs z, whose spectrum is turned into theirs, in Perm order.
inline std::vector<Tav16s> fixed_forward(const std::vector<Tav16s>& x, const fixed_call& c) {
  if (c.order == 0) return {fixed_result(x[0], 0, c.scale_factor)};
  const int                 guard = 16 - c.order, half = 1 << (c.order - 1);
  std::vector<integer_pair> z, bins(half);
  for (int i = 0; i < half; ++i) z.push_back({int64_t(x[2 * i]) * (1 << guard), int64_t(x[2 * i + 1]) * (1 << guard)});
  z       = fixed_transform(z, false);
  bins[0] = {z[0].re + z[0].im, z[0].re - z[0].im};
  for (int k = 1; k <= half / 2; ++k) {
    const integer_pair mirror = conjugate(z[half - k]), e = halved(z[k] + mirror), o = halved(z[k] - mirror);
    const integer_pair t = times_minus_i(turned(o, k * 4 / half));
    bins[half - k] = conjugate(e - t), bins[k] = e + t;
  }
  std::vector<Tav16s> y;
  for (const integer_pair& b : bins)
    y.push_back(fixed_result(b.re, c, guard)), y.push_back(fixed_result(b.im, c, guard));
  return y;
}

inline std::vector<Tav16s> fixed_inverse(const std::vector<Tav16s>& x, const fixed_call& c) {
  if (c.order == 0) return {fixed_result(x[0], 0, c.scale_factor)};
  const int                 guard = 15 - c.order, half = 1 << (c.order - 1);
  std::vector<integer_pair> bins, z(half);
  for (int i = 0; i < half; ++i)
    bins.push_back({int64_t(x[2 * i]) * (1 << guard), int64_t(x[2 * i + 1]) * (1 << guard)});
  z[0] = {bins[0].re + bins[0].im, bins[0].re - bins[0].im};
  for (int k = 1; k <= half / 2; ++k) {
    const integer_pair mirror = conjugate(bins[half - k]), s = bins[k] + mirror, d = bins[k] - mirror;
    const integer_pair t = times_i(turned_back(d, k * 4 / half));
    z[half - k] = conjugate(s - t), z[k] = s + t;
  }
  std::vector<Tav16s> y;
  for (const integer_pair& p : fixed_transform(z, true))
    y.push_back(fixed_result(p.re, c, guard)), y.push_back(fixed_result(p.im, c, guard));
  return y;
}

}  // namespace oracle
