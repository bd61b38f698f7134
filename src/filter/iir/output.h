// The way out of the mixed forms: samples of the arithmetic type, times a power of two, as integers: rounded to nearest
// with ties to even, and saturated. A NaN gives the upper limit. Doubles become singles in the caller's rounding mode.
//
// Parts of complex samples go by themselves. Integers need a round_to_nearest scope around the call.
#pragma once
#include "filter/iir/traits.h"
#include "filter/output_scale.h"
#include "vector/forms.h"
#include "vector/to_integer.h"

namespace tav::TAV_VARIANT::iir {

TAV_INLINE __m128i rounded(__m128 v, float lowest, float highest) {
  return _mm_cvtps_epi32(limited(v, lowest, highest));
}
TAV_INLINE __m128i rounded(__m128d a, __m128d b, double lowest, double highest) {
  return _mm_unpacklo_epi64(_mm_cvtpd_epi32(limited(a, lowest, highest)), _mm_cvtpd_epi32(limited(b, lowest, highest)));
}

TAV_INLINE int rounded_one(float v, float lowest, float highest) {
  return _mm_cvtss_si32(limited(_mm_set_ss(v), lowest, highest));
}
TAV_INLINE int rounded_one(double v, double lowest, double highest) {
  return _mm_cvtsd_si32(limited(_mm_set_sd(v), lowest, highest));
}

TAV_INLINE int cut_off_one(float v, float lowest, float highest) {
  return _mm_cvttss_si32(limited(_mm_set_ss(v), lowest, highest));
}

template <class F, class D> struct to_integers : types<F, F, D> {
  static constexpr kernel_shape shape{.round_bytes = 16};
  static constexpr F            lowest = sizeof(D) == 2 ? F(-32768) : F(-2147483648.0),
                     highest           = sizeof(D) == 2 ? F(32767) : F(2147483647.0);

  explicit to_integers(F by) : by_(by), all_(from_bits<F>(repeated(by))) {}

  D cut_off(F v) const { return D(cut_off_one(v * by_, lowest, highest)); }  // instead of rounded
  D one(F v) const { return D(rounded_one(v * by_, lowest, highest)); }
  template <int K> __m128i many(several<reg<F>, K> v) const {
    if constexpr (sizeof(F) == 4)
      return _mm_packs_epi32(rounded(v.r[0] * all_, lowest, highest), rounded(v.r[1] * all_, lowest, highest));
    else if constexpr (K == 4)
      return _mm_packs_epi32(pair(v.r[0], v.r[1]), pair(v.r[2], v.r[3]));
    else
      return pair(v.r[0], v.r[1]);
  }

 private:
  __m128i pair(__m128d a, __m128d b) const { return rounded(a * all_, b * all_, lowest, highest); }

  F      by_;
  reg<F> all_;
};

struct doubles_as_singles : types<Tav64f, Tav64f, Tav32f> {
  static constexpr kernel_shape shape{.round_bytes = 16};

  // Spelled out: a double that a function has returned on 32 bits may be narrowed in another unit, with its own mode.
  static Tav32f one(Tav64f a) { return _mm_cvtss_f32(_mm_cvtsd_ss(_mm_setzero_ps(), _mm_set_sd(a))); }
  static __m128 many(several<__m128d, 2> v) { return _mm_movelh_ps(_mm_cvtpd_ps(v.r[0]), _mm_cvtpd_ps(v.r[1])); }
};

// The output stage of a state's form: the operation on parts, made of a scale factor.
template <class State> auto output_stage(int scaleFactor) {
  using F = part<arithmetic_of<State>>;
  using D = part<data_of<State>>;
  if constexpr (std::is_integral_v<D>)
    return to_integers<F, D>(output_scale<F>(scaleFactor));
  else
    return doubles_as_singles{};
}

template <class Stage, class A, class D> void narrow(const Stage& stage, const A* src, D* dst, size_t n) {
  elementwise(stage, reinterpret_cast<part<D>*>(dst), n * parts<D>, reinterpret_cast<const part<A>*>(src));
}

template <class D, class Stage, class A> D narrowed(const Stage& stage, A v) {
  if constexpr (is_complex<A>)
    return {stage.one(v.re), stage.one(v.im)};
  else
    return stage.one(v);
}

}  // namespace tav::TAV_VARIANT::iir
