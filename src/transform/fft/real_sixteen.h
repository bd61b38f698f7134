// Real transforms of 16 samples, on vectors of four whatever the type: less error than the complex transform of 8
// points and its recombination have, and all in registers.
//
// Even bins are those of the sums of samples n and n + 8, a real transform of 8. Of the differences d, with
// W = exp(-2 pi i / 16), the transform of the four points W^n (d[n] - i d[n+4]) has bins 1, 5, 9, 13: the last two are
// conjugates of bins 7 and 3.
#pragma once
#include "frame/registers.h"
#include "transform/fft/constant_records.h"

namespace tav::TAV_VARIANT::fft {

// Any four elements of two registers.
#define TAV_PICK(a, b, ...) __builtin_shufflevector(a, b, __VA_ARGS__)

struct sixteenths {  // cos and sin of 2 pi n / 16
  static constexpr float  h = constants<float>::h;
  static constexpr __m128 cosine{1, float(cosine_of(1, 16)), h, float(cosine_of(3, 16))};
  static constexpr __m128 sine{0, float(cosine_of(3, 16)), h, float(cosine_of(1, 16))};
};

template <bool Scaled> void put_sixteen(float* dst, __m128 a, __m128 b, __m128 c, __m128 d, const float* scale) {
  const result<pairs<float>, false, Scaled> out{{dst}, scale};
  out.put_columns(0, a), out.put_columns(2, b), out.put_columns(4, c), out.put_columns(6, d);
}

template <bool Scaled> void sixteen_forward(const float* src, float* dst, const float* scale) {
  using V    = __m128;
  using w    = sixteenths;
  const V x0 = read(src), x1 = read(src + 4), x2 = read(src + 8), x3 = read(src + 12);
  const V d0 = x0 - x2, d1 = x1 - x3;
  const V re = d0 * w::cosine - d1 * w::sine, im = -(d0 * w::sine + d1 * w::cosine);
  const V front = TAV_PICK(re, im, 0, 1, 4, 5), back = TAV_PICK(re, im, 2, 3, 6, 7);
  const V sums = front + back, differences = front - back;
  const V a = TAV_PICK(sums, differences, 0, 2, 4, 6), b = TAV_PICK(sums, differences, 1, 3, 7, 5) * V{1, 1, 1, -1};
  const V bins1_5 = a + b, bins7_3 = (a - b) * V{1, -1, 1, -1};

  const V s0 = x0 + x2, s1 = x1 + x3, even = s0 + s1, odd = s0 - s1;
  const V mirrored = TAV_PICK(even, even, 2, 3, 0, 1), t = even + mirrored, u = even - mirrored;
  const V ends    = TAV_PICK(t, t, 0, 0, 0, 0) + TAV_PICK(t, t, 1, 1, 1, 1) * V{1, -1, 1, -1};
  const V bins0_4 = TAV_PICK(ends, u, 0, 1, 4, 5) * V{1, 1, 1, -1};
  const V turned  = TAV_PICK(odd, odd, 1, 1, 1, 1) + TAV_PICK(odd, odd, 3, 3, 3, 3) * V{-1, 1, -1, 1};
  const V bins2_6 = TAV_PICK(odd, odd, 0, 2, 0, 2) * V{1, -1, 1, 1} + turned * V{w::h, -w::h, -w::h, -w::h};
  put_sixteen<Scaled>(dst, TAV_PICK(bins0_4, bins1_5, 0, 1, 4, 5), TAV_PICK(bins2_6, bins7_3, 0, 1, 6, 7),
                      TAV_PICK(bins0_4, bins1_5, 2, 3, 6, 7), TAV_PICK(bins2_6, bins7_3, 2, 3, 4, 5), scale);
}

// The same backwards, each step with twice its values.
template <bool Scaled> void sixteen_inverse(const half_spectrum<float>& src, float* dst, const float* scale) {
  using V         = __m128;
  using w         = sixteenths;
  const V bins1_2 = read(src.bins), bins3_4 = read(src.bins + 4), bins5_6 = read(src.bins + 8),
          bins6_7 = read(src.bins + 10);
  const V a = TAV_PICK(bins1_2, bins5_6, 0, 1, 4, 5), b = TAV_PICK(bins6_7, bins3_4, 2, 3, 4, 5) * V{1, -1, 1, -1};
  const V sums = a + b, differences = a - b;
  const V re = TAV_PICK(sums, differences, 0, 4, 0, 4) + TAV_PICK(sums, differences, 2, 7, 2, 7) * V{1, -1, -1, 1};
  const V im = TAV_PICK(sums, differences, 1, 5, 1, 5) + TAV_PICK(sums, differences, 3, 6, 3, 6) * V{1, 1, -1, -1};
  const V d0 = 2 * (re * w::cosine - im * w::sine), d1 = -2 * (re * w::sine + im * w::cosine);

  const V ends = _mm_set1_ps(src.first) + _mm_set1_ps(src.middle) * V{1, -1, 1, -1};
  const V even = ends + TAV_PICK(bins3_4, bins3_4, 2, 3, 2, 3) * V{2, -2, -2, 2};
  const V both = TAV_PICK(bins1_2, bins5_6, 2, 3, 6, 7), mirrored = TAV_PICK(both, both, 2, 3, 0, 1);
  const V t = both + mirrored, u = both - mirrored;
  const V turned   = TAV_PICK(u, u, 0, 0, 0, 0) + TAV_PICK(t, t, 1, 1, 1, 1) * V{-1, 1, -1, 1};
  const V straight = TAV_PICK(t, u, 0, 5, 0, 5) * V{2, -2, 2, -2};
  const V odd      = TAV_PICK(straight, turned * V{2 * w::h, -2 * w::h, 0, 0}, 0, 4, 1, 5);
  const V s0 = even + odd, s1 = even - odd;
  put_sixteen<Scaled>(dst, s0 + d0, s1 + d1, s0 - d0, s1 - d1, scale);
}
#undef TAV_PICK

// Doubles: a register holds a point.
struct points_of_sixteen {
  using V = __m128d;

