// Half floats (IEEE 754 binary16: sign, 5 bits of exponent, 10 of fraction) to singles and back, eight at a time.
//
// No single on the way is a subnormal number whose value counts, so that the results do not depend on the thread's
// flags for these. To singles every half is exact. The way back rounds in the thread's mode: callers open a scope.
#pragma once
#include "frame/registers.h"

namespace tav::TAV_VARIANT {

namespace half_bits {
// Of halves.
inline constexpr short sign = INT16_MIN, magnitude = INT16_MAX, lowest_normal = 0x0400, largest_finite = 0x7BFF,
                       infinity = 0x7C00, quiet_nan = 0x7E00;
// Of singles, and of their upper 16 bits.
inline constexpr int   single_magnitude = INT32_MAX, single_exponent = 0x7F800000;
inline constexpr short upper_quiet = 0x0040;  // makes a NaN quiet
// Between the two.
inline constexpr int   fraction_lost = 23 - 10, rebias = 127 - 15;
inline constexpr short upper_rebias = rebias << 7;
}  // namespace half_bits

// The upper and lower 16 bits of the singles are made apart and then joined. Subnormal numbers are left out there, and
// come in as integers.
TAV_INLINE several<__m128, 2> floats_of_halves(__m128i h) {
  using namespace half_bits;
  const __m128i all       = _mm_and_si128(h, _mm_set1_epi16(magnitude));
  const __m128i subnormal = _mm_cmpgt_epi16(_mm_set1_epi16(lowest_normal), all);
  const __m128i special   = _mm_cmpgt_epi16(all, _mm_set1_epi16(largest_finite));
  const __m128i nan       = _mm_cmpgt_epi16(all, _mm_set1_epi16(infinity));
  const __m128i tiny = _mm_and_si128(all, subnormal), normal = _mm_andnot_si128(subnormal, all);

  // Twice the difference of the biases takes the highest exponent to the highest one.
  __m128i upper = _mm_add_epi16(_mm_srli_epi16(normal, 16 - fraction_lost),
                                _mm_andnot_si128(subnormal, _mm_set1_epi16(upper_rebias)));
  upper         = _mm_add_epi16(upper, _mm_and_si128(special, _mm_set1_epi16(upper_rebias)));
  upper         = _mm_or_si128(upper, _mm_and_si128(nan, _mm_set1_epi16(upper_quiet)));
  upper         = _mm_or_si128(upper, _mm_xor_si128(h, all));

  const __m128i lower = _mm_slli_epi16(normal, fraction_lost), zero = _mm_setzero_si128();
  const __m128  unit = _mm_set1_ps(0x1p-24f);  // of the subnormal halves
  return {{_mm_or_ps(_mm_castsi128_ps(_mm_unpacklo_epi16(lower, upper)),
                     _mm_cvtepi32_ps(_mm_unpacklo_epi16(tiny, zero)) * unit),
           _mm_or_ps(_mm_castsi128_ps(_mm_unpackhi_epi16(lower, upper)),
                     _mm_cvtepi32_ps(_mm_unpackhi_epi16(tiny, zero)) * unit)}};
}

// Halves of magnitudes up to 65536, in lanes of 32 bits, rounded in the thread's mode. Of a NaN: a number below -32768.
//
// With e the exponent of the number, and at least that of the lowest normal half, the sum of 2^(e + 13) and the number
// has just the fraction that the half will have, so the addition rounds it. Its low bits are the half without its
// exponent: the leading bit and a carry included, which count into the exponent.
TAV_INLINE __m128i half_lanes(__m128 v) {
  using namespace half_bits;
  const __m128  field    = _mm_and_ps(v, _mm_castsi128_ps(_mm_set1_epi32(single_exponent)));
  const __m128i power    = _mm_castps_si128(_mm_max_ps(field, _mm_set1_ps(0x1p-14f)));
  const __m128i large    = _mm_add_epi32(power, _mm_set1_epi32(fraction_lost << 23));
  const __m128i fraction = _mm_sub_epi32(_mm_castps_si128(v + _mm_castsi128_ps(large)), large);
  const __m128i exponent = _mm_sub_epi32(_mm_srli_epi32(power, fraction_lost), _mm_set1_epi32((rebias + 1) << 10));
  return _mm_add_epi32(fraction, exponent);
}

// What the thread's mode is, for what the rounding of finite numbers does not settle: toward zero none of them becomes
// infinite, to nearest those from 65520 on do.
enum class half_mode { nearest, toward_zero };

template <half_mode Mode> TAV_INLINE __m128i unsigned_half_lanes(__m128 v) {
  using namespace half_bits;
  constexpr float highest = Mode == half_mode::nearest ? 0x1p16f : 0x1.fffffep15f;
  const __m128    all     = _mm_and_ps(v, _mm_castsi128_ps(_mm_set1_epi32(single_magnitude)));
  const __m128i   half    = half_lanes(_mm_min_ps(_mm_set1_ps(highest), all));  // in this order a NaN passes
  if constexpr (Mode == half_mode::nearest) return half;
  const __m128 infinite = _mm_cmpeq_ps(all, _mm_castsi128_ps(_mm_set1_epi32(single_exponent)));
  return _mm_sub_epi32(half, _mm_castps_si128(infinite));  // from the largest finite half to the next
}

template <half_mode Mode> TAV_INLINE __m128i halves_of_floats(several<__m128, 2> v) {
  using namespace half_bits;
  const __m128i half     = _mm_packs_epi32(unsigned_half_lanes<Mode>(v.r[0]), unsigned_half_lanes<Mode>(v.r[1]));
  const __m128i nan      = _mm_srai_epi16(half, 15);  // where it is the lowest integer now
  const __m128i repaired = _mm_xor_si128(half, _mm_and_si128(nan, _mm_set1_epi16(short(quiet_nan ^ sign))));
  // Saturated as integers, singles keep their signs.
  const __m128i packed = _mm_packs_epi32(_mm_castps_si128(v.r[0]), _mm_castps_si128(v.r[1]));
  return _mm_or_si128(repaired, _mm_and_si128(packed, _mm_set1_epi16(sign)));
}

// Integers are never too large.
TAV_INLINE __m128i halves_of_integers(__m128i v) {
  const __m128i all = _mm_abs_epi16(v), zero = _mm_setzero_si128();  // that of -32768 has no sign
  const __m128i low  = half_lanes(_mm_cvtepi32_ps(_mm_unpacklo_epi16(all, zero))),
                high = half_lanes(_mm_cvtepi32_ps(_mm_unpackhi_epi16(all, zero)));
  return _mm_or_si128(_mm_packs_epi32(low, high), _mm_and_si128(v, _mm_set1_epi16(half_bits::sign)));
}

}  // namespace tav::TAV_VARIANT
