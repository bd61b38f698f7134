// The sums of the Direct calls with taps in floats. Results depend on their order, which is the same for a block and
// for single samples: with the samples numbered from the oldest of the window,
//
//   even = x0 h[N-1] + x2 h[N-3] + ...
//   odd  = x1 h[N-2] + x3 h[N-4] + ...
//   y    = (even + odd) + the newest product, if N is odd
//
// each from the left. Products are made in the type of the taps, T; sums are of type S, which may be wider.
//
// A block makes many outputs at once: the lanes of a register are sums of neighbouring outputs. The taps are walked in
// panels, so that the samples fit a buffer of fixed size, in which they are of the right type and in one piece.
#pragma once
#include "filter/fir/callers_line.h"
#include "vector/arithmetic_ops.h"

namespace tav::TAV_VARIANT::fir {

template <class T> TAV_INLINE reg<T> tap_in_lanes(const T* tap) {
  if constexpr (sizeof(T) == 4)
    return _mm_set1_ps(peek(tap));
  else if constexpr (sizeof(T) == 8)
    return from_bits<T>(_mm_unpacklo_epi64(load_low<8>(tap), load_low<8>(tap)));
  else
    return load<access::unaligned, 1>(tap);
}

// sums[i] += x[i] h[0] + x[i + 2] h[-2] + ..., `count` products from the left, for K registers of x.
template <int K, class T, class S> TAV_INLINE void add_at(const T* x, const T* h, size_t count, S* sums) {
  constexpr int wide = sizeof(S) / sizeof(T);
  reg<S>        acc[K * wide];
#pragma GCC unroll 8
  for (int q = 0; q < K * wide; ++q) acc[q] = load<access::aligned, lanes<S>>(sums + q * lanes<S>);
#pragma GCC unroll 1
  for (size_t m = 0; m < count; ++m) {
    const reg<T> tap = tap_in_lanes(h - 2 * m);
#pragma GCC unroll 8
    for (int q = 0; q < K; ++q) {
      const reg<T> p = product_of<T>::many(load<access::unaligned, lanes<T>>(x + 2 * m + q * lanes<T>), tap);
      if constexpr (wide == 1) {
        acc[q] += p;
      } else {
        acc[2 * q] += _mm_cvtps_pd(p);
        acc[2 * q + 1] += _mm_cvtps_pd(_mm_movehl_ps(p, p));
      }
    }
  }
#pragma GCC unroll 8
  for (int q = 0; q < K * wide; ++q) store<access::aligned>(sums + q * lanes<S>, acc[q]);
}

template <class T, class S> class direct_sums {
 public:
  static constexpr size_t at_once = 128;

  // Sums n outputs, at most at_once; the first is that of the sample behind taps_len - 1 samples of x.
  template <class D> void run(const joined_signal<D>& x, const T* taps, size_t taps_len, size_t n) {
    shared::zero_bytes(even_, n * sizeof(S));
    shared::zero_bytes(odd_, n * sizeof(S));
    const size_t in_pairs = taps_len & ~size_t(1);
    for (size_t done = 0; done < in_pairs; done += panel) {
      const size_t count = in_pairs - done < panel ? in_pairs - done : panel;
      const T*     h     = taps + (taps_len - 1 - done);
      x.read(done, count + n - 1, samples_);
      add(samples_, h, count / 2, even_, n);
      add(samples_ + 1, h - 1, count / 2, odd_, n);
    }
    for (size_t i = 0; i < n; ++i) even_[i] = plus(even_[i], odd_[i]);
    if (in_pairs == taps_len) return;
    x.read(in_pairs, n, samples_);
    add(samples_, taps, 1, even_, n);
  }
  const S* sums() const { return even_; }

  template <class D> static S newest(const D* window, const T* taps, size_t taps_len) {
    const auto product = [&](size_t i) {
      return product_of<T>::one(converted<T>(peek(window + i)), peek(taps + (taps_len - 1 - i)));
    };
    S even{}, odd{};
    for (size_t i = 0; i + 1 < taps_len; i += 2) {
      even = plus(even, product(i));
      odd  = plus(odd, product(i + 1));
    }
    const S sum = plus(even, odd);
    return taps_len % 2 == 0 ? sum : plus(sum, product(taps_len - 1));
  }

 private:
  template <class V> static S plus(S sum, V v) { return sum_of<S>::one(sum, converted<S>(v)); }

  static constexpr size_t panel         = 256;
  static constexpr bool   few_registers = sizeof(void*) == 4;
  static constexpr int    in_round      = (few_registers || is_complex<T> ? 4 : 8) / int(sizeof(S) / sizeof(T));

  static void add(const T* x, const T* h, size_t count, S* sums, size_t n) {
    constexpr size_t step = lanes<T>, round = step * in_round;
    size_t           i = 0;
    for (; n - i >= round; i += round) add_at<in_round>(x + i, h, count, sums + i);
    for (; n - i >= step; i += step) add_at<1>(x + i, h, count, sums + i);
    for (; i < n; ++i)
      for (size_t m = 0; m < count; ++m) sums[i] = plus(sums[i], product_of<T>::one(x[i + 2 * m], peek(h - 2 * m)));
  }

  alignas(16) S even_[at_once];
  alignas(16) S odd_[at_once];
  alignas(16) T samples_[panel + at_once];
};

}  // namespace tav::TAV_VARIANT::fir
