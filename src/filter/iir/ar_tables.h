// The taps of a filter of arbitrary order N and the tables made of them.
//
//   numerator    a factor for each of b[0] to b[N]
//   look-ahead   N rows of four: how y[n-i] counts in the outputs y[n+1] to y[n+4]; then three factors
//
// With c[k] = -a[k], an input w[n+1+t] of the recursive part counts in y[n+2+t+j] with the weight that y[n] has in
// y[n+1+j]: the first three weights of row 0 are the three factors behind the rows. For complex samples a row is two:
// of the weights, for real parts, and of i times the weights, for imaginary parts.
#pragma once
#include "filter/iir/samples.h"

namespace tav::TAV_VARIANT::iir {

template <class A> inline constexpr size_t row_samples  = 4 * parts<A>;
template <class A> inline constexpr size_t tail_factors = 3;

template <class A> const A* tail_of(const A* look_ahead, size_t order) { return look_ahead + order * row_samples<A>; }

template <class A> TAV_INLINE A times_i(A v) { return {-v.im, v.re}; }

// Divides by a[0]: b[0] ... b[N], then a[1] ... a[N].
template <class A> TavStatus normalise(const A* taps, size_t order, A* out) {
  const A leading = peek(taps + order + 1);
  if (is_zero(leading)) return tavStatusDivideByZero;
  const A by = reciprocal(leading);
  for (size_t k = 0; k <= order; ++k) out[k] = times(peek(taps + k), by);
  for (size_t k = 1; k <= order; ++k) out[order + k] = times(peek(taps + order + 1 + k), by);
  return tavStatusOk;
}

// The weights of a row of four: y[n-i] counts in y[n+1+j] by its own tap, and by way of the outputs between.
template <class A> void look_ahead_weights(const A* a, size_t order, size_t i, A* row) {
  const auto c = [&](size_t k) { return negated(a[k - 1]); };
  row[0]       = c(i + 1);
  for (size_t j = 1; j < 4; ++j) {
    A sum = times(c(1), row[j - 1]);
    for (size_t k = 2; k <= j && k <= order; ++k) sum = plus(sum, times(c(k), row[j - k]));
    row[j] = i + j < order ? plus(sum, c(i + j + 1)) : sum;
  }
}

template <class A> void make_look_ahead(const A* a, size_t order, A* table) {
  for (size_t i = 0; i < order; ++i) {
    A* const row = table + i * row_samples<A>;
    look_ahead_weights(a, order, i, row);
    if constexpr (is_complex<A>)
      for (size_t j = 0; j < 4; ++j) row[4 + j] = times_i(row[j]);
  }
  A* const tail = table + order * row_samples<A>;
  for (size_t t = 0; t < tail_factors<A>; ++t) factor(table[t]).store(tail + t * factor<A>::samples);
}

template <class A> TavStatus set_ar_taps(iir_record<A>& r, const A* taps) {
  const size_t order = size_t(r.delay_len);
  if (const TavStatus bad = normalise(taps, order, r.taps)) return bad;
  for (size_t k = 0; k <= order; ++k) factor(r.taps[k]).store(r.numerator + k * factor<A>::samples);
  make_look_ahead(r.taps + order + 1, order, r.look_ahead);
  return tavStatusOk;
}

}  // namespace tav::TAV_VARIANT::iir
