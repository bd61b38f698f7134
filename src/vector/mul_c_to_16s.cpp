// tavsMulC_32f16s_Sfs, tavsMulC_Low_32f16s: floats times a constant, as 16-bit integers.
#include "frame/rounding.h"
#include "vector/constant_ops.h"

namespace tav::TAV_VARIANT {

// Limited before the conversion. The minimum comes first and with the limit as its second operand, which is what it
// gives for a NaN: 32767.
struct limited_product : types<Tav32f, Tav32f, Tav16s> {
  static constexpr kernel_shape shape{.round_bytes = 32};

  explicit limited_product(Tav32f v) : all(_mm_set1_ps(v)) {}

  Tav16s  one(Tav32f a) const { return Tav16s(_mm_cvtss_si32(limited(_mm_set_ss(a)))); }
  __m128i many(several<__m128, 2> a) const {
    return _mm_packs_epi32(_mm_cvtps_epi32(limited(a.r[0])), _mm_cvtps_epi32(limited(a.r[1])));
  }

 private:
  __m128 limited(__m128 a) const {
    return _mm_max_ps(_mm_min_ps(a * all, _mm_set1_ps(32767.0f)), _mm_set1_ps(-32768.0f));
  }

  __m128 all;
};

// Converted as it is, and packed. What no 32-bit integer can hold, of either sign, converts to the lowest one.
struct packed_product : types<Tav32f, Tav32f, Tav16s> {
  static constexpr kernel_shape shape{.round_bytes = 32};

  explicit packed_product(Tav32f v) : all(_mm_set1_ps(v)) {}

  Tav16s  one(Tav32f a) const { return saturated_16s(_mm_cvtss_si32(_mm_set_ss(a) * all)); }
  __m128i many(several<__m128, 2> a) const {
    return _mm_packs_epi32(_mm_cvtps_epi32(a.r[0] * all), _mm_cvtps_epi32(a.r[1] * all));
  }

 private:
  __m128 all;
};

// 2^-s, within what a normal float can hold.
static Tav32f two_to_minus(int s) {
  s                 = s < -127 ? -127 : s > 126 ? 126 : s;
  const Tav32u bits = 0x3F800000u - (Tav32u(s) << 23);
  return __builtin_bit_cast(Tav32f, bits);
}

static TavStatus scaled_to_16s(const Tav32f* src, Tav32f val, Tav16s* dst, int len, int scaleFactor) {
  if (const TavStatus bad = check_vector(len, src, dst)) return bad;
  if (equals(val, 0)) return shared::zero_bytes(dst, size_t(len) * sizeof(*dst));
  const round_to_nearest scope;
  __asm__ volatile("" : "+x"(val));  // no arithmetic on it moves ahead of the scope
  return elementwise(limited_product(val * two_to_minus(scaleFactor)), dst, size_t(len), src);
}

TAV_BIND(MulC_32f16s_Sfs, &scaled_to_16s)
TAV_BIND(MulC_Low_32f16s, &constant<zero_clears<packed_product>>)  // in the caller's rounding mode

}  // namespace tav::TAV_VARIANT
