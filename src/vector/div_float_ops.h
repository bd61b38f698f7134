// Quotients of floats, real and complex. The divisor is the first operand. All run to nearest with exceptions masked,
// so that a zero divisor, which they only remember, never traps.
#pragma once
#include "frame/rounding.h"
#include "vector/forms.h"

namespace tav::TAV_VARIANT {

template <class Op>
TavStatus divided(const typename Op::src1* src1, const typename Op::src2* src2, typename Op::dst* dst, int len) {
  if (const TavStatus bad = check_vector(len, src1, src2, dst)) return bad;
  const round_to_nearest_masked scope;
  return elementwise(Op{}, dst, size_t(len), src1, src2);
}

struct quotients_32f : types<Tav32f, Tav32f, Tav32f> {
  static constexpr kernel_shape shape{.round_bytes = 32, .stream_above = 0x2AAA};

  __m128 zeros = _mm_setzero_ps();

  TAV_INLINE Tav32f one(Tav32f b, Tav32f a) { return _mm_cvtss_f32(many(_mm_set1_ps(b), _mm_set1_ps(a))); }
  TAV_INLINE __m128 many(__m128 b, __m128 a) {
    zeros = _mm_or_ps(zeros, _mm_cmpeq_ps(b, _mm_setzero_ps()));
    return _mm_div_ps(a, b);
  }
  TavStatus status() const { return _mm_movemask_ps(zeros) != 0 ? tavStatusWarnDivideByZero : tavStatusOk; }
};

// Remembers zeros among divisors in double precision.
struct zeros_in_double {
  __m128d zeros = _mm_setzero_pd();

  TavStatus status() const { return _mm_movemask_pd(zeros) != 0 ? tavStatusWarnDivideByZero : tavStatusOk; }
};

struct quotients_64f : types<Tav64f, Tav64f, Tav64f>, zeros_in_double {
  static constexpr kernel_shape shape{.round_bytes = 32};

  TAV_INLINE Tav64f  one(Tav64f b, Tav64f a) { return _mm_cvtsd_f64(many(_mm_set1_pd(b), _mm_set1_pd(a))); }
  TAV_INLINE __m128d many(__m128d b, __m128d a) {
    zeros = _mm_or_pd(zeros, _mm_cmpeq_pd(b, _mm_setzero_pd()));
    return _mm_div_pd(a, b);
  }
};

// (ar + i ai) / (br + i bi) = (ar br + ai bi + i (ai br - ar bi)) / (br^2 + bi^2), one element at a time. Over a zero
// divisor each part of the dividend is divided by +0.
struct complex_quotient : zeros_in_double {
  TAV_INLINE __m128d of(__m128d b, __m128d a) {
    const __m128d swapped = parts_exchanged(a), opposite = _mm_setr_pd(0.0, -0.0);
    const __m128d numerator = _mm_add_pd(_mm_mul_pd(a, _mm_unpacklo_pd(b, b)),
                                         _mm_xor_pd(_mm_mul_pd(swapped, _mm_unpackhi_pd(b, b)), opposite));
    const __m128d squares = _mm_mul_pd(b, b), zero_parts = _mm_cmpeq_pd(b, _mm_setzero_pd());
    const __m128d zero = _mm_and_pd(zero_parts, parts_exchanged(zero_parts));
    zeros              = _mm_or_pd(zeros, zero);
    return _mm_div_pd(_mm_or_pd(_mm_and_pd(zero, a), _mm_andnot_pd(zero, numerator)),
                      _mm_add_pd(squares, parts_exchanged(squares)));
  }
};

struct quotients_64fc : types<Tav64fc, Tav64fc, Tav64fc>, complex_quotient {
  static constexpr kernel_shape shape{.round_bytes = 16};

  TAV_INLINE Tav64fc one(Tav64fc b, Tav64fc a) {
    Tav64fc q;
    store<access::unaligned>(&q, of(_mm_setr_pd(b.re, b.im), _mm_setr_pd(a.re, a.im)));
    return q;
  }
  TAV_INLINE __m128d many(__m128d b, __m128d a) { return of(b, a); }
};

// In double precision inside, so that no square leaves the range.
struct quotients_32fc : types<Tav32fc, Tav32fc, Tav32fc>, complex_quotient {
  static constexpr kernel_shape shape{.round_bytes = 16};

  TAV_INLINE Tav32fc one(Tav32fc b, Tav32fc a) {
    const __m128 q = _mm_cvtpd_ps(of(_mm_setr_pd(b.re, b.im), _mm_setr_pd(a.re, a.im)));
    return {_mm_cvtss_f32(q), _mm_cvtss_f32(_mm_shuffle_ps(q, q, 1))};
  }
  TAV_INLINE __m128 many(__m128 b, __m128 a) {
    const __m128d low  = of(_mm_cvtps_pd(b), _mm_cvtps_pd(a)),
                  high = of(_mm_cvtps_pd(_mm_movehl_ps(b, b)), _mm_cvtps_pd(_mm_movehl_ps(a, a)));
    return _mm_movelh_ps(_mm_cvtpd_ps(low), _mm_cvtpd_ps(high));
  }
};

}  // namespace tav::TAV_VARIANT
