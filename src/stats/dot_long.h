// Sums of products of 32-bit integers, exactly: they take up to 94 bits.
//
// The registers multiply without signs. Sources that are lifted by 2^31 have none:
//
//   a b = (a + 2^31) (b + 2^31) - 2^31 (a + b) - 2^62
//
// So the lanes hold the sum of the lifted products, that of their upper halves, which tells what left the 64 bits of
// the first, and that of the lifted sources, even and odd ones in one lane as in dot_words.h. Doubles take between a
// half and three quarters of the time, but round each product, in an order that shows.
#pragma once
#include "stats/forms.h"
#include "stats/lane_sums.h"
#include "vector/forms.h"

namespace tav::TAV_VARIANT {

// high * 2^32 + low
struct dot_of_96_bits {
  Tav64s high = 0;
  Tav64u low  = 0;

  TAV_INLINE void add(Tav64s v) { high += v >> 32, low += Tav32u(v); }
  TAV_INLINE void add(const dot_of_96_bits& v) { high += v.high, low += v.low; }
  TAV_INLINE void carry() { high += Tav64s(low >> 32), low = Tav32u(low); }
};

struct dot_pair_of_96_bits {
  dot_of_96_bits re, im;

  TAV_INLINE void add(const dot_pair_of_96_bits& v) { re.add(v.re), im.add(v.im); }
};

TAV_INLINE __m128i lifted_longs(__m128i v) { return _mm_xor_si128(v, _mm_set1_epi32(INT32_MIN)); }
TAV_INLINE __m128i upper_halves(__m128i v) { return _mm_srli_epi64(v, 32); }

// Products come in twos, so that a sum that found no register is brought up to date but once a step.
class long_products {
 public:
  TAV_INLINE void add(__m128i p, __m128i q) {
    sum_   = _mm_add_epi64(sum_, _mm_add_epi64(p, q));
    upper_ = _mm_add_epi64(upper_, _mm_add_epi64(upper_halves(p), upper_halves(q)));
  }

  TAV_INLINE void add_difference(__m128i p, __m128i q) {
    sum_   = _mm_add_epi64(sum_, _mm_sub_epi64(p, q));
    upper_ = _mm_add_epi64(upper_, _mm_sub_epi64(upper_halves(p), upper_halves(q)));
  }

  TAV_INLINE void add(const long_products& p) {
    sum_ = _mm_add_epi64(sum_, p.sum_), upper_ = _mm_add_epi64(upper_, p.upper_);
  }

  // What it is without the lift: `words` is the sum of all factors as they were, `count` the number of products added
  // less that of those subtracted.
  TAV_INLINE dot_of_96_bits total(Tav64s words, Tav64u count) const {
    const Tav64s lower = sum_of_lanes_64(_mm_sub_epi64(sum_, _mm_slli_epi64(upper_, 32))) - ((words & 1) << 31);
    const Tav64u upper = Tav64u(sum_of_lanes_64(upper_)) - Tav64u(words >> 1) - (count << 30);
    return {Tav64s(upper + Tav64u(lower >> 32)), Tav32u(lower)};
  }

 private:
  __m128i sum_ = _mm_setzero_si128(), upper_ = _mm_setzero_si128();
};

template <class S> struct dot_of_longs : types<S, Tav32s, dot_of_96_bits> {
  struct partial {
    long_products products;
    __m128i       words;  // (even + odd) (1 + 2^32)
  };
  static constexpr reduce_shape shape = {.step = 4, .partials = 2};

  explicit dot_of_longs(size_t len) : count_(len / 4 * 4) {}

  TAV_INLINE partial start() const { return {{}, _mm_setzero_si128()}; }

  TAV_INLINE void many(partial& p, __m128i a, __m128i b) const {
    if constexpr (sizeof(S) == 2) a = low_half_as_32s(a);
    a = lifted_longs(a), b = lifted_longs(b);
    const __m128i a_odd = parts_exchanged(a), b_odd = parts_exchanged(b);
    p.words = _mm_add_epi64(p.words, _mm_add_epi64(_mm_add_epi64(a, b), _mm_add_epi64(a_odd, b_odd)));
    p.products.add(_mm_mul_epu32(a, b), _mm_mul_epu32(a_odd, b_odd));
  }

  TAV_INLINE void join(partial& p, const partial& q) const {
    p.products.add(q.products), p.words = _mm_add_epi64(p.words, q.words);
  }

  TAV_INLINE dot_of_96_bits total(const partial& p) const {
    const auto words = Tav64u(sum_of_lanes_64(p.words));
    return p.products.total(Tav64s(words - (words << 32) - (count_ << 32)), count_);
  }

  TAV_INLINE void one(dot_of_96_bits& sum, S a, Tav32s b) const { sum.add(Tav64s(a) * b); }

 private:
  Tav64u count_;
};

// Of both parts. The factors of even and of odd lanes, and with lanes exchanged: as in dot_words.h, but taken apart
// again at the end.
struct long_pair_sums {
  long_products re, im;
  __m128i       words = _mm_setzero_si128(), exchanged = _mm_setzero_si128();

