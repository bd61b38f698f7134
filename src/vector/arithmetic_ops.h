// Sums, differences and products of two elements: floats, complex floats, and integers that saturate. Every function of
// tavsAdd, tavsSub, tavsMul, their constant forms and tavsAddProduct that has no scale factor computes with these.
//
// Float lanes are added by the operators of the compiler's vector types.
#pragma once
#include <pmmintrin.h>

#include "vector/forms.h"

namespace tav::TAV_VARIANT {

template <class T>
concept real_float = std::is_floating_point_v<T>;
template <class T>
concept complex_float = std::is_same_v<T, Tav32fc> || std::is_same_v<T, Tav64fc>;

template <class T> inline constexpr kernel_shape float_shape{.round_bytes = 32};
template <> inline constexpr kernel_shape        float_shape<Tav32f>{.round_bytes = 32, .stream_above = 0x2AAA};

inline constexpr kernel_shape shape_16_bit{.round_bytes = 32};
inline constexpr kernel_shape shape_32_bit{.round_bytes = 32};

TAV_INLINE Tav16s saturated_16s(Tav32s v) { return Tav16s(v > 32767 ? 32767 : v < -32768 ? -32768 : v); }

template <class T> struct sum_of;         // a + b
template <class T> struct difference_of;  // b - a: the first source is the subtrahend, as everywhere in tavsSub
template <class T> struct product_of;     // a * b

template <real_float T> struct sum_of<T> : types<T, T, T> {
  static constexpr kernel_shape shape = float_shape<T>;

  TAV_INLINE static T one(T a, T b) { return a + b; }
  static reg<T>       many(reg<T> a, reg<T> b) { return a + b; }
};

template <real_float T> struct difference_of<T> : types<T, T, T> {
  static constexpr kernel_shape shape = float_shape<T>;

  TAV_INLINE static T one(T a, T b) { return b - a; }
  static reg<T>       many(reg<T> a, reg<T> b) { return b - a; }
};

template <real_float T> struct product_of<T> : types<T, T, T> {
  static constexpr kernel_shape shape = float_shape<T>;

  TAV_INLINE static T one(T a, T b) { return a * b; }
  static reg<T>       many(reg<T> a, reg<T> b) { return a * b; }
};

template <complex_float T> struct sum_of<T> : types<T, T, T> {
  static constexpr kernel_shape shape = float_shape<T>;

  TAV_INLINE static T one(T a, T b) { return {a.re + b.re, a.im + b.im}; }
  static reg<T>       many(reg<T> a, reg<T> b) { return a + b; }
};

template <complex_float T> struct difference_of<T> : types<T, T, T> {
  static constexpr kernel_shape shape = float_shape<T>;

  TAV_INLINE static T one(T a, T b) { return {b.re - a.re, b.im - a.im}; }
  static reg<T>       many(reg<T> a, reg<T> b) { return b - a; }
};

// The real parts of each pair twice, the imaginary parts twice, the pair turned round; and a difference in the real
// lanes beside a sum in the imaginary ones. A product turns its pairs a tenth faster so than by parts_exchanged().
TAV_INLINE __m128  real_parts(__m128 v) { return _mm_moveldup_ps(v); }
TAV_INLINE __m128  imaginary_parts(__m128 v) { return _mm_movehdup_ps(v); }
TAV_INLINE __m128  turned_round(__m128 v) { return _mm_shuffle_ps(v, v, _MM_SHUFFLE(2, 3, 0, 1)); }
TAV_INLINE __m128  difference_and_sum(__m128 a, __m128 b) { return _mm_addsub_ps(a, b); }
TAV_INLINE __m128d real_parts(__m128d v) { return _mm_movedup_pd(v); }
TAV_INLINE __m128d imaginary_parts(__m128d v) { return _mm_unpackhi_pd(v, v); }
TAV_INLINE __m128d turned_round(__m128d v) { return _mm_shuffle_pd(v, v, 1); }
TAV_INLINE __m128d difference_and_sum(__m128d a, __m128d b) { return _mm_addsub_pd(a, b); }

template <complex_float T> struct product_of<T> : types<T, T, T> {
  static constexpr kernel_shape shape = float_shape<T>;

  TAV_INLINE static T one(T a, T b) { return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re}; }
  static reg<T>       many(reg<T> a, reg<T> b) {
          return difference_and_sum(a * real_parts(b), turned_round(a) * imaginary_parts(b));
  }
};

