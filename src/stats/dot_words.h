// Sums of products of words, exactly, in 64 bits: any number of them.
//
// Two products add up in 32 bits, all but one case: -32768 four times makes 2^31, which reads as -2^31. With a bias
// that makes every such sum a number from 0 to 2^32 - 1, that one too is right, and lanes of 64 bits can be filled
// without signs. Two sums, even and odd, lie in each of these lanes: x = even + odd 2^32. Added once as they are and
// once with the two exchanged, they make (even + odd) (1 + 2^32) modulo 2^64; and that times 1 - 2^32 is even + odd
// modulo 2^64, for as many as there may be. This takes two additions and a shuffle; signs or halves taken apart take
// more.
#pragma once
#include "stats/forms.h"
#include "stats/lane_sums.h"
#include "vector/forms.h"

namespace tav::TAV_VARIANT {

class word_products {
 public:
  TAV_INLINE void add(__m128i a, __m128i b) {
    const __m128i sums = _mm_add_epi32(_mm_madd_epi16(a, b), _mm_set1_epi32(bias));
    doubled_           = _mm_add_epi64(doubled_, sums);
    doubled_           = _mm_add_epi64(doubled_, parts_exchanged(sums));
  }

  TAV_INLINE void add(const word_products& other) { doubled_ = _mm_add_epi64(doubled_, other.doubled_); }

  // Of the low four words and of the high four, after as many additions.
  TAV_INLINE __m128i lanes(size_t additions) const {
    const auto all_bias = Tav64s(Tav64u(additions) * 2 * Tav64u(bias));
    return _mm_sub_epi64(_mm_sub_epi64(doubled_, _mm_slli_epi64(doubled_, 32)), _mm_set1_epi64x(all_bias));
  }

 private:
  static constexpr int bias = 2 * 32767 * 32768;  // what the lowest sum lacks to 0

  __m128i doubled_ = _mm_setzero_si128();
};

// Pairs with their real parts in the low half of the register and the imaginary ones in the high half.
TAV_INLINE __m128i parts_apart(__m128i pairs) {
  return _mm_shuffle_epi8(pairs, _mm_setr_epi8(0, 1, 4, 5, 8, 9, 12, 13, 2, 3, 6, 7, 10, 11, 14, 15));
}

struct dot_of_words : types<Tav16s, Tav16s, Tav64s> {
  using partial                       = word_products;
  static constexpr reduce_shape shape = {.step = 8};

  explicit dot_of_words(size_t len) : additions(len / 8) {}

  TAV_INLINE partial start() const { return {}; }
  TAV_INLINE void    many(partial& p, __m128i a, __m128i b) const { p.add(a, b); }
  TAV_INLINE void    join(partial& p, const partial& q) const { p.add(q); }
  TAV_INLINE Tav64s  total(const partial& p) const { return sum_of_lanes_64(p.lanes(additions)); }
  TAV_INLINE void    one(Tav64s& sum, Tav16s a, Tav16s b) const { sum += a * b; }

 private:
  size_t additions;
};

struct dot_of_words_and_pairs : types<Tav16s, Tav16sc, Tav64sc> {
  using partial                       = word_products;
  static constexpr reduce_shape shape = {.step = 4};

  explicit dot_of_words_and_pairs(size_t len) : additions(len / 4) {}

  TAV_INLINE partial start() const { return {}; }
  TAV_INLINE void    many(partial& p, __m128i a, __m128i b) const { p.add(_mm_unpacklo_epi64(a, a), parts_apart(b)); }
  TAV_INLINE void    join(partial& p, const partial& q) const { p.add(q); }
  TAV_INLINE Tav64sc total(const partial& p) const { return pair_of_lanes_64(p.lanes(additions)); }
  TAV_INLINE void    one(Tav64sc& sum, Tav16s a, Tav16sc b) const { sum.re += a * b.re, sum.im += a * b.im; }

 private:
  size_t additions;
};

struct dot_of_word_pairs : types<Tav16sc, Tav16sc, Tav64sc> {
  struct partial {
    word_products straight, crossed;  // re re | im im, and re im | im re
  };
  static constexpr reduce_shape shape = {.step = 4, .partials = 2};

  explicit dot_of_word_pairs(size_t len) : additions(len / 4) {}

  TAV_INLINE partial start() const { return {}; }

  TAV_INLINE void many(partial& p, __m128i a, __m128i b) const {
    a = parts_apart(a), b = parts_apart(b);
    p.straight.add(a, b);
    p.crossed.add(a, _mm_shuffle_epi32(b, _MM_SHUFFLE(1, 0, 3, 2)));
  }

  TAV_INLINE void join(partial& p, const partial& q) const { p.straight.add(q.straight), p.crossed.add(q.crossed); }

  TAV_INLINE Tav64sc total(const partial& p) const {
    const Tav64sc straight = pair_of_lanes_64(p.straight.lanes(additions));
    return {straight.re - straight.im, sum_of_lanes_64(p.crossed.lanes(additions))};
  }

  TAV_INLINE void one(Tav64sc& sum, Tav16sc a, Tav16sc b) const {
    sum.re += a.re * b.re, sum.re -= a.im * b.im;
    sum.im += a.re * b.im, sum.im += a.im * b.re;
  }

 private:
  size_t additions;
};

}  // namespace tav::TAV_VARIANT
