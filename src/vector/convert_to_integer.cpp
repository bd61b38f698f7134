// tavsConvert from floats to integers of 8 to 32 bits: multiplied by a power of two, rounded, saturated. A NaN becomes
// the type's highest value.
//
// The conversion itself follows the processor's mode, which is set once a call. What no 32-bit integer can hold
// converts to the lowest one, which the saturating packs behind it read as what it is at that end of the range. So most
// kernels limit upward only.
#include <limits>

#include "vector/convert_forms.h"
#include "vector/narrow_lanes.h"
#include "vector/round_mode.h"
#include "vector/to_integer.h"
#include "vector/wide_ops.h"

namespace tav::TAV_VARIANT {

template <class D> inline constexpr int highest_integer = std::numeric_limits<D>::max();

// The minimum gives its second operand, the limit, for a NaN.
TAV_INLINE __m128  up_to(__m128 v, float highest) { return _mm_min_ps(v, _mm_set1_ps(highest)); }
TAV_INLINE __m128d up_to(__m128d v, double highest) { return _mm_min_pd(v, _mm_set1_pd(highest)); }

// Four floats as 32-bit integers, which are ready to be packed to D.
template <class D> TAV_INLINE __m128i words_for(__m128 v) {
  if constexpr (sizeof(D) == 4) {  // no float is its highest integer: from 2^31 on all bits of the lowest one turn
    const __m128 too_large = _mm_cmpnlt_ps(v, _mm_set1_ps(0x1p31f));
    return _mm_xor_si128(_mm_cvtps_epi32(v), _mm_castps_si128(too_large));
  } else if constexpr (std::is_same_v<D, Tav16u>) {  // packed by a detour that takes no other integers than these
    return _mm_cvtps_epi32(limited(v, 0, highest_integer<D>));
  } else {
    return _mm_cvtps_epi32(up_to(v, highest_integer<D>));
  }
}
template <class D> TAV_INLINE __m128i words_for(__m128d low, __m128d high) {
  return _mm_unpacklo_epi64(_mm_cvtpd_epi32(up_to(low, highest_integer<D>)),
                            _mm_cvtpd_epi32(up_to(high, highest_integer<D>)));
}

template <class D, int K> TAV_INLINE __m128i packed_words(several<__m128i, K> w) {
  if constexpr (sizeof(D) == 4)
    return w.r[0];
  else if constexpr (sizeof(D) == 2)
    return narrow_row<D>::narrow(w);
  else if constexpr (std::is_same_v<D, Tav8u>)
    return _mm_packus_epi16(_mm_packs_epi32(w.r[0], w.r[1]), _mm_packs_epi32(w.r[2], w.r[3]));
  else
    return _mm_packs_epi16(_mm_packs_epi32(w.r[0], w.r[1]), _mm_packs_epi32(w.r[2], w.r[3]));
}

// What becomes of a value ahead of the conversion.
template <class F> struct value_as_it_is {
  reg<F> of(reg<F> v) const { return v; }
};
template <class F> struct value_scaled {
  reg<F> by;
  reg<F> of(reg<F> v) const { return v * by; }
};
template <class F> struct value_scaled_and_raised {  // by a half, away from zero
  reg<F> by;
  reg<F> of(reg<F> v) const {
    const reg<F>  scaled = v * by;
    const __m128i sign   = _mm_and_si128(as_bits(scaled), repeated(F(-0.0)));
    return scaled + from_bits<F>(_mm_or_si128(sign, repeated(F(0.5))));
  }
};

template <class F, class D, class Value> struct to_integers_kernel {
  static constexpr kernel_shape shape{.round_bytes = sizeof(D) == 1 ? 16 : 32};

  Value value;

  D one(F a) const {
    several<__m128i, 4 / sizeof(D)> words{};
    if constexpr (sizeof(F) == 4)
      words.r[0] = words_for<D>(value.of(_mm_set_ss(a)));
    else
      words.r[0] = words_for<D>(value.of(_mm_set_sd(a)), _mm_setzero_pd());
    return from_a_lane<D>(packed_words<D>(words));
  }

  __m128i many(group<F, lanes<D>> v) const {
    several<__m128i, 4 / sizeof(D)> words;
    if constexpr (std::is_same_v<decltype(v), __m128>)
      words.r[0] = words_for<D>(value.of(v));
    else
#pragma GCC unroll 4
      for (size_t k = 0; k < 4 / sizeof(D); ++k) {
        if constexpr (sizeof(F) == 4)
          words.r[k] = words_for<D>(value.of(v.r[k]));
        else
          words.r[k] = words_for<D>(value.of(v.r[2 * k]), value.of(v.r[2 * k + 1]));
      }
    return packed_words<D>(words);
  }
};

template <class F, class D> struct to_integers : types<F, F, D> {
  static TavStatus run(int roundMode, int s, D* dst, size_t len, const F* src) {
    const rounding how = rounding_of(roundMode);
    return in_mode_for(how, [=] {
      if (how == rounding::ties_away) return with(value_scaled_and_raised<F>{multiplier(s)}, dst, len, src);
      if (s == 0) return with(value_as_it_is<F>{}, dst, len, src);
      return with(value_scaled<F>{multiplier(s)}, dst, len, src);
    });
  }

 private:
  static reg<F> multiplier(int s) { return from_bits<F>(repeated(power_of_two_minus<F>(s))); }

  template <class Value> static TavStatus with(const Value& value, D* dst, size_t len, const F* src) {
    return elementwise(to_integers_kernel<F, D, Value>{value}, dst, len, src);
  }
};

TAV_BIND(Convert_32f8s_Sfs, (&one_source_rounded<to_integers<Tav32f, Tav8s>>))
TAV_BIND(Convert_32f8u_Sfs, (&one_source_rounded<to_integers<Tav32f, Tav8u>>))
TAV_BIND(Convert_32f16s_Sfs, (&one_source_rounded<to_integers<Tav32f, Tav16s>>))
TAV_BIND(Convert_32f16u_Sfs, (&one_source_rounded<to_integers<Tav32f, Tav16u>>))
TAV_BIND(Convert_32f32s_Sfs, (&one_source_rounded<to_integers<Tav32f, Tav32s>>))
TAV_BIND(Convert_64f16s_Sfs, (&one_source_rounded<to_integers<Tav64f, Tav16s>>))
TAV_BIND(Convert_64f32s_Sfs, (&one_source_rounded<to_integers<Tav64f, Tav32s>>))

}  // namespace tav::TAV_VARIANT
