// Sums of products of floats, as reductions. Nothing is conjugated.
//
// A complex product needs sums and differences. The lanes of a * b and those of a * (b with its parts exchanged) are
// summed apart, and only the totals are added and subtracted: the loop has no lanes of two kinds.
#pragma once
#include "stats/forms.h"
#include "stats/lane_sums.h"
#include "vector/forms.h"

namespace tav::TAV_VARIANT {

// clang-format off
TAV_INLINE __m128  low_lanes_twice(__m128 v)       { return _mm_unpacklo_ps(v, v); }
TAV_INLINE __m128d low_lanes_twice(__m128d v)      { return _mm_unpacklo_pd(v, v); }
TAV_INLINE __m128  high_lanes_twice(__m128 v)      { return _mm_unpackhi_ps(v, v); }
TAV_INLINE __m128d high_lanes_twice(__m128d v)     { return _mm_unpackhi_pd(v, v); }
TAV_INLINE Tav32fc parts_of_total(__m128 v)        { return sum_of_pairs(v); }
TAV_INLINE Tav64fc parts_of_total(__m128d v)       { return pair_of_lanes_64f(v); }
// clang-format on

template <class F> struct dot_of_reals : types<F, F, F> {
  using partial                       = reg<F>;
  static constexpr reduce_shape shape = {.step = lanes<F>};

  TAV_INLINE partial start() const { return partial{}; }
  TAV_INLINE void    many(partial& p, reg<F> a, reg<F> b) const { p += a * b; }
  TAV_INLINE void    join(partial& p, partial q) const { p += q; }
  TAV_INLINE F       total(partial p) const { return sum_of_lanes(p); }
  TAV_INLINE void    one(F& sum, F a, F b) const { sum += a * b; }
};

// Two partial results of two registers: four sums that do not wait for each other, and room for the products in the
// eight registers of 32-bit code.
template <class C> struct dot_of_pairs : types<C, C, C> {
  struct partial {
    reg<C> straight, crossed;
  };
  static constexpr reduce_shape shape = {.step = lanes<C>, .partials = 2};

  TAV_INLINE partial start() const { return partial{}; }

  TAV_INLINE void many(partial& p, reg<C> a, reg<C> b) const {
    p.straight += a * b;
    p.crossed += a * parts_exchanged(b);
  }

  TAV_INLINE void join(partial& p, const partial& q) const { p.straight += q.straight, p.crossed += q.crossed; }

  TAV_INLINE C total(const partial& p) const {
    const C straight = parts_of_total(p.straight), crossed = parts_of_total(p.crossed);
    return {straight.re - straight.im, crossed.re + crossed.im};
  }

  TAV_INLINE void one(C& sum, C a, C b) const {
    sum.re += a.re * b.re - a.im * b.im;
    sum.im += a.re * b.im + a.im * b.re;
  }
};

template <class C> struct dot_of_reals_and_pairs : types<part_of<C>, C, C> {
  using F                             = part_of<C>;
  using partial                       = reg<C>;
  static constexpr reduce_shape shape = {.step = lanes<F>};

  TAV_INLINE partial start() const { return partial{}; }

  TAV_INLINE void many(partial& p, reg<F> a, several<reg<C>, 2> b) const {
    p += low_lanes_twice(a) * b.r[0] + high_lanes_twice(a) * b.r[1];
  }

  TAV_INLINE void join(partial& p, partial q) const { p += q; }
  TAV_INLINE C    total(partial p) const { return parts_of_total(p); }
  TAV_INLINE void one(C& sum, F a, C b) const { sum.re += a * b.re, sum.im += a * b.im; }
};

// Singles that become doubles before they are multiplied. As many elements a step as the doubles take: conversions of
// whole registers of singles, with a shuffle for each upper half, take a tenth more time.
template <class F> struct single_of;
template <> struct single_of<Tav64f> { using type = Tav32f; };
template <> struct single_of<Tav64fc> { using type = Tav32fc; };

TAV_INLINE __m128d widened_singles(__m128 v, std::integral_constant<int, 8>) { return _mm_cvtps_pd(v); }
TAV_INLINE several<__m128d, 2> widened_singles(__m128 v, std::integral_constant<int, 16>) {
  return {{_mm_cvtps_pd(v), _mm_cvtps_pd(_mm_movehl_ps(v, v))}};
}
TAV_INLINE Tav64f  widened_single(Tav32f v) { return v; }
TAV_INLINE Tav64fc widened_single(Tav32fc v) { return {v.re, v.im}; }

template <class Op> struct dot_of_widened : Op {
  using src1 = typename single_of<typename Op::src1>::type;
  using src2 = typename single_of<typename Op::src2>::type;

  template <class S> static constexpr std::integral_constant<int, Op::shape.step* int(sizeof(S))> bytes{};

  TAV_INLINE void many(typename Op::partial& p, __m128 a, __m128 b) const {
    Op::many(p, widened_singles(a, bytes<src1>), widened_singles(b, bytes<src2>));
  }

  TAV_INLINE void one(typename Op::dst& sum, src1 a, src2 b) const {
    Op::one(sum, widened_single(a), widened_single(b));
  }
};

template <class Op> struct float_dot : Op {
  using typename Op::dst, typename Op::src1, typename Op::src2;

  TAV_INLINE static dst of(size_t len, const src1* a, const src2* b) { return reduce(Op{}, len, a, b); }
};

}  // namespace tav::TAV_VARIANT