  static constexpr double c = double(cosine_of(1, 16)), s = double(cosine_of(3, 16)), h = constants<double>::h;
  static constexpr V      conjugate{1, -1};

  TAV_INLINE static V low(V a, V b) { return _mm_unpacklo_pd(a, b); }
  TAV_INLINE static V high(V a, V b) { return _mm_unpackhi_pd(a, b); }
  TAV_INLINE static V sum_and_difference(V v) { return low(v, v) + high(v, v) * conjugate; }
  TAV_INLINE static V difference_and_sum(V v) { return low(v, v) - high(v, v) * conjugate; }
};

template <bool Scaled> void sixteen_forward(const double* src, double* dst, const double* scale) {
  using of = points_of_sixteen;
  using V  = of::V;
  const result<pairs<double>, false, Scaled> out{{dst}, scale};

  V sums[4], points[4];  // of samples n and n + 8; W^n (d[n] - i d[n+4])
#pragma GCC unroll 2
  for (int n = 0; n < 2; ++n) {
    const V x0 = read(src + 2 * n), x1 = read(src + 4 + 2 * n), x2 = read(src + 8 + 2 * n), x3 = read(src + 12 + 2 * n);
    const V d0 = x0 - x2, d1 = x3 - x1;
    sums[n] = x0 + x2, sums[n + 2] = x1 + x3;
    points[2 * n] = of::low(d0, d1), points[2 * n + 1] = of::high(d0, d1);
  }
  points[1]  = points[1] * V{of::c, of::c} + parts_exchanged(points[1]) * V{of::s, -of::s};
  points[2]  = (points[2] + parts_exchanged(points[2]) * of::conjugate) * V{of::h, of::h};
  points[3]  = points[3] * V{of::s, of::s} + parts_exchanged(points[3]) * V{of::c, -of::c};
  const V s0 = points[0] + points[2], d0 = points[0] - points[2];
  const V s1 = points[1] + points[3], d1 = parts_exchanged(points[1] - points[3]) * of::conjugate;
  out.put_columns(1, s0 + s1), out.put_columns(7, (s0 - s1) * of::conjugate);
  out.put_columns(5, d0 + d1), out.put_columns(3, (d0 - d1) * of::conjugate);

  const V e0 = sums[0] + sums[2], e1 = sums[1] + sums[3], o0 = sums[0] - sums[2], o1 = sums[1] - sums[3];
  out.put_columns(0, of::sum_and_difference(e0 + e1));
  out.put_columns(4, (e0 - e1) * of::conjugate);
  const V straight = of::low(o0, o1), turned = of::difference_and_sum(of::high(o0, o1)) * V{of::h, of::h};
  out.put_columns(2, (straight + turned) * of::conjugate);
  out.put_columns(6, straight - turned);
}

template <bool Scaled> void sixteen_inverse(const half_spectrum<double>& src, double* dst, const double* scale) {
  using of = points_of_sixteen;
  using V  = of::V;
  const result<pairs<double>, false, Scaled> out{{dst}, scale};
  const auto                                 bin = [&src](int k) { return read(src.bins + 2 * (k - 1)); };

  const V bin7 = bin(7) * of::conjugate, bin3 = bin(3) * of::conjugate;
  const V s0 = bin(1) + bin7, d0 = bin(1) - bin7, s1 = bin(5) + bin3, d1 = parts_exchanged(bin(5) - bin3) * V{-1, 1};
  const V p0 = (s0 + s1) * V{2, 2}, p2 = s0 - s1, p1 = d0 + d1, p3 = d0 - d1;
  const V q1 = p1 * V{2 * of::c, 2 * of::c} + parts_exchanged(p1) * V{-2 * of::s, 2 * of::s};
  const V q2 = (p2 - parts_exchanged(p2) * of::conjugate) * V{2 * of::h, 2 * of::h};
  const V q3 = p3 * V{2 * of::s, 2 * of::s} + parts_exchanged(p3) * V{-2 * of::c, 2 * of::c};
  const V a0 = of::low(p0, q1), a1 = of::low(q2, q3), b0 = of::high(p0, q1), b1 = of::high(q2, q3);

  const V ends = of::sum_and_difference(V{src.first, src.middle}), twice4 = bin(4) * V{2, -2};
  const V e0 = ends + twice4, e1 = ends - twice4;
  const V sum = bin(2) + bin(6), difference = bin(2) - bin(6);
  const V turned   = (of::low(difference, difference) - of::high(sum, sum) * of::conjugate) * V{2 * of::h, -2 * of::h};
  const V straight = _mm_shuffle_pd(sum, difference, 2) * V{2, -2};
  const V o0 = of::low(straight, turned), o1 = of::high(straight, turned);
  const V x0 = e0 + o0, x1 = e1 + o1, x2 = e0 - o0, x3 = e1 - o1;
  out.put_columns(0, x0 + a0), out.put_columns(1, x1 + a1), out.put_columns(2, x2 - b0), out.put_columns(3, x3 - b1);
  out.put_columns(4, x0 - a0), out.put_columns(5, x1 - a1), out.put_columns(6, x2 + b0), out.put_columns(7, x3 + b1);
}

}  // namespace tav::TAV_VARIANT::fft
