// What the comparison sort works on: registers full of keys, alone or each with its index beside it.
//
// Keys are signed integers of 16 or 32 bits, or doubles without NaNs. An index has the width of its key, so that one
// mask serves both. A comparison makes a mask, and elements are exchanged as bits under it: whatever the keys are, each
// of them is kept, which the minimum and the maximum of two floats would not promise.
#pragma once
#include "frame/registers.h"

namespace tav::TAV_VARIANT::sorting {

template <int Bytes> struct key_vector {
  static constexpr int bytes = Bytes, lanes = 16 / Bytes;
  using alone = key_vector;
  __m128i key;
};

template <int Bytes> struct pair_vector {
  static constexpr int bytes = Bytes, lanes = 16 / Bytes;
  using alone = key_vector<Bytes>;
  __m128i key, index;
};

// f over the parts of one or more vectors.
template <int B, class F, class... More> TAV_INLINE key_vector<B> by_part(F f, key_vector<B> a, More... more) {
  return {f(a.key, more.key...)};
}
template <int B, class F, class... More> TAV_INLINE pair_vector<B> by_part(F f, pair_vector<B> a, More... more) {
  return {f(a.key, more.key...), f(a.index, more.index...)};
}

// The lanes in which a is greater.
template <class V, class W> TAV_INLINE __m128i above(V a, W b) {
  if constexpr (V::bytes == 2)
    return _mm_cmpgt_epi16(a.key, b.key);
  else if constexpr (V::bytes == 4)
    return _mm_cmpgt_epi32(a.key, b.key);
  else
    return _mm_castpd_si128(_mm_cmplt_pd(_mm_castsi128_pd(b.key), _mm_castsi128_pd(a.key)));
}

// One bit a lane.
template <class V> TAV_INLINE unsigned bits_of(__m128i mask) {
  if constexpr (V::bytes == 2)
    return unsigned(_mm_movemask_epi8(_mm_packs_epi16(mask, _mm_setzero_si128())));
  else if constexpr (V::bytes == 4)
    return unsigned(_mm_movemask_ps(_mm_castsi128_ps(mask)));
  else
    return unsigned(_mm_movemask_pd(_mm_castsi128_pd(mask)));
}

template <class V> TAV_INLINE V shuffled(V a, __m128i order) {
  return by_part([&](__m128i p) { return _mm_shuffle_epi8(p, order); }, a);
}

template <class V> TAV_INLINE void exchange_where(__m128i mask, V& a, V& b) {
  const V change = by_part([&](__m128i p, __m128i q) { return _mm_and_si128(_mm_xor_si128(p, q), mask); }, a, b);
  a              = by_part([](__m128i p, __m128i c) { return _mm_xor_si128(p, c); }, a, change);
  b              = by_part([](__m128i p, __m128i c) { return _mm_xor_si128(p, c); }, b, change);
}

// The lesser of each two lanes to a, the greater to b.
template <class V> TAV_INLINE void in_order(V& a, V& b) { exchange_where(above(a, b), a, b); }
TAV_INLINE void                    in_order(key_vector<2>& a, key_vector<2>& b) {
                     const __m128i low = _mm_min_epi16(a.key, b.key);
                     b.key             = _mm_max_epi16(a.key, b.key);
                     a.key             = low;
}

// The lanes of a and b in turns, from their lower halves and from their upper ones.
template <class V> TAV_INLINE void interleave(V& a, V& b) {
  const V low = by_part(
      [](__m128i p, __m128i q) {
        if constexpr (V::bytes == 2) return _mm_unpacklo_epi16(p, q);
        if constexpr (V::bytes == 4) return _mm_unpacklo_epi32(p, q);
        if constexpr (V::bytes == 8) return _mm_unpacklo_epi64(p, q);
      },
      a, b);
  const V high = by_part(
      [](__m128i p, __m128i q) {
        if constexpr (V::bytes == 2) return _mm_unpackhi_epi16(p, q);
        if constexpr (V::bytes == 4) return _mm_unpackhi_epi32(p, q);
        if constexpr (V::bytes == 8) return _mm_unpackhi_epi64(p, q);
      },
      a, b);
  a = low, b = high;
}

// A vector whose lanes are not below any key.
template <class V> TAV_INLINE __m128i greatest_key() {
  if constexpr (V::bytes == 2) return _mm_set1_epi16(0x7FFF);
  if constexpr (V::bytes == 4) return _mm_set1_epi32(0x7FFFFFFF);
  if constexpr (V::bytes == 8) return _mm_set_epi32(0x7FF00000, 0, 0x7FF00000, 0);  // infinity
}

// The lowest lane in all of them.
template <class V> TAV_INLINE V repeated_lane(V a) {
  if constexpr (V::bytes == 2) return shuffled(a, _mm_set1_epi16(0x0100));
  if constexpr (V::bytes == 4) return by_part([](__m128i p) { return _mm_shuffle_epi32(p, 0); }, a);
  if constexpr (V::bytes == 8) return by_part([](__m128i p) { return _mm_unpacklo_epi64(p, p); }, a);
}

}  // namespace tav::TAV_VARIANT::sorting
