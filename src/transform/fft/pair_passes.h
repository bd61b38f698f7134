// Transforms of 16 to 256 doubles in two passes over rows of pairs, where a register is a point and nothing is ever
// transposed. A block of memory between the passes lets dst be src, and puts the results into natural order.
//
// Shuffles take the adders' time, so the passes do without them wherever they can: a turned point is made of its two
// parts, each loaded into both lanes, and the rows are combined by real factors first.
#pragma once
#include "transform/fft/first_pass.h"

namespace tav::TAV_VARIANT::fft {

// The sums of row r and the one half the rows below, as 8 or 16 rows of their own; the differences are kept.
template <int Radix, class Rows> struct folded_rows {
  const Rows& rows;
  double*     differences;

  TAV_INLINE __m128d sum(int r) const {
    __m128d a, b;
    rows.two(r, a, b);
    write(differences + 2 * r, a - b);
    return a + b;
  }
  template <class V> TAV_INLINE void two(int r, V& low, V& high) const { low = sum(r), high = sum(r + Radix / 2); }
};

// The odd results of sixteen rows from those differences: 1 and 15, 3 and 13 ... are R -+ iI, with R and I by real
// factors.
TAV_INLINE void odd_of_16(const double* differences, __m128d* y) {
  using w               = sixteenth<double>;
  const auto difference = [=](int j) __attribute__((always_inline)) { return read(differences + 2 * j); };
  const auto turn       = [](__m128d v) __attribute__((always_inline)) { return turned<false, double>(v); };

  const __m128d d1 = difference(1), d7 = difference(7), m1 = d1 - d7, p1 = d1 + d7;
  const __m128d d3 = difference(3), d5 = difference(5), m3 = d3 - d5, p3 = d3 + d5;
  const __m128d g = times(p1, w::sine) + times(p3, w::cosine), l = times(p1, w::cosine) - times(p3, w::sine);
  const __m128d a = times(m1, w::cosine) + times(m3, w::sine), b = times(m1, w::sine) - times(m3, w::cosine);
  const __m128d d2 = difference(2), d6 = difference(6);
  const __m128d m2 = times(d2 - d6, constants<double>::half_root), p2 = times(d2 + d6, constants<double>::half_root);
  const __m128d d4 = difference(4), e = d4 + p2, f = d4 - p2;
  const __m128d i1 = turn(g + e), i7 = turn(g - e), i3 = turn(l - f), i5 = turn(l + f);
  const __m128d d0 = difference(0), u = d0 + m2, v = d0 - m2;
  const __m128d r1 = u + a, r7 = u - a, r3 = v + b, r5 = v - b;
  y[0] = r1 + i1, y[7] = r1 - i1, y[1] = r3 + i3, y[6] = r3 - i3;
  y[2] = r5 + i5, y[5] = r5 - i5, y[3] = r7 + i7, y[4] = r7 - i7;
}

// The turns of a second pass: for each column k = 1 ... A - 1 and row j = 1 ... B - 1 what the real part of a point is
// multiplied by, then what the imaginary part is.
template <int A, int B> struct turn_table {
  double values[(A - 1) * (B - 1) * 4];
  constexpr turn_table() : values{} {
    double* at = values;
    for (int k = 1; k < A; ++k)
      for (int j = 1; j < B; ++j) {
        const double c = double(cosine_of(j * k, A * B)), s = double(cosine_of(j * k + 3 * A * B / 4, A * B));
        *at++ = c, *at++ = -s, *at++ = s, *at++ = c;
      }
  }
};
template <int A, int B> alignas(64) inline constexpr turn_table<A, B> turns_of{};

// Rows of a block, `Apart` points from one to the next, turned but for the first.
template <int Apart, int Radix> struct turned_rows {
  const double *block, *turns;

  TAV_INLINE __m128d row(int j) const {
    const double* const at = block + 2 * Apart * j;
    if (j == 0) return read(at);
    const double* const w = turns + 4 * (j - 1);
    return times(read_twice(at), w) + times(read_twice(at + 1), w + 2);
  }
  template <class V> TAV_INLINE void two(int r, V& low, V& high) const { low = row(r), high = row(r + Radix / 2); }
};

// Radix 4, 8, 16 or 32 over rows; result k goes to point place(k) of out.
template <int Radix, class Rows, class Out, class Place>
TAV_INLINE void over_rows(const Rows& rows, Out out, const Place& place) {
  __m128d y[8];
  if constexpr (Radix == 4) {
    rows4<false, double>(rows, 0, 1, y);
#pragma GCC unroll 4
    for (int k = 0; k < 4; ++k) out.put_columns(place(k), y[k]);
  } else if constexpr (Radix == 8) {
    rows8<false, double>(rows, y);
#pragma GCC unroll 8
    for (int k = 0; k < 8; ++k) out.put_columns(place(k), y[k]);
  } else {
    constexpr int      half = Radix / 2;
    alignas(16) double differences[Radix];
    over_rows<half>(folded_rows<half, Rows>{rows, differences}, out, [&](int k) { return place(2 * k); });
    if constexpr (Radix == 16) {
      odd_of_16(differences, y);
#pragma GCC unroll 8
      for (int k = 0; k < 8; ++k) out.put_columns(place(2 * k + 1), y[k]);
    } else {
      over_rows<16>(turned_rows<1, 16>{differences, turns_of<2, 16>.values}, out,
                    [&](int k) { return place(2 * k + 1); });
    }
  }
}

// The inverse transform is the forward one with its results in reverse order, the first excepted.
template <bool Inverse, int A, int B, class Src, class Out> TAV_INLINE void two_passes(Src src, Out out) {
  alignas(64) double  block[2 * A * B];
  const pairs<double> inner{block};
#pragma GCC unroll 1
  for (int j = 0; j < B; ++j) over_rows<A>(distant_rows<Src, A>{src + j, B}, inner + j * A, [](int k) { return k; });

  over_rows<B>(distant_rows<pairs<double>, B>{inner, A}, out, [](int q) { return A * (Inverse ? (B - q) % B : q); });
  const double* turns = turns_of<A, B>.values;
#pragma GCC unroll 1
  for (int k = 1; k < A; ++k, turns += 4 * (B - 1))
    over_rows<B>(turned_rows<A, B>{block + 2 * k, turns}, out + (Inverse ? A - k : k),
                 [](int q) { return A * (Inverse ? B - 1 - q : q); });
}

// 2^Order doubles.
template <bool Inverse, int Order, class Src, class Out> __attribute__((noinline)) void pair_passes(Src src, Out out) {
  constexpr int size  = 1 << Order;
  const auto    place = [](int k) { return Inverse ? (size - k) % size : k; };
  if constexpr (Order < 6) over_rows<size>(distant_rows<Src, size>{src, 1}, out, place);
  if constexpr (Order == 6) two_passes<Inverse, 8, 8>(src, out);
  if constexpr (Order == 7) two_passes<Inverse, 16, 8>(src, out);
  if constexpr (Order == 8) two_passes<Inverse, 16, 16>(src, out);
}

}  // namespace tav::TAV_VARIANT::fft
