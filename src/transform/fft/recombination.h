// The step between the transform Z of N/2 complex points, which hold the even and the odd samples of N real ones as
// their parts, and the spectrum X of those samples. Bins k and N/2 - k are taken together, with W = exp(-2 pi i k / N):
//
//   forward   X[k] = b + (a - b) (1/2 - i/2 W), conj X[N/2-k] = a - (a - b) (1/2 - i/2 W), a = Z[k], b = conj Z[N/2-k]
//   inverse   Z[k] = (a + b) + (a - b) i conj W, conj Z[N/2-k] = (a + b) - (a - b) i conj W, a = X[k], b = conj
//   X[N/2-k]
//
// L bins and their L mirrors make one step, from both ends towards N/4, which both sides reach with the same result.
// Bins 0 and N/2, which are real, share the first point.
#pragma once
#include "transform/fft/butterflies.h"

namespace tav::TAV_VARIANT::fft {

// Bins of the table that long transforms multiply by a common factor.
template <class T> inline constexpr size_t fine_bins = 0x1000 / sizeof(T);

// L points in rising order, as two registers of pairs, made planar, in rising or in falling order; and back.
template <class T> TAV_INLINE planar<T> rising(reg<T> a, reg<T> b) { return {even_lanes(a, b), odd_lanes(a, b)}; }
TAV_INLINE planar<float> falling(__m128 a, __m128 b) {
  return {_mm_shuffle_ps(b, a, 0x22), _mm_shuffle_ps(b, a, 0x77)};
}
TAV_INLINE planar<double> falling(__m128d a, __m128d b) { return {even_lanes(b, a), odd_lanes(b, a)}; }

template <class T> struct two_registers { reg<T> a, b; };
template <class T> TAV_INLINE two_registers<T> as_rising(reg<T> re, reg<T> im) {
  return {low_lanes(re, im), high_lanes(re, im)};
}
TAV_INLINE two_registers<float> as_falling(__m128 re, __m128 im) {
  return {exchanged_halves(high_lanes(re, im)), exchanged_halves(low_lanes(re, im))};
}
TAV_INLINE two_registers<double> as_falling(__m128d re, __m128d im) { return {high_lanes(re, im), low_lanes(re, im)}; }

template <class T> TAV_INLINE two_registers<T> read_two(const T* p) { return {read(p), read(p + lanes<T>)}; }
template <class T> TAV_INLINE void             write_two(T* p, const two_registers<T>& v) {
              write(p, v.a);
              write(p + lanes<T>, v.b);
}

// Sum and difference in the two slots: bins 0 and N/2 from the parts of point 0, and the other way. Doubles are stored
// at once, since they will be read so.
TAV_INLINE void put_real_bins(float* p, float a, float b) {
  poke(p, a + b);
  poke(p + 1, a - b);
}
TAV_INLINE void put_real_bins(double* p, double a, double b) { write(p, _mm_setr_pd(a + b, a - b)); }

// One step, from and to registers. `low` holds L bins, `high` their mirrors.
template <class T> struct both_ends { two_registers<T> low, high; };

// w has L factors 1/2 - i/2 W.
template <class T> TAV_INLINE both_ends<T> forward_step(const both_ends<T>& z, const T* w) {
  const planar<T> a = rising<T>(z.low.a, z.low.b), m = falling(z.high.a, z.high.b);
  const planar<T> p = product(planar<T>{a.re - m.re, a.im + m.im}, w);
  return {as_rising<T>(m.re + p.re, p.im - m.im), as_falling(a.re - p.re, p.im - a.im)};
}

// w has L factors i conj W.
template <class T> TAV_INLINE both_ends<T> inverse_step(const both_ends<T>& x, const T* w) {
  const planar<T> a = rising<T>(x.low.a, x.low.b), m = falling(x.high.a, x.high.b);
  const planar<T> s = {a.re + m.re, a.im - m.im};
  const planar<T> p = product(planar<T>{a.re - m.re, a.im + m.im}, w);
  return {as_rising<T>(s.re + p.re, s.im + p.im), as_falling(s.re - p.re, p.im - s.im)};
}

template <bool Inverse, class T>
TAV_INLINE void step_of_bins(const T* low, const T* high, T* low_out, T* high_out, const T* w) {
  const both_ends<T> from{read_two(low), read_two(high)};
  const both_ends<T> to = Inverse ? inverse_step(from, w) : forward_step(from, w);
  write_two(low_out, to.low);
  write_two(high_out, to.high);
}

// Calls step(k, w) for bins k + 1 ... k + L up to `bins`, which is a multiple of L, with their factors: from a table...
template <class T, class Step> TAV_INLINE void each_listed(const T* table, size_t bins, const Step& step) {
// clang-format off
#pragma GCC unroll 1
  // clang-format on
  for (size_t k = 0; k < bins; k += lanes<T>) step(k, table + 2 * k);
}

// ... or as products of a short table and, for each length of it, one factor more; `coarse` has (cos, -sin), and the
// inverse conjugates it. The forward factors get their 1/2 last.
template <bool Inverse, class T, class Step>
TAV_INLINE void each_multiplied(const T* fine, const T* coarse, size_t bins, const Step& step) {
  alignas(16) T common[2 * lanes<T>], w[2 * lanes<T>];
#pragma GCC unroll 1
  for (size_t first = 0; first < bins; first += fine_bins<T>, coarse += 2) {
    for (int l = 0; l < lanes<T>; ++l) {
      common[l]            = coarse[0];
      common[l + lanes<T>] = Inverse ? -coarse[1] : coarse[1];
    }
#pragma GCC unroll 1
    for (size_t k = 0; k < fine_bins<T>; k += lanes<T>) {
      const planar<T> factor = product(groups<T>{const_cast<T*>(fine)}.get(k), common);
      groups<T>{w}.put(0, Inverse ? factor.re : factor.re + read(constants<T>::half), factor.im);
      step(first + k, w);
    }
  }
}

}  // namespace tav::TAV_VARIANT::fft
