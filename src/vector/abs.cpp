// tavsAbs_*: magnitudes. That of the lowest integer is the highest one.
#include "vector/forms.h"

namespace tav::TAV_VARIANT {

struct abs_16s : types<Tav16s, Tav16s, Tav16s> {
  static constexpr kernel_shape shape{.round_bytes = 32};

  static Tav16s  one(Tav16s a) { return Tav16s(a < -32767 ? 32767 : a < 0 ? -a : a); }
  static __m128i many(__m128i a) { return _mm_abs_epi16(_mm_max_epi16(a, _mm_set1_epi16(-32767))); }
};

struct abs_32s : types<Tav32s, Tav32s, Tav32s> {
  static constexpr kernel_shape shape{.round_bytes = 32};

  static Tav32s  one(Tav32s a) { return a == INT32_MIN ? INT32_MAX : a < 0 ? -a : a; }
  static __m128i many(__m128i a) {  // of the lowest one nothing but the sign bit is left: one less is the highest
    const __m128i magnitude = _mm_abs_epi32(a);
    return _mm_add_epi32(magnitude, _mm_srai_epi32(magnitude, 31));
  }
};

// Clears the sign bit, of -0.0 and of NaNs too.
struct abs_32f : types<Tav32f, Tav32f, Tav32f> {
  static constexpr kernel_shape shape{.round_bytes = 32};

  static Tav32f one(Tav32f a) { return __builtin_fabsf(a); }
  static __m128 many(__m128 a) { return sign_cleared(a); }
};

struct abs_64f : types<Tav64f, Tav64f, Tav64f> {
  static constexpr kernel_shape shape{.round_bytes = 32};

  static Tav64f  one(Tav64f a) { return __builtin_fabs(a); }
  static __m128d many(__m128d a) { return sign_cleared(a); }
};

TAV_BIND(Abs_16s, &one_source<abs_16s>)
TAV_BIND(Abs_32s, &one_source<abs_32s>)
TAV_BIND(Abs_32f, &one_source<abs_32f>)
TAV_BIND(Abs_64f, &one_source<abs_64f>)

TAV_BIND(Abs_16s_I, &on_itself<abs_16s>)
TAV_BIND(Abs_32s_I, &on_itself<abs_32s>)
TAV_BIND(Abs_32f_I, &on_itself<abs_32f>)
TAV_BIND(Abs_64f_I, &on_itself<abs_64f>)

}  // namespace tav::TAV_VARIANT
