// Exact sums of integers, and their way to a result: times 2^-s, divided by a count, rounded and saturated.
#pragma once
#include "stats/lane_sums.h"
#include "vector/to_integer.h"

namespace tav::TAV_VARIANT {

template <class T> struct exact_sum_of;

// What several instructions need they would rather load again, one by one, than copy.
TAV_INLINE __m128i loaded_once(__m128i v) {
  __asm__("" : "+x"(v));
  return v;
}

struct sum_in_32_bits {
  using partial = __m128i;

  static partial start() { return _mm_setzero_si128(); }
  static void    join(partial& p, partial other) { p = _mm_add_epi32(p, other); }
};

template <> struct exact_sum_of<Tav16s> : sum_in_32_bits {
  static constexpr reduce_shape shape{.step = 8};

  static void    many(partial& p, __m128i v) { join(p, _mm_madd_epi16(v, _mm_set1_epi16(1))); }
  static int64_t total(partial p) { return sum_of_lanes_32(p); }
  static void    one(int64_t& sum, Tav16s v) { sum += v; }
};

template <> struct exact_sum_of<Tav16sc> : sum_in_32_bits {
  static constexpr reduce_shape shape{.step = 4};

  static void many(partial& p, __m128i v) {  // neighbours become re, re, im, im
    const __m128i order = _mm_setr_epi8(0, 1, 4, 5, 2, 3, 6, 7, 8, 9, 12, 13, 10, 11, 14, 15);
    join(p, _mm_madd_epi16(_mm_shuffle_epi8(v, order), _mm_set1_epi16(1)));
  }
  static Tav64sc total(partial p) { return sum_of_pairs_32(p); }
  static void    one(Tav64sc& sum, Tav16sc v) { sum = total_of(sum, {v.re, v.im}); }
};

// Lanes of 32 bits hold the sum modulo 2^32 and the sum of the upper halves. What the sum of the lower halves adds to
// the latter has no sign, and is known from the former.
template <> struct exact_sum_of<Tav32s> {
  static constexpr reduce_shape shape{.step = 8, .partials = 1};  // integer additions wait for none

  struct partial {
    __m128i wrapped, upper;
  };

  static partial start() { return {_mm_setzero_si128(), _mm_setzero_si128()}; }
  static void    many(partial& p, const several<__m128i, 2>& v) { add(p, v.r[0]), add(p, v.r[1]); }
  static void    add(partial& p, __m128i v) {
       p.wrapped = _mm_add_epi32(p.wrapped, v);
       p.upper   = _mm_add_epi32(p.upper, _mm_srai_epi32(v, 16));
  }
  static int64_t total(const partial& p) {
    const __m128i lower = _mm_sub_epi32(p.wrapped, _mm_slli_epi32(p.upper, 16));
    return sum_of_lanes_32(p.upper) * 0x10000 + sum_of_lanes_32_unsigned(lower);
  }
  static void one(int64_t& sum, Tav32s v) { sum += v; }
};

template <class T> auto exact_sum_over(size_t len, const T* src) {
  return sum_of_blocks<block_of_words>(exact_sum_of<T>{}, len, src);
}

// For a result of 32 bits: exact up to 2^53, and beyond with a lowest bit that tells of all those cut off, so that the
// result is rounded as the sum itself would be.
TAV_INLINE Tav64f as_double(int64_t sum) {
  constexpr int64_t exact = int64_t(1) << 53, cut = 0x7FF, lowest = 0x800;
  if (sum > exact || sum < -exact) sum = (sum & ~cut) | ((sum & cut) != 0 ? lowest : 0);
  return Tav64f(sum);
}

// v * 2^-s. Every sum that is not 0 is past all roundings at 128 bits downward, and saturates at as many upward.
TAV_INLINE Tav64f times_scale(Tav64f v, int s) {
  constexpr int enough = 128;
  return v * power_of_two_minus<Tav64f>(s > enough ? enough : s < -enough ? -enough : s);
}

// To an integer of 16 or 32 bits, in the rounding mode that the thread is in.
template <class D> TAV_INLINE D rounded_to(Tav64f v) {
  constexpr Tav64f lowest = sizeof(D) == 2 ? -0x1p15 : -0x1p31, highest = -lowest - 1;
  return D(_mm_cvtsd_si32(limited(_mm_set_sd(v), lowest, highest)));
}

// The mean of words, from their sum.
template <class D> TAV_INLINE D mean_of(int64_t sum, size_t len, int s) {
  return rounded_to<D>(times_scale(Tav64f(sum), s) / Tav64f(int(len)));
}

}  // namespace tav::TAV_VARIANT
