// Sums of 64 bits in SSSE3 registers: saturated, scaled, and rounded in one of three ways.
//
// Rounding and scaling work on magnitudes, which have 64 bits without a sign: all three ways round them alike on both
// sides of zero.
#pragma once
#include "vector/round_mode.h"

namespace tav::TAV_VARIANT {

constexpr int64_t max_64s = 0x7FFFFFFFFFFFFFFF, min_64s = -max_64s - 1;

TAV_INLINE __m128i mask_of_signs(__m128i v) {  // of 64 bits
  return _mm_shuffle_epi32(_mm_srai_epi32(v, 31), _MM_SHUFFLE(3, 3, 1, 1));
}

TAV_INLINE __m128i mask_of_zeros(__m128i v) {
  const __m128i zeros = _mm_cmpeq_epi32(v, _mm_setzero_si128());
  return _mm_and_si128(zeros, parts_exchanged(zeros));
}

// How each type adds, and how it takes a sign off and puts it on again.
struct signed_long {
  using type                    = Tav64s;
  static constexpr int top_bits = 63;  // of a magnitude that fits

  static __m128i sum(__m128i a, __m128i b) {
    const __m128i wrapped = _mm_add_epi64(a, b);
    const __m128i lost    = _mm_and_si128(_mm_xor_si128(a, wrapped), _mm_xor_si128(b, wrapped));
    if (_mm_movemask_pd(_mm_castsi128_pd(lost)) == 0) return wrapped;  // sums seldom overflow, and then many do
    return selected(mask_of_signs(lost), limit(mask_of_signs(a)), wrapped);
  }
  static __m128i signs(__m128i v) { return mask_of_signs(v); }
  static __m128i limit(__m128i signs) { return _mm_xor_si128(signs, _mm_set1_epi64x(max_64s)); }
};

struct unsigned_long {
  using type                    = Tav64u;
  static constexpr int top_bits = 64;

  static __m128i sum(__m128i a, __m128i b) {
    const __m128i wrapped = _mm_add_epi64(a, b);
    const __m128i carry   = _mm_or_si128(_mm_and_si128(a, b), _mm_andnot_si128(wrapped, _mm_or_si128(a, b)));
    return _mm_or_si128(wrapped, mask_of_signs(carry));
  }
  static __m128i signs(__m128i) { return _mm_setzero_si128(); }
  static __m128i limit(__m128i) { return _mm_set1_epi64x(-1); }
};

TAV_INLINE __m128i with_sign(__m128i v, __m128i signs) { return _mm_sub_epi64(_mm_xor_si128(v, signs), signs); }

struct long_unscaled {
  template <class T> __m128i of(__m128i v) const { return v; }
};

class long_down {  // by 1 to 64 bits
 public:
  long_down(int s, rounding how)
      : to_tie_(_mm_cvtsi32_si128(s - 1)),
        below_tie_(_mm_set1_epi64x(int64_t((uint64_t(1) << (s - 1)) - 1))),
        rises_(_mm_set1_epi64x(how != rounding::toward_zero)),
        rises_at_tie_(_mm_set1_epi64x(how == rounding::ties_away)) {}

  template <class T> __m128i of(__m128i v) const {
    const __m128i signs = T::signs(v), size = with_sign(v, signs);
    const __m128i tie = _mm_srl_epi64(size, to_tie_), kept = _mm_srli_epi64(tie, 1);
    const __m128i rest     = _mm_and_si128(size, below_tie_);
    const __m128i any_rest = _mm_srl_epi64(_mm_add_epi64(rest, below_tie_), to_tie_);
    const __m128i odd      = _mm_and_si128(_mm_or_si128(kept, any_rest), rises_);
    return with_sign(_mm_add_epi64(kept, _mm_and_si128(tie, _mm_or_si128(odd, rises_at_tie_))), signs);
  }

 private:
  __m128i to_tie_, below_tie_, rises_, rises_at_tie_;
};

class long_up {  // by 1 to as many bits as a magnitude has
 public:
  long_up(int by, int top_bits) : by_(_mm_cvtsi32_si128(by)), to_lost_(_mm_cvtsi32_si128(top_bits - by)) {}

  template <class T> __m128i of(__m128i v) const {
    const __m128i signs = T::signs(v);
    const __m128i fits  = mask_of_zeros(_mm_srl_epi64(with_sign(v, signs), to_lost_));
    return selected(fits, _mm_sll_epi64(v, by_), T::limit(signs));
  }

 private:
  __m128i by_, to_lost_;
};

}  // namespace tav::TAV_VARIANT