  TAV_INLINE void add_factors(__m128i a, __m128i b, __m128i a_exchanged, __m128i b_exchanged) {
    words     = _mm_add_epi64(words, _mm_add_epi64(a, b));
    exchanged = _mm_add_epi64(exchanged, _mm_add_epi64(a_exchanged, b_exchanged));
  }

  TAV_INLINE void add(const long_pair_sums& p) {
    re.add(p.re), im.add(p.im);
    words = _mm_add_epi64(words, p.words), exchanged = _mm_add_epi64(exchanged, p.exchanged);
  }

  TAV_INLINE Tav64u even() const { return Tav64u(sum_of_lanes_64(words)) - (Tav64u(sum_of_lanes_64(exchanged)) << 32); }
  TAV_INLINE Tav64u odd() const { return Tav64u(sum_of_lanes_64(exchanged)) - (Tav64u(sum_of_lanes_64(words)) << 32); }
};

struct dot_of_longs_and_pairs : types<Tav32s, Tav32sc, dot_pair_of_96_bits> {
  using partial                       = long_pair_sums;
  static constexpr reduce_shape shape = {.step = 4, .partials = 1};

  explicit dot_of_longs_and_pairs(size_t len) : count_(len / 4 * 4) {}

  TAV_INLINE partial start() const { return {}; }

  TAV_INLINE void many(partial& p, __m128i a, several<__m128i, 2> b) const {
    a                 = lifted_longs(a);
    const __m128i low = _mm_unpacklo_epi32(a, a), high = _mm_unpackhi_epi32(a, a);
    const __m128i b_low = lifted_longs(b.r[0]), b_high = lifted_longs(b.r[1]);
    const __m128i odd_low = parts_exchanged(b_low), odd_high = parts_exchanged(b_high);
    p.add_factors(low, b_low, low, odd_low);
    p.add_factors(high, b_high, high, odd_high);
    p.re.add(_mm_mul_epu32(low, b_low), _mm_mul_epu32(high, b_high));
    p.im.add(_mm_mul_epu32(low, odd_low), _mm_mul_epu32(high, odd_high));
  }

  TAV_INLINE void join(partial& p, const partial& q) const { p.add(q); }

  TAV_INLINE dot_pair_of_96_bits total(const partial& p) const {
    return {p.re.total(Tav64s(p.even() - (count_ << 32)), count_),
            p.im.total(Tav64s(p.odd() - (count_ << 32)), count_)};
  }

  TAV_INLINE void one(dot_pair_of_96_bits& sum, Tav32s a, Tav32sc b) const {
    sum.re.add(Tav64s(a) * b.re), sum.im.add(Tav64s(a) * b.im);
  }

 private:
  Tav64u count_;
};

struct dot_of_long_pairs : types<Tav32sc, Tav32sc, dot_pair_of_96_bits> {
  using partial                       = long_pair_sums;
  static constexpr reduce_shape shape = {.step = 2, .partials = 2};

  explicit dot_of_long_pairs(size_t len) : count_(len / 2 * 4) {}

  TAV_INLINE partial start() const { return {}; }

  TAV_INLINE void many(partial& p, __m128i a, __m128i b) const {
    a = lifted_longs(a), b = lifted_longs(b);
    const __m128i a_odd = parts_exchanged(a), b_odd = parts_exchanged(b);
    p.add_factors(a, b, a_odd, b_odd);
    p.re.add_difference(_mm_mul_epu32(a, b), _mm_mul_epu32(a_odd, b_odd));
    p.im.add(_mm_mul_epu32(a, b_odd), _mm_mul_epu32(a_odd, b));
  }

  TAV_INLINE void join(partial& p, const partial& q) const { p.add(q); }

  TAV_INLINE dot_pair_of_96_bits total(const partial& p) const {
    return {p.re.total(Tav64s(p.even() - p.odd()), 0), p.im.total(Tav64s(p.even() + p.odd() - (count_ << 32)), count_)};
  }

  TAV_INLINE void one(dot_pair_of_96_bits& sum, Tav32sc a, Tav32sc b) const {
    sum.re.add(Tav64s(a.re) * b.re), sum.re.add(-(Tav64s(a.im) * b.im));
    sum.im.add(Tav64s(a.re) * b.im), sum.im.add(Tav64s(a.im) * b.re);
  }

 private:
  Tav64u count_;
};

}  // namespace tav::TAV_VARIANT
