// tavsConvert_16s32f, tavsConvert_32s32f, tavsConvert_32f64f, tavsConvert_64f32f: scheduled for each variant. What does
// not fit into single precision is rounded in the caller's mode.
#include "vector/convert_to_float.h"

namespace tav::TAV_VARIANT {

struct convert_32f64f : types<Tav32f, Tav32f, Tav64f> {
  static constexpr kernel_shape shape{.round_bytes = 64, .step = 4};

  static Tav64f              one(Tav32f a) { return a; }
  static several<__m128d, 2> many(__m128 v) { return {{_mm_cvtps_pd(v), _mm_cvtps_pd(_mm_movehl_ps(v, v))}}; }
};

struct convert_64f32f : types<Tav64f, Tav64f, Tav32f> {
  static constexpr kernel_shape shape{.round_bytes = 32};

  static Tav32f one(Tav64f a) { return Tav32f(a); }
  static __m128 many(several<__m128d, 2> v) { return _mm_movelh_ps(_mm_cvtpd_ps(v.r[0]), _mm_cvtpd_ps(v.r[1])); }
};

TAV_BIND(Convert_16s32f, (&one_source<to_floats<Tav16s, Tav32f>>))
TAV_BIND(Convert_32s32f, (&one_source<to_floats<Tav32s, Tav32f>>))
TAV_BIND(Convert_32f64f, &one_source<convert_32f64f>)
TAV_BIND(Convert_64f32f, &one_source<convert_64f32f>)

}  // namespace tav::TAV_VARIANT
