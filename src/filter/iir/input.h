// The way in of the mixed forms: samples of another type as samples of the arithmetic type. All are exact.
#pragma once
#include "filter/iir/traits.h"
#include "vector/convert_to_float.h"

namespace tav::TAV_VARIANT::iir {

struct singles_as_doubles : types<Tav32f, Tav32f, Tav64f> {
  static constexpr kernel_shape shape{.round_bytes = 32, .step = 4};

  static Tav64f              one(Tav32f a) { return a; }
  static several<__m128d, 2> many(__m128 v) { return {{_mm_cvtps_pd(v), _mm_cvtps_pd(_mm_movehl_ps(v, v))}}; }
};

template <class S, class F> struct widening_row { using op = to_floats<S, F>; };
template <> struct widening_row<Tav32f, Tav64f> { using op = singles_as_doubles; };

template <class D, class A> void widen(const D* src, A* dst, size_t n) {
  using op = typename widening_row<part<D>, part<A>>::op;
  elementwise(op{}, reinterpret_cast<part<A>*>(dst), n * parts<D>, reinterpret_cast<const part<D>*>(src));
}

template <class A, class D> A widened(D v) {
  if constexpr (is_complex<D>)
    return {part<A>(v.re), part<A>(v.im)};
  else
    return A(v);
}

}  // namespace tav::TAV_VARIANT::iir
