// Look-ahead rows of a biquad section: what the samples x[n-2] ... x[n+3] and the outputs y[n-2], y[n-1] contribute to
// the four outputs y[n] ... y[n+3]. With them four outputs cost products and sums of whole registers, and the recursion
// takes one step in four samples.
//
// A row stands as registers, ready to be multiplied by a sample that fills a register. For complex types that is two
// rows: c for the sample's real part and i*c for its imaginary part. Registers that are zero, because a later sample
// does not reach back, are left out.
#pragma once
#include "filter/iir/samples.h"

namespace tav::TAV_VARIANT::iir {

inline constexpr int look_ahead   = 4;  // outputs at a time
inline constexpr int section_taps = 5;  // b0, b1, b2, a1, a2, normalised
inline constexpr int row_count    = 8;

enum row : int { row_x_2, row_x_1, row_x0, row_x1, row_x2, row_x3, row_y_2, row_y_1 };

template <class A> struct row_layout {
  static constexpr int registers = quad_registers<A>, samples = samples_per_register<A>;

  // The first register of a row that is not zero: x[n+1] does not reach y[n], and so on.
  static constexpr int first(int row) { return row > row_x0 && row <= row_x3 ? (row - row_x0) / samples : 0; }

  static constexpr int stored(int row) { return parts<A> * (registers - first(row)); }
  static constexpr int begin(int row) { return row == 0 ? 0 : begin(row - 1) + stored(row - 1); }
  static constexpr int index(int row, int part, int reg) {
    return begin(row) + part * (registers - first(row)) + reg - first(row);
  }
};

template <class A> struct alignas(16) section_rows {
  using layout               = row_layout<A>;
  static constexpr int count = layout::begin(row_count);  // registers
  A                    entry[count * layout::samples];

  const A* at(int row, int part, int reg) const { return entry + layout::index(row, part, reg) * layout::samples; }
};

template <class A> void store_row(section_rows<A>& rows, int row, const A (&c)[look_ahead]) {
  using layout = row_layout<A>;
  for (int part = 0; part < parts<A>; ++part)
    for (int k = layout::first(row) * layout::samples; k < look_ahead; ++k) {
      A& to = rows.entry[layout::index(row, part, k / layout::samples) * layout::samples + k % layout::samples];
      to    = c[k];
      if constexpr (is_complex<A>)
        if (part == 1) to = {-c[k].im, c[k].re};
    }
}

template <class A> void make_rows(section_rows<A>& rows, const A* taps) {
  const A b0 = taps[0], b1 = taps[1], b2 = taps[2], alpha = negated(taps[3]), beta = negated(taps[4]), zero{};

  const A b2a = times(b2, alpha), b2aa = plus(times(b2a, alpha), times(b2, beta));
  store_row(rows, row_x_2, {b2, b2a, b2aa, plus(times(b2a, beta), times(b2aa, alpha))});
  const A p = plus(times(b1, alpha), b2), q = plus(times(b1, beta), times(alpha, p));
  store_row(rows, row_x_1, {b1, p, q, plus(times(p, beta), times(q, alpha))});
  const A s = plus(times(b0, alpha), b1), t = plus(plus(b2, times(b0, beta)), times(alpha, s));
  store_row(rows, row_x0, {b0, s, t, plus(times(beta, s), times(alpha, t))});
  store_row(rows, row_x1, {zero, b0, s, t});
  store_row(rows, row_x2, {zero, zero, b0, s});
  store_row(rows, row_x3, {zero, zero, zero, b0});

  const A ab = times(alpha, beta), u = plus(times(beta, beta), times(ab, alpha));
  store_row(rows, row_y_2, {beta, ab, u, plus(times(ab, beta), times(u, alpha))});
  const A v = plus(times(alpha, alpha), beta), w = times(plus(beta, v), alpha);
  store_row(rows, row_y_1, {alpha, v, w, plus(times(beta, v), times(alpha, w))});
}

}  // namespace tav::TAV_VARIANT::iir
