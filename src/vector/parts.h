// Complex pairs and their parts: registers of pairs taken apart, registers of parts joined to pairs, and the operations
// that do only that. No arithmetic: each part keeps its bits, those of a NaN too.
#pragma once
#include "vector/forms.h"

namespace tav::TAV_VARIANT {

// The pairs that go into a register of parts P, as the element type they are read from.
template <class P> struct pair_of_row;
template <> struct pair_of_row<Tav16s> { using type = Tav16sc; };
template <> struct pair_of_row<Tav32f> { using type = Tav32fc; };
template <> struct pair_of_row<Tav64f> { using type = Tav64fc; };
template <class P> using pair_of = typename pair_of_row<P>::type;

// Two registers of pairs as one of real parts and one of imaginary parts. Pairs of words come as integers.
TAV_INLINE __m128i halves_of_words(__m128i v) {  // the real parts in the low half, the imaginary ones in the high half
  return _mm_shuffle_epi8(v, _mm_setr_epi8(0, 1, 4, 5, 8, 9, 12, 13, 2, 3, 6, 7, 10, 11, 14, 15));
}
TAV_INLINE __m128i all_re(several<__m128i, 2> v) {
  return _mm_unpacklo_epi64(halves_of_words(v.r[0]), halves_of_words(v.r[1]));
}
TAV_INLINE __m128i all_im(several<__m128i, 2> v) {
  return _mm_unpackhi_epi64(halves_of_words(v.r[0]), halves_of_words(v.r[1]));
}
TAV_INLINE __m128  all_re(several<__m128, 2> v) { return even_lanes(v.r[0], v.r[1]); }
TAV_INLINE __m128  all_im(several<__m128, 2> v) { return odd_lanes(v.r[0], v.r[1]); }
TAV_INLINE __m128d all_re(several<__m128d, 2> v) { return even_lanes(v.r[0], v.r[1]); }
TAV_INLINE __m128d all_im(several<__m128d, 2> v) { return odd_lanes(v.r[0], v.r[1]); }

// And back.
TAV_INLINE several<__m128i, 2> in_pairs(__m128i re, __m128i im) {
  return {{_mm_unpacklo_epi16(re, im), _mm_unpackhi_epi16(re, im)}};
}
TAV_INLINE several<__m128, 2> in_pairs(__m128 re, __m128 im) {
  return {{_mm_unpacklo_ps(re, im), _mm_unpackhi_ps(re, im)}};
}
TAV_INLINE several<__m128d, 2> in_pairs(__m128d re, __m128d im) {
  return {{_mm_unpacklo_pd(re, im), _mm_unpackhi_pd(re, im)}};
}

template <class P> inline constexpr kernel_shape shape_of_parts{.round_bytes = 32};

template <class C> struct real_part : types<C, C, part_of<C>> {
  static constexpr kernel_shape shape = shape_of_parts<part_of<C>>;

  TAV_INLINE static auto one(C v) { return v.re; }
  TAV_INLINE static auto many(several<reg<C>, 2> v) { return all_re(v); }
};

template <class C> struct imaginary_part : types<C, C, part_of<C>> {
  static constexpr kernel_shape shape = shape_of_parts<part_of<C>>;

  TAV_INLINE static auto one(C v) { return v.im; }
  TAV_INLINE static auto many(several<reg<C>, 2> v) { return all_im(v); }
};

}  // namespace tav::TAV_VARIANT
