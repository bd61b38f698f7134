// re^2 + im^2, of separate parts and of pairs alike: each operation takes both.
//
// Floats stay in the precision of the elements, which the squares may leave. Squares of integers are exact.
#pragma once
#include "vector/parts.h"

namespace tav::TAV_VARIANT {

template <class F> struct squares_of : types<F, F, F> {
  static constexpr kernel_shape shape = shape_of_parts<F>;

  TAV_INLINE static F      one(F re, F im) { return re * re + im * im; }
  TAV_INLINE static F      one(pair_of<F> v) { return one(v.re, v.im); }
  TAV_INLINE static reg<F> many(reg<F> re, reg<F> im) { return re * re + im * im; }
  TAV_INLINE static reg<F> many(several<reg<F>, 2> v) { return many(all_re(v), all_im(v)); }
};

// Pairs of words, exactly. Two squares of -32768 make 2^31, which is right without a sign.
TAV_INLINE __m128i squares_of_words(__m128i pairs) { return _mm_madd_epi16(pairs, pairs); }
TAV_INLINE Tav32u  square_of_words(Tav16sc v) { return Tav32u(v.re * v.re) + Tav32u(v.im * v.im); }

// Such squares as floats, rounded in the caller's mode; 2^31 converts exactly, to the wrong sign.
TAV_INLINE __m128 floats_of_squares(__m128i squares) { return sign_cleared(_mm_cvtepi32_ps(squares)); }

// Pairs of 32 bits, in lanes of 64; up to 2^63, again without a sign.
TAV_INLINE __m128i squares_of_long_words(__m128i pairs) {
  const __m128i re = _mm_abs_epi32(pairs), im = _mm_srli_epi64(re, 32);
  return _mm_add_epi64(_mm_mul_epu32(re, re), _mm_mul_epu32(im, im));
}

struct squares_16s32f : types<Tav16s, Tav16s, Tav32f> {
  static constexpr kernel_shape shape = shape_of_parts<Tav32f>;

  TAV_INLINE static Tav32f one(Tav16sc v) {
    return _mm_cvtss_f32(floats_of_squares(_mm_cvtsi32_si128(int(square_of_words(v)))));
  }
  TAV_INLINE static Tav32f one(Tav16s re, Tav16s im) { return one(Tav16sc{re, im}); }
  TAV_INLINE static __m128 many(__m128i pairs) { return floats_of_squares(squares_of_words(pairs)); }
  TAV_INLINE static __m128 many(__m128i re, __m128i im) { return many(_mm_unpacklo_epi16(re, im)); }
};

// The forms on pairs.
template <class Op, class C> struct on_pairs : Op { using src1 = C; };

template <class Op, class C> TavStatus pairs_scaled(const C* src, typename Op::dst* dst, int len, int scaleFactor) {
  if (const TavStatus bad = check_vector(len, src, dst)) return bad;
  return Op::run(scaleFactor, dst, size_t(len), src);
}

}  // namespace tav::TAV_VARIANT
