// Twiddle records that need no set-up: those of 16 and 32 points, and constants of the column pass.
#pragma once
#include "transform/fft/butterflies.h"

namespace tav::TAV_VARIANT::fft {

// The terms of a series that starts with x^n / n!.
constexpr long double series(long double x, long double first, int n) {
  long double sum = 0;
  for (long double term = first; n < 30; n += 2, term *= -x * x / ((n - 1) * n)) sum += term;
  return sum;
}

// cos(2 pi k / n), n a multiple of 8.
constexpr long double cosine_of(int k, int n) {
  constexpr long double turn = 6.28318530717958647692528676655900576839L;
  k %= n;
  if (2 * k > n) k = n - k;
  if (4 * k > n) return -cosine_of(n / 2 - k, n);
  if (8 * k <= n) return series(turn * k / n, 1, 0);
  return series(turn * (n / 4 - k) / n, turn * (n / 4 - k) / n, 1);
}

constexpr long double cosine_of_32(int k) { return cosine_of(k, 32); }

template <class T, int Records> struct record_table {
  T         values[Records * radix4_record<T>];
  constexpr operator const T*() const { return values; }
};

// The records of the radix-4 stage of that span: for L points at a time w^k, w^3k, w^2k.
template <class T, int Span> constexpr auto radix4_records() {
  constexpr int                        powers[3] = {1, 3, 2}, turn = 32 / Span;
  record_table<T, Span / 4 / lanes<T>> table{};
  T*                                   at = table.values;
  for (int k = 0; k < Span / 4; k += lanes<T>)
    for (int power : powers) {
      for (int l = 0; l < lanes<T>; ++l) *at++ = T(cosine_of_32((k + l) * power * turn));
      for (int l = 0; l < lanes<T>; ++l) *at++ = T(cosine_of_32((k + l) * power * turn + 8));
    }
  return table;
}

template <class T> alignas(64) inline constexpr auto record_of_16 = radix4_records<T, 16>();
template <class T> alignas(64) inline constexpr auto record_of_32 = radix4_records<T, 32>();

// A sixteenth of a turn.
template <class T> struct sixteenth {
  static constexpr T c = T(cosine_of(1, 16)), s = T(cosine_of(3, 16));
  alignas(16) static constexpr T cosine[4] = {c, c, c, c}, sine[4] = {s, s, s, s};
};

}  // namespace tav::TAV_VARIANT::fft
