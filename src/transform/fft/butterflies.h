// The butterflies: planar ones with twiddles, of radix 4 in two forms, and twiddle-free ones over rows of pairs.
//
// Values are named one by one and the twiddled pair comes first, so that a butterfly fits eight registers.
#pragma once
#include "transform/fft/views.h"

namespace tav::TAV_VARIANT::fft {

// A table of twiddles holds for each L neighbouring points their L cosines, then their L negated sines.
template <class T> inline constexpr int twiddle_size = 2 * lanes<T>;

template <class T> TAV_INLINE planar<T> product(planar<T> a, const T* w) {
  const reg<T> re = a.re, im = a.im;
  return {times(a.re, w) - times(a.im, w + lanes<T>), times(re, w + lanes<T>) + times(im, w)};
}

// The four results of a radix-4 butterfly from the sums and differences of its even pair, p and q, and of its odd one.
template <class Out, class T>
TAV_INLINE void finish4(Out out, size_t step, planar<T> p, planar<T> q, planar<T> s, planar<T> d) {
  out.put(0, p.re + s.re, p.im + s.im);
  out.at(2 * step).put(0, p.re - s.re, p.im - s.im);
  out.at(step).put(0, q.re + d.im, q.im - d.re);
  out.at(3 * step).put(0, q.re - d.im, q.im + d.re);
}

// Sum and difference, in the order of the real parts first: what is written as an argument is computed last first.
template <class T> struct both { planar<T> sum, difference; };
template <class T> TAV_INLINE both<T> sum_and_difference(planar<T> a, planar<T> b) {
  const reg<T> sr = a.re + b.re, si = a.im + b.im, dr = a.re - b.re, di = a.im - b.im;
  return {{sr, si}, {dr, di}};
}

// Radix 4 on L points of each of four blocks, which hold the partial transforms 0, 2, 1, 3.
// Record: w^k, w^3k, w^2k.
template <class T> inline constexpr int radix4_record = 3 * twiddle_size<T>;

template <class In, class Out, class T = typename In::value>
TAV_INLINE void radix4(In in, size_t from2, size_t from1, size_t from3, Out out, size_t step, const T* w) {
  const planar<T> u    = product(in.at(from1).get(0), w);
  const planar<T> v    = product(in.at(from3).get(0), w + twiddle_size<T>);
  const both<T>   odd  = sum_and_difference(u, v);
  const planar<T> t    = product(in.at(from2).get(0), w + 2 * twiddle_size<T>);
  const planar<T> x    = in.get(0);
  const both<T>   even = sum_and_difference(x, t);
  finish4(out, step, even.sum, even.difference, odd.sum, odd.difference);
}

// The same as two levels of radix 2: two thirds of the table for one more product. Record: w^2k, w^k.
template <class T> inline constexpr int radix22_record = 2 * twiddle_size<T>;

template <class In, class Out, class T = typename In::value>
TAV_INLINE void radix22(In in, size_t row, Out out, size_t step, const T* w) {
  const planar<T> v    = product(in.at(3 * row).get(0), w);
  const planar<T> y    = in.at(2 * row).get(0);
  const both<T>   odd  = sum_and_difference(y, v);
  const planar<T> s    = product(odd.sum, w + twiddle_size<T>);
  const planar<T> d    = product(odd.difference, w + twiddle_size<T>);
  const planar<T> t    = product(in.at(row).get(0), w);
  const planar<T> x    = in.get(0);
  const both<T>   even = sum_and_difference(x, t);
  finish4(out, step, even.sum, even.difference, s, d);
}

// Twiddle-free butterflies over rows, whose columns are transformed side by side: as pairs or planar. `rows.two(r, low,
// high)` reads row r and the row half the radix below it. Results come in natural order.
template <class T> TAV_INLINE planar<T> operator+(planar<T> a, planar<T> b) { return {a.re + b.re, a.im + b.im}; }
template <class T> TAV_INLINE planar<T> operator-(planar<T> a, planar<T> b) { return {a.re - b.re, a.im - b.im}; }
template <class T> TAV_INLINE planar<T> times(planar<T> v, const T* p) { return {times(v.re, p), times(v.im, p)}; }

// a plus and minus b turned by a quarter. Planar values are transformed forward only.
template <bool Inverse, class T> TAV_INLINE void add_turned(reg<T> a, reg<T> b, reg<T>& sum, reg<T>& difference) {
  const reg<T> t = turned<Inverse, T>(b);
  sum = a + t, difference = a - t;
}
template <bool Inverse, class T>
TAV_INLINE void add_turned(planar<T> a, planar<T> b, planar<T>& sum, planar<T>& difference) {
  static_assert(!Inverse);
  sum = {a.re + b.im, a.im - b.re}, difference = {a.re - b.im, a.im + b.re};
}

template <bool Inverse, class T, class Rows, class V>
TAV_INLINE void rows4(const Rows& rows, int first, int second, V* y) {
  V a, b;
  rows.two(first, a, b);
  const V s0 = a + b, d0 = a - b;
  rows.two(second, a, b);
  const V s1 = a + b, d1 = a - b;
  y[0] = s0 + s1, y[2] = s0 - s1;
  add_turned<Inverse, T>(d0, d1, y[1], y[3]);
}

// The odd results of eight rows are p -+ ir and q -+ is, where p, q, r, s come from the rows by real factors only: a
// turn of pairs needs a shuffle, and those take the adders' time.
template <bool Inverse, class T, class Rows, class V> TAV_INLINE void rows8(const Rows& rows, V* y) {
  V a, b;
  rows.two(1, a, b);
  const V s1 = a + b, d1 = a - b;
  rows.two(3, a, b);
  const V s3 = a + b, d3 = a - b;
  const V m = times(d1 - d3, constants<T>::half_root), n = times(d1 + d3, constants<T>::half_root);
  const V t0 = s1 + s3, t2 = s1 - s3;
  rows.two(2, a, b);
  const V s2 = a + b, d2 = a - b;
  const V r = d2 + n, s = d2 - n;
  rows.two(0, a, b);
  const V s0 = a + b, d0 = a - b;
  const V p = d0 + m, q = d0 - m;
  add_turned<Inverse, T>(p, r, y[1], y[7]);
  add_turned<Inverse, T>(q, s, y[5], y[3]);
  const V e0 = s0 + s2, e2 = s0 - s2;
  y[0] = e0 + t0, y[4] = e0 - t0;
  add_turned<Inverse, T>(e2, t2, y[2], y[6]);
}

// Four results of each column of a register, made planar: column 0, and for singles column 1. The inverse exchanges the
// parts.
template <bool Inverse, class T> TAV_INLINE void turn_planar(const reg<T>* y, planar<T>* columns) {
  if constexpr (sizeof(T) == 4) {
    const __m128 l0 = low_lanes(y[0], y[1]), h0 = high_lanes(y[0], y[1]);
    const __m128 l1 = low_lanes(y[2], y[3]), h1 = high_lanes(y[2], y[3]);
    columns[0] = {_mm_movelh_ps(l0, l1), _mm_movehl_ps(l1, l0)};
    columns[1] = {_mm_movelh_ps(h0, h1), _mm_movehl_ps(h1, h0)};
  } else {
    columns[0] = {low_lanes(y[0], y[1]), high_lanes(y[0], y[1])};
    columns[1] = {low_lanes(y[2], y[3]), high_lanes(y[2], y[3])};
  }
  if constexpr (Inverse) {
    columns[0] = {columns[0].im, columns[0].re};
    columns[1] = {columns[1].im, columns[1].re};
  }
}

// Four results of each column to the places of the columns, from pairs or planar values.
template <bool Inverse, class T, class To> TAV_INLINE void put_rows4(const To& to, int k, const reg<T>* y) {
  planar<T> columns[2];
  turn_planar<Inverse, T>(y, columns);
  (to(0) + k).put(0, columns[0].re, columns[0].im);
  (sizeof(T) == 4 ? to(1) + k : to(0) + (k + 2)).put(0, columns[1].re, columns[1].im);
}

TAV_INLINE void turn_square(__m128d* v) {
  const __m128d a = v[0];
  v[0] = low_lanes(a, v[1]), v[1] = high_lanes(a, v[1]);
}
TAV_INLINE void turn_square(__m128* v) {
  const __m128 a = low_lanes(v[0], v[1]), b = low_lanes(v[2], v[3]);
  const __m128 c = high_lanes(v[0], v[1]), d = high_lanes(v[2], v[3]);
  v[0] = _mm_movelh_ps(a, b), v[1] = _mm_movehl_ps(b, a), v[2] = _mm_movelh_ps(c, d), v[3] = _mm_movehl_ps(d, c);
}

template <bool Inverse, class T, class To> TAV_INLINE void put_rows4(const To& to, int k, const planar<T>* y) {
  constexpr int L = lanes<T>;
#pragma GCC unroll 2
  for (int i = 0; i < 4; i += L) {
    reg<T> re[L], im[L];
#pragma GCC unroll 4
    for (int c = 0; c < L; ++c) re[c] = y[i + c].re, im[c] = y[i + c].im;
    turn_square(re), turn_square(im);
#pragma GCC unroll 4
    for (int c = 0; c < L; ++c) (to(c) + (k + i)).put(0, re[c], im[c]);
  }
}

}  // namespace tav::TAV_VARIANT::fft
