// The two laws of companding: from a sample's magnitude to its level, and from codes back to samples.
//
// A level has three bits of segment and four bits of step, which is to say an exponent and a fraction: converted to a
// float, a magnitude holds its level in its upper bits. A code is the level and the sign, with some bits inverted.
//
// The magnitude of a negative sample is its complement, so that -32768 has one, and -1 the magnitude of 0.
#pragma once
#include "vector/companding_tables.h"
#include "vector/forms.h"

namespace tav::TAV_VARIANT {

// Sixteen levels an octave, from 0 at the magnitude 128; below that negative.
inline constexpr int fraction_cut_off = 23 - 4, level_of_128 = (127 + 7) * 16;

TAV_INLINE int octave_level(int magnitude) {
  return (__builtin_bit_cast(int, float(magnitude)) >> fraction_cut_off) - level_of_128;
}

TAV_INLINE __m128i octave_levels(__m128i magnitudes) {  // of 16 bits
  const auto    zero = _mm_setzero_si128();
  const auto    bits = [](__m128i v) { return _mm_srli_epi32(as_bits(_mm_cvtepi32_ps(v)), fraction_cut_off); };
  const __m128i low = bits(_mm_unpacklo_epi16(magnitudes, zero)), high = bits(_mm_unpackhi_epi16(magnitudes, zero));
  return _mm_sub_epi16(_mm_packs_epi32(low, high), _mm_set1_epi16(level_of_128));
}

TAV_INLINE __m128i low_nibbles(__m128i v) { return _mm_and_si128(v, _mm_set1_epi8(15)); }
TAV_INLINE __m128i high_nibbles(__m128i v) { return low_nibbles(_mm_srli_epi16(v, 4)); }

struct a_law {
  static constexpr int                 positive = 0xD5;  // the code of a positive sample at level 0
  static constexpr const sample_table& table    = a_law_samples;

  // The lowest segment continues the steps of the next one down to 0.
  static int level(int magnitude) {
    const int on_octaves = octave_level(magnitude), linear = magnitude >> 4;
    return on_octaves >= 16 ? on_octaves : linear;
  }
  static __m128i levels(__m128i magnitudes) {  // there the linear ones are the higher
    return _mm_max_epi16(octave_levels(magnitudes), _mm_min_epi16(_mm_srli_epi16(magnitudes, 4), _mm_set1_epi16(15)));
  }

  // To nearest, ties away from zero. The largest number below a half does what a half should: in a sum rounded to
  // nearest it carries exactly the numbers from the tie on.
  static __m128i rounded(__m128 v) {
    const __m128 sign = _mm_and_ps(v, _mm_set1_ps(-0.0f));
    return _mm_cvttps_epi32(v + _mm_or_ps(sign, _mm_set1_ps(0x0.FFFFFFp-1f)));
  }

  // 2 * T * P: the step with the offset of its segment, T, and a power of two with the sign, P.
  static several<__m128i, 2> samples(__m128i codes) {
    const __m128i  bits = _mm_xor_si128(codes, _mm_set1_epi8(0x55)), segment = high_nibbles(bits);
    const __m128i  steps  = _mm_setr_epi8(4, 12, 20, 28, 36, 44, 52, 60, 68, 76, 84, 92, 100, 108, 116, 124);
    constexpr char up     = -128;  // 128 as an unsigned byte
    const __m128i  offset = _mm_setr_epi8(0, up, up, up, up, up, up, up, 0, up, up, up, up, up, up, up);
    const __m128i  powers = _mm_setr_epi8(-1, -1, -2, -4, -8, -16, -32, -64, 1, 1, 2, 4, 8, 16, 32, 64);
    const __m128i  t      = _mm_add_epi8(_mm_shuffle_epi8(steps, low_nibbles(bits)), _mm_shuffle_epi8(offset, segment));
    const __m128i  p      = _mm_shuffle_epi8(powers, segment);
    return {{_mm_maddubs_epi16(_mm_unpacklo_epi8(t, t), _mm_unpacklo_epi8(p, p)),
             _mm_maddubs_epi16(_mm_unpackhi_epi8(t, t), _mm_unpackhi_epi8(p, p))}};
  }
};

struct mu_law {
  static constexpr int                 positive = 0xFF;
  static constexpr const sample_table& table    = mu_law_samples;
  static constexpr int                 bias     = 132;  // lifts every magnitude above 128; the sum saturates

  static int     level(int magnitude) { return octave_level(magnitude < 32767 - bias ? magnitude + bias : 32767); }
  static __m128i levels(__m128i magnitudes) { return octave_levels(_mm_adds_epi16(magnitudes, _mm_set1_epi16(bias))); }

  static __m128i rounded(__m128 v) { return _mm_cvtps_epi32(v); }  // to nearest, ties to even

  // 2 * (P * T + 33 * B): a power of two, P, the step with its offset and the sign, T, and the bias with the opposite
  // sign, B. Codes are inverted: the highest step comes first, and the highest segment.
  static several<__m128i, 2> samples(__m128i codes) {
    const __m128i segment = high_nibbles(codes);
    const __m128i steps =
        _mm_setr_epi8(-126, -122, -118, -114, -110, -106, -102, -98, -94, -90, -86, -82, -78, -74, -70, -66);
    constexpr char top    = -128;  // 128 as an unsigned byte
    const __m128i  powers = _mm_setr_epi8(top, 64, 32, 16, 8, 4, 2, 1, top, 64, 32, 16, 8, 4, 2, 1);
    const __m128i  biases = _mm_setr_epi8(2, 2, 2, 2, 2, 2, 2, 2, -2, -2, -2, -2, -2, -2, -2, -2);
    const __m128i  p = _mm_shuffle_epi8(powers, segment), b = _mm_shuffle_epi8(biases, segment);
    const __m128i  t      = _mm_sign_epi8(_mm_shuffle_epi8(steps, low_nibbles(codes)), b);
    const __m128i  all_33 = _mm_set1_epi8(bias / 4);
    const __m128i  low    = _mm_maddubs_epi16(_mm_unpacklo_epi8(p, all_33), _mm_unpacklo_epi8(t, b));
    const __m128i  high   = _mm_maddubs_epi16(_mm_unpackhi_epi8(p, all_33), _mm_unpackhi_epi8(t, b));
    return {{_mm_add_epi16(low, low), _mm_add_epi16(high, high)}};
  }
};

}  // namespace tav::TAV_VARIANT
