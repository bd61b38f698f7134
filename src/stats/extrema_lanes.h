// How elements are ordered in registers: each type has keys, numbers that its register can compare.
//
// The keys of most types are the elements. Where the processor compares only with a sign, or only without one, a key is
// the element moved into the range it can compare. The key of a magnitude is one less than the magnitude, so that the
// magnitude of the lowest integer has one, too.
#pragma once
#include "frame/reduce_shape.h"

namespace tav::TAV_VARIANT::extrema {

enum class side { smallest, largest };

// A start key in every lane. In 32-bit code made in registers, which would have to find its data first; the keys of
// doubles have no lower half.
template <class K> TAV_INLINE __m128i start_lanes(K key) {
  if constexpr (sizeof(void*) == 8) return repeated(key);
  uint32_t word = 0;
  if constexpr (sizeof(K) == 8)
    word = uint32_t(__builtin_bit_cast(uint64_t, key) >> 32);
  else if constexpr (sizeof(K) == 4)
    word = __builtin_bit_cast(uint32_t, key);
  else
    word = uint32_t(std::make_unsigned_t<K>(key)) * (sizeof(K) == 2 ? 0x10001 : 0x1010101);
  __asm__("" : "+r"(word));
  const __m128i lanes = _mm_set1_epi32(int(word));
  return sizeof(K) == 8 ? _mm_slli_epi64(lanes, 32) : lanes;
}

// Keys as the processor compares them: the better one of the best so far and a new one. The order of operands saves the
// compiler copies of registers.

struct keys_8u {
  using key                  = uint8_t;
  static constexpr key first = 0, last = UINT8_MAX;

  static __m128i larger(__m128i best, __m128i x) { return in_register(_mm_max_epu8(best, x), x); }
  static __m128i smaller(__m128i best, __m128i x) { return in_register(_mm_min_epu8(best, x), x); }
  static __m128i equal(__m128i a, __m128i b) { return _mm_cmpeq_epi8(a, b); }
};

struct keys_16s {
  using key                  = int16_t;
  static constexpr key first = INT16_MIN, last = INT16_MAX;

  static __m128i larger(__m128i best, __m128i x) { return in_register(_mm_max_epi16(best, x), x); }
  static __m128i smaller(__m128i best, __m128i x) { return in_register(_mm_min_epi16(best, x), x); }
  static __m128i equal(__m128i a, __m128i b) { return _mm_cmpeq_epi16(a, b); }
};

struct keys_32s {
  using key                  = int32_t;
  static constexpr key first = INT32_MIN, last = INT32_MAX;

  static __m128i larger(__m128i best, __m128i x) { return taken(_mm_cmpgt_epi32(x, best), best, x); }
  static __m128i smaller(__m128i best, __m128i x) { return taken(_mm_cmpgt_epi32(best, x), best, x); }
  static __m128i equal(__m128i a, __m128i b) { return _mm_cmpeq_epi32(a, b); }

 private:
  // x where the mask is set. An instruction of its own, so that the result stays in the register of the best.
  static __m128i taken(__m128i mask, __m128i best, __m128i x) {
    const __m128i differ = _mm_and_si128(_mm_xor_si128(x, best), mask);
    __asm__("pxor %1, %0" : "+x"(best) : "x"(differ));
    return best;
  }
};

// If either operand is a NaN, the processor takes the second one: so a new NaN takes no part.
struct keys_32f {
  using key                  = float;
  static constexpr key first = -__builtin_inff(), last = __builtin_inff();

  static __m128 larger(__m128 best, __m128 x) { return _mm_max_ps(x, best); }
  static __m128 smaller(__m128 best, __m128 x) { return _mm_min_ps(x, best); }
  static __m128 equal(__m128 a, __m128 b) { return _mm_cmpeq_ps(a, b); }
};

struct keys_64f {
  using key                  = double;
  static constexpr key first = -__builtin_inf(), last = __builtin_inf();

  static __m128d larger(__m128d best, __m128d x) { return _mm_max_pd(x, best); }
  static __m128d smaller(__m128d best, __m128d x) { return _mm_min_pd(x, best); }
  static __m128d equal(__m128d a, __m128d b) { return _mm_cmpeq_pd(a, b); }
};

// Elements as keys, one and many, and a key as the element that is reported.

template <class T, class Keys> struct themselves : Keys {
  using element = T;

  static T      key_of(T x) { return x; }
  static reg<T> keys_of(reg<T> x) { return x; }
  static T      reported(T k) { return k; }
};

template <class T, class Keys> struct without_sign : Keys {
  using element = T;
  using key     = typename Keys::key;

  static key     key_of(T x) { return key(x ^ T(Keys::first)); }
  static __m128i keys_of(__m128i x) { return _mm_xor_si128(x, repeated(Keys::first)); }
  static T       reported(key k) { return T(T(k) ^ T(Keys::first)); }
};

template <class Keys> struct magnitudes : Keys {
  using element = typename Keys::key;
  using key     = typename Keys::key;

  static key     key_of(element x) { return key((x < 0 ? -Tav32u(x) : Tav32u(x)) - 1); }
  static __m128i keys_of(__m128i x) {
    const __m128i one_less = _mm_set1_epi8(-1);
    return sizeof(key) == 2 ? _mm_add_epi16(_mm_abs_epi16(x), one_less) : _mm_add_epi32(_mm_abs_epi32(x), one_less);
  }
  static element reported(key k) { return element(k == Keys::last ? k : k + 1); }
};

// clang-format off
template <class T> struct order_of;
template <> struct order_of<Tav8u>  : themselves<Tav8u, keys_8u> {};
template <> struct order_of<Tav16u> : without_sign<Tav16u, keys_16s> {};
template <> struct order_of<Tav16s> : themselves<Tav16s, keys_16s> {};
template <> struct order_of<Tav32u> : without_sign<Tav32u, keys_32s> {};
template <> struct order_of<Tav32s> : themselves<Tav32s, keys_32s> {};
template <> struct order_of<Tav32f> : themselves<Tav32f, keys_32f> {};
template <> struct order_of<Tav64f> : themselves<Tav64f, keys_64f> {};

template <class T> struct magnitude_of;
template <> struct magnitude_of<Tav16s> : magnitudes<keys_16s> {};
template <> struct magnitude_of<Tav32s> : magnitudes<keys_32s> {};
// clang-format on

}  // namespace tav::TAV_VARIANT::extrema