template <> struct sum_of<Tav16s> : types<Tav16s, Tav16s, Tav16s> {
  static constexpr kernel_shape shape = shape_16_bit;

  static Tav16s  one(Tav16s a, Tav16s b) { return saturated_16s(a + b); }
  static __m128i many(__m128i a, __m128i b) { return _mm_adds_epi16(a, b); }
};

template <> struct difference_of<Tav16s> : types<Tav16s, Tav16s, Tav16s> {
  static constexpr kernel_shape shape = shape_16_bit;

  static Tav16s  one(Tav16s a, Tav16s b) { return saturated_16s(b - a); }
  static __m128i many(__m128i a, __m128i b) { return _mm_subs_epi16(b, a); }
};

template <> struct product_of<Tav16s> : types<Tav16s, Tav16s, Tav16s> {
  static constexpr kernel_shape shape = shape_16_bit;

  static Tav16s  one(Tav16s a, Tav16s b) { return saturated_16s(a * b); }
  static __m128i many(__m128i a, __m128i b) {
    const __m128i low = _mm_mullo_epi16(a, b), high = _mm_mulhi_epi16(a, b);
    return _mm_packs_epi32(_mm_unpacklo_epi16(low, high), _mm_unpackhi_epi16(low, high));
  }
};

template <> struct sum_of<Tav16u> : types<Tav16u, Tav16u, Tav16u> {
  static constexpr kernel_shape shape = shape_16_bit;

  static Tav16u  one(Tav16u a, Tav16u b) { return Tav16u(a + b > 65535 ? 65535 : a + b); }
  static __m128i many(__m128i a, __m128i b) { return _mm_adds_epu16(a, b); }
};

template <> struct sum_of<Tav32u> : types<Tav32u, Tav32u, Tav32u> {
  static constexpr kernel_shape shape = shape_32_bit;

  static Tav32u  one(Tav32u a, Tav32u b) { return a > ~b ? ~Tav32u(0) : a + b; }
  static __m128i many(__m128i a, __m128i b) {  // a > ~b, which only exists for signed lanes: both moved by 2^31
    const __m128i too_large =
        _mm_cmpgt_epi32(_mm_xor_si128(a, _mm_set1_epi32(INT32_MIN)), _mm_xor_si128(b, _mm_set1_epi32(INT32_MAX)));
    return _mm_or_si128(_mm_add_epi32(a, b), too_large);
  }
};

// Sources of less width than the result.

template <class Op> struct of_bytes : types<Tav8u, Tav8u, Tav16u> {  // Op in 16 bits, where it cannot overflow
  static constexpr kernel_shape shape = shape_16_bit;

  static Tav16u  one(Tav8u a, Tav8u b) { return Tav16u(Op::one(a, b)); }
  static __m128i many(__m128i a, __m128i b) { return Op::many(wide(a), wide(b)); }

 private:
  static __m128i wide(__m128i v) { return _mm_unpacklo_epi8(v, _mm_setzero_si128()); }
};

template <class Op> struct converted_16s : types<Tav16s, Tav16s, Tav32f> {
  static constexpr kernel_shape shape{.round_bytes = 32};

  static Tav32f one(Tav16s a, Tav16s b) { return Op::one(Tav32f(a), Tav32f(b)); }
  static __m128 many(__m128i a, __m128i b) { return Op::many(floats(a), floats(b)); }

 private:
  static __m128 floats(__m128i v) { return _mm_cvtepi32_ps(low_half_as_32s(v)); }
};

}  // namespace tav::TAV_VARIANT
