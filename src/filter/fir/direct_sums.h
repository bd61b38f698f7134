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

// A panel of taps: `pairs` of them, from h on backwards, and whether it is the first, the last, and one tap is left
// over.
template <class T> struct tap_panel {
  const T* h;
  size_t   pairs;
  bool     begins, ends, odd;
};

// Sums of neighbouring outputs, as lanes of K registers of T, or of twice as many where S is wider.
template <int K, class T, class S> struct lane_sums {
  static constexpr int wide  = sizeof(S) / sizeof(T);
  static constexpr int count = K * wide;
  reg<S>               r[count];

  TAV_INLINE void clear() { *this = {}; }
  TAV_INLINE void load_from(const S* p) {
#pragma GCC unroll 8
    for (int q = 0; q < count; ++q) r[q] = load<access::aligned, lanes<S>>(p + q * lanes<S>);
  }
  TAV_INLINE void store_to(S* p) const {
#pragma GCC unroll 8
    for (int q = 0; q < count; ++q) store<access::aligned>(p + q * lanes<S>, r[q]);
  }
  TAV_INLINE void add(const lane_sums& other) {
#pragma GCC unroll 8
    for (int q = 0; q < count; ++q) r[q] += other.r[q];
  }
  TAV_INLINE void add_products(const T* x, const T* h) {
    const reg<T> tap = tap_in_lanes(h);
#pragma GCC unroll 8
    for (int q = 0; q < K; ++q) {
      if constexpr (wide == 1) {
        r[q] += product_of<T>::many(samples(x, q), tap);
      } else if constexpr (is_complex<T>) {
        const reg<T> p = product_of<T>::many(samples(x, q), tap);
        r[2 * q] += _mm_cvtps_pd(p);
        r[2 * q + 1] += _mm_cvtps_pd(_mm_movehl_ps(p, p));
      } else {
        r[2 * q] += _mm_cvtps_pd(two_samples(x + 4 * q) * tap);
        r[2 * q + 1] += _mm_cvtps_pd(two_samples(x + 4 * q + 2) * tap);
      }
    }
  }

 private:
  TAV_INLINE static reg<T> samples(const T* x, int q) { return load<access::unaligned, lanes<T>>(x + q * lanes<T>); }
  // Twice, through the load: a second product costs less than the shuffle of one.
  TAV_INLINE static __m128 two_samples(const Tav32f* x) {
    Tav64f both;
    __builtin_memcpy(&both, x, sizeof both);
    return _mm_castpd_ps(_mm_set1_pd(both));
  }
};

template <class T, class S> class direct_sums {
 public:
  static constexpr size_t at_once = 256;

  // Sums n outputs, at most at_once; the first is that of the sample behind taps_len - 1 samples of x.
  template <class D> void run(const joined_signal<D>& x, const T* taps, size_t taps_len, size_t n) {
    const size_t in_pairs = taps_len & ~size_t(1);
    size_t       done     = 0;
    do {
      const size_t left = in_pairs - done, count = left < panel ? left : panel;
      const bool   ends = left == count, odd = ends && in_pairs != taps_len;
      x.read(done, count + odd + n - 1, samples_);
      add({taps + (taps_len - 1 - done), count / 2, done == 0, ends, odd}, n);
      done += count;
    } while (done < in_pairs);
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
  static constexpr int    in_round      = sizeof(S) != sizeof(T) ? 1 : few_registers || is_complex<T> ? 2 : 4;

  void add(const tap_panel<T>& p, size_t n) {
    constexpr size_t step = lanes<T>, round = step * in_round;
    size_t           i = 0;
    for (; n - i >= round; i += round) add_group<in_round>(p, i);
    for (; n - i >= step; i += step) add_group<1>(p, i);
    for (; i < n; ++i) add_one(p, i);
  }

  // Both sums of a round of outputs from i on, which become the results with the last panel.
  template <int K> TAV_INLINE void add_group(const tap_panel<T>& p, size_t i) {
    lane_sums<K, T, S> even, odd;
    if (p.begins)
      even.clear(), odd.clear();
    else
      even.load_from(even_ + i), odd.load_from(odd_ + i);
    const T* x = samples_ + i;
    const T* h = p.h;
#pragma GCC unroll 1
    for (size_t m = 0; m < 2 * p.pairs; m += 2) {
      even.add_products(x + m, h - m);
      odd.add_products(x + m + 1, h - m - 1);
    }
    if (p.ends)
      even.add(odd);
    else
      odd.store_to(odd_ + i);
    if (p.odd) even.add_products(x + 2 * p.pairs, h - 2 * p.pairs);
    even.store_to(even_ + i);
  }
  void add_one(const tap_panel<T>& p, size_t i) {
    const auto product = [&](size_t m) { return product_of<T>::one(samples_[i + m], peek(p.h - m)); };
    S          even = p.begins ? S{} : even_[i], odd = p.begins ? S{} : odd_[i];
    for (size_t m = 0; m < 2 * p.pairs; m += 2) {
      even = plus(even, product(m));
      odd  = plus(odd, product(m + 1));
    }
    odd_[i] = odd;
    if (p.ends) even = plus(even, odd);
    if (p.odd) even = plus(even, product(2 * p.pairs));
    even_[i] = even;
  }

  alignas(16) S even_[at_once];
  alignas(16) S odd_[at_once];
  alignas(16) T samples_[panel + at_once];
};

}  // namespace tav::TAV_VARIANT::fir
