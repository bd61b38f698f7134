// The kernels of a filter of arbitrary order. With N the order, b and a the taps of a record:
//
//   numerator    w[j] = sum of b[k] x[j+N-k], k from 0 to N, without the delay line
//   recursion    y[j] = w[j] - sum of a[k] y[j-k], four outputs at a time with the look-ahead table
//   delay line   its part of the inputs, then its part of the outputs
//
// Orders 1 to 3 have loops of their own, Order in the templates; 0 is any other. From 4 on that gains nothing.
#pragma once
#include "filter/iir/ar_tables.h"

namespace tav::TAV_VARIANT::iir {

template <int Registers, bool First, class A>
TAV_INLINE void add_weighted(reg<A> (&direct)[Registers], reg<A> (&cross)[Registers], const A* table, const A* x) {
  const factor<A> f(table);
#pragma GCC unroll 4
  for (int g = 0; g < Registers; ++g) {
    const reg<A> v = load_register(x + g * samples_per_register<A>), product = v * f.re;
    direct[g] = First ? product : direct[g] + product;
    if constexpr (is_complex<A>) cross[g] = First ? v * f.im : cross[g] + v * f.im;
  }
}

// Registers' worth of w; `newest` is the source sample that meets b[0] for the first. The cross products of complex
// samples are summed by themselves, so that their parts are exchanged once.
template <int Registers, class A> TAV_INLINE void weighted_sums(const A* factors, size_t order, const A* newest, A* w) {
  reg<A> direct[Registers], cross[Registers];
  add_weighted<Registers, true>(direct, cross, factors, newest);
  const auto add = [&](size_t k) __attribute__((always_inline)) {
    add_weighted<Registers, false>(direct, cross, factors + k * factor<A>::samples, newest - k);
  };
  if constexpr (samples_per_register<A> == 1) {  // unrolled, samples would stay in the registers that the sums need
    for (size_t k = 1; k <= order; ++k) add(k);
  } else {
#pragma GCC unroll 4
    for (size_t k = 1; k <= order; ++k) add(k);
  }
#pragma GCC unroll 4
  for (int g = 0; g < Registers; ++g) {
    if constexpr (is_complex<A>) direct[g] -= parts_exchanged(cross[g]);
    store_register(w + g * samples_per_register<A>, direct[g]);
  }
}

// count is at least a register's worth; the last one overlaps what has been done.
template <int Order, class A> void numerator(const A* factors, size_t any_order, const A* x, A* w, size_t count) {
  constexpr int    at_once = is_complex<A> ? 2 : 4;  // registers
  constexpr size_t single = samples_per_register<A>, many = at_once * single;
  const size_t     order = Order == 0 ? any_order : Order;
  size_t           j     = 0;
  for (; j + many <= count; j += many) weighted_sums<at_once>(factors, order, x + order + j, w + j);
  for (; j + single <= count; j += single) weighted_sums<1>(factors, order, x + order + j, w + j);
  if (j < count) weighted_sums<1>(factors, order, x + order + count - single, w + count - single);
}

template <class A> TAV_INLINE quad<A> product(const A* row, reg<A> by) {
  quad<A> v;
#pragma GCC unroll 4
  for (int q = 0; q < quad_registers<A>; ++q) v.r[q] = load_aligned(row + q * samples_per_register<A>) * by;
  return v;
}

template <class A> TAV_INLINE void add(quad<A>& sum, quad<A> v) {
  constexpr int registers = quad_registers<A>;
#pragma GCC unroll 4
  for (int q = 0; q < registers; ++q) sum.r[q] += v.r[q];
}

// What the inputs w of four outputs count in the outputs behind each.
template <int T, class A> TAV_INLINE void add_tail(quad<A>& sum, quad<A> w, const A* tail) {
  const factor<A> f(tail + T * factor<A>::samples);
  const quad<A>   later = delayed<T + 1, A>(w);
#pragma GCC unroll 4
  for (int q = (T + 1) / samples_per_register<A>; q < quad_registers<A>; ++q) sum.r[q] += f * later.r[q];
}

// The outputs before the last four, which memory holds. The oldest come first: the sum must not wait for the newest.
template <class A> TAV_INLINE void add_older(quad<A>& sum, const A* rows, size_t order, const A* y) {
  for (size_t i = order; i-- > 4;) {
    const A* const row  = rows + i * row_samples<A>;
    const A        past = peek(y - 1 - i);
    if constexpr (is_complex<A>) {
      add<A>(sum, product(row, all_lanes(past.re)));
      add<A>(sum, product(row + 4, all_lanes(past.im)));
    } else {
      add<A>(sum, product(row, all_lanes(past)));
    }
  }
}

// Row M of parts, those of the newest output first, into one of two sums, which halve the way from output to output.
template <int M, class A> TAV_INLINE void add_part_of_last(quad<A>& sum, quad<A>& other, const A* rows, quad<A> last) {
  constexpr int k = (3 - M / parts<A>)*parts<A> + M % parts<A>;
  const quad<A> v = product(rows + M * 4, all_of<k>(last));
  if constexpr (M == 1)
    other = v;
  else
    add<A>(M % 2 == 1 ? other : sum, v);
}

template <class A, int... M>
TAV_INLINE void add_last(quad<A>& sum, quad<A>& other, const A* rows, quad<A> last, std::integer_sequence<int, M...>) {
  (add_part_of_last<M>(sum, other, rows, last), ...);
}

// Four outputs from their inputs and the last four outputs.
template <int Order, class A>
TAV_INLINE quad<A> next_outputs(const A* rows, size_t order, quad<A> w, quad<A> last, const A* y) {
  constexpr int  known = (Order == 0 ? 4 : Order) * parts<A>;
  const A* const tail  = tail_of(rows, order);
  quad<A>        sum   = w, other;
  add_tail<0>(sum, w, tail);
  add_tail<1>(sum, w, tail);
  add_tail<2>(sum, w, tail);
  if constexpr (Order == 0) add_older(sum, rows, order, y);
  add_last(sum, other, rows, last, std::make_integer_sequence<int, known>{});
  if constexpr (known > 1) add<A>(sum, other);
  return sum;
}

// The outputs y[0] to y[n-1]; y[-N] to y[-1] are known.
template <int Order, class A> void recursion(const A* rows, size_t any_order, const A* w, A* y, size_t n) {
  const size_t order = Order == 0 ? any_order : Order;
  A            padded[4]{};
  for (size_t i = 0; i < 4 && i < order; ++i) padded[3 - i] = peek(y - 1 - i);
  quad<A> last = load_quad(padded);
  for (; n >= 4; n -= 4, w += 4, y += 4) {
    last = next_outputs<Order>(rows, order, load_quad(w), last, y);
    store_quad(y, last);
  }
  if (n == 0) return;
  for (size_t j = 0; j < n; ++j) padded[j] = w[j];
  store_quad(padded, next_outputs<Order>(rows, order, load_quad(padded), last, y));
  for (size_t j = 0; j < n; ++j) poke(y + j, padded[j]);
}

// One sample by the definition. The entry behind the last of the delay line stays 0.
template <class A> A ar_sample(iir_record<A>& r, A x) {
  const size_t   order = size_t(r.delay_len);
  const A *const b = r.taps, *const a = r.taps + order + 1;
  A* const        d = r.delay;
  const A         y = plus(times(b[0], x), d[0]);
  const factor<A> in(x), out(y);
  size_t          i = 0;
  for (constexpr size_t step = samples_per_register<A>; i + step <= order; i += step)
    store_register(d + i, in * load_register(b + i + 1) - out * load_register(a + i) + load_register(d + i + 1));
  for (; i < order; ++i) d[i] = plus(minus(times(b[i + 1], x), times(a[i], y)), d[i + 1]);
  return y;
}

// sum of taps[k] v[i-k] for k from i+1 to N, v counted from behind the last sample. taps[0] belongs to k = 1.
template <class A> A part_of_delay(const A* taps, size_t order, size_t i, const A* v) {
  A sum = times(taps[i], peek(v - 1));
  for (size_t k = i + 2; k <= order; ++k) sum = plus(sum, times(taps[k - 1], peek(v + i - k)));
  return sum;
}

}  // namespace tav::TAV_VARIANT::iir
