// Sums and products wider than the elements they came from, held exactly in SSSE3 registers, and their way back:
// scaled, rounded to nearest with ties to even, and saturated to 32 bits.
//
// Three exact numbers for each lane: a sum of 33 bits, a product of two words, and one of 64 bits. Each has
// `saturated(x)` and `scaled_down<X>`; what shifts upward saturates first, since a number out of range stays out of it.
#pragma once
#include "frame/registers.h"

namespace tav::TAV_VARIANT {

constexpr int max_32s = 0x7FFFFFFF, min_32s = -max_32s - 1;

// The limit on the side of each lane's sign.
TAV_INLINE __m128i limit_32s(__m128i v) { return _mm_xor_si128(_mm_srai_epi32(v, 31), _mm_set1_epi32(max_32s)); }

// A sum of 33 bits: twice `half`, and 1 if bit 0 of `odd` is set. `wrapped` is its low 32 bits; the sign bit of
// `overflow` tells that they are not all.
struct exact_sum {
  __m128i half, odd, wrapped, overflow;
};

TAV_INLINE exact_sum sum_of(__m128i a, __m128i b) {
  const __m128i differ = _mm_xor_si128(a, b), wrapped = _mm_add_epi32(a, b);
  return {_mm_add_epi32(_mm_srai_epi32(differ, 1), _mm_and_si128(a, b)), differ, wrapped,
          _mm_and_si128(_mm_xor_si128(a, wrapped), _mm_xor_si128(b, wrapped))};
}

TAV_INLINE exact_sum difference_of(__m128i a, __m128i b) {
  const __m128i differ = _mm_xor_si128(a, b), wrapped = _mm_sub_epi32(a, b);
  return {_mm_sub_epi32(_mm_srai_epi32(differ, 1), _mm_andnot_si128(a, b)), differ, wrapped,
          _mm_and_si128(differ, _mm_xor_si128(a, wrapped))};
}

TAV_INLINE __m128i saturated(const exact_sum& x) {
  // A wrapped sum has the wrong sign.
  const __m128i limit = _mm_xor_si128(_mm_srai_epi32(x.wrapped, 31), _mm_set1_epi32(min_32s));
  return selected(_mm_srai_epi32(x.overflow, 31), limit, x.wrapped);
}

// A product of two words, which 32 bits hold with room to round.
struct exact_word_product {
  __m128i value;
};

// Words in the low halves of the registers.
TAV_INLINE exact_word_product word_product_of(__m128i a, __m128i b) {
  return {_mm_unpacklo_epi16(_mm_mullo_epi16(a, b), _mm_mulhi_epi16(a, b))};
}

TAV_INLINE __m128i saturated(const exact_word_product& x) { return x.value; }

// Products of 64 bits, of the lanes 0 and 2 and of the lanes 1 and 3. They stay within 2^62 + 2^31.
struct exact_product {
  __m128i even, odd;
};

// The same where the sum of two products fills all 64 bits.
struct exact_product_sum : exact_product {};

TAV_INLINE __m128i sign_64s() { return _mm_set1_epi64x(int64_t(1) << 63); }
TAV_INLINE __m128i low_words_of(__m128i v) { return _mm_and_si128(v, _mm_set1_epi64x(0xFFFFFFFFll)); }
TAV_INLINE __m128i high_words_of(__m128i v) { return _mm_andnot_si128(_mm_set1_epi64x(0xFFFFFFFFll), v); }

// What the unsigned products have too much in their high words: the other factor, for each negative one.
TAV_INLINE __m128i excess_of_unsigned(__m128i a, __m128i b) {
  return _mm_add_epi32(_mm_and_si128(_mm_srai_epi32(a, 31), b), _mm_and_si128(_mm_srai_epi32(b, 31), a));
}

TAV_INLINE exact_product unsigned_product_less(__m128i a, __m128i b, __m128i excess) {
  const __m128i even = _mm_mul_epu32(a, b), odd = _mm_mul_epu32(_mm_srli_epi64(a, 32), _mm_srli_epi64(b, 32));
  return {_mm_sub_epi64(even, _mm_slli_epi64(excess, 32)), _mm_sub_epi64(odd, high_words_of(excess))};
}

TAV_INLINE exact_product product_of(__m128i a, __m128i b) {
  return unsigned_product_less(a, b, excess_of_unsigned(a, b));
}

// a * b + c
TAV_INLINE exact_product product_plus(__m128i a, __m128i b, __m128i c) {
  const __m128i       excess = _mm_sub_epi32(excess_of_unsigned(a, b), _mm_srai_epi32(c, 31));
  const exact_product p      = unsigned_product_less(a, b, excess);
  return {_mm_add_epi64(p.even, low_words_of(c)), _mm_add_epi64(p.odd, _mm_srli_epi64(c, 32))};
}

// Complex products, made of numbers that are 2^31 larger and have no sign: a * b = A * B - 2^31 * (A + B) + 2^62.
//
// Only the imaginary part of the lowest numbers, 2^63, leaves the 64 bits, and no other value looks like it: it becomes
// 2^63 - 1, which scales to the same.
TAV_INLINE exact_product_sum complex_product_of(__m128i a, __m128i b) {
  a = _mm_xor_si128(a, _mm_set1_epi32(min_32s)), b = _mm_xor_si128(b, _mm_set1_epi32(min_32s));
  const __m128i a_im = _mm_srli_epi64(a, 32), b_im = _mm_srli_epi64(b, 32);
  const __m128i sum_re = _mm_add_epi64(low_words_of(a), low_words_of(b)), sum_im = _mm_add_epi64(a_im, b_im);

  __m128i re = _mm_sub_epi64(_mm_mul_epu32(a, b), _mm_mul_epu32(a_im, b_im));
  re         = _mm_sub_epi64(re, _mm_slli_epi64(_mm_sub_epi64(sum_re, sum_im), 31));
  __m128i im = _mm_add_epi64(_mm_mul_epu32(a, b_im), _mm_mul_epu32(a_im, b));
  im         = _mm_sub_epi64(im, _mm_slli_epi64(_mm_add_epi64(sum_re, sum_im), 31));
  im         = _mm_xor_si128(im, sign_64s());

  const __m128i wrapped = _mm_cmpeq_epi32(im, sign_64s());
  return {{re, _mm_add_epi64(im, _mm_shuffle_epi32(wrapped, _MM_SHUFFLE(3, 3, 1, 1)))}};
}

template <int Word> TAV_INLINE __m128i words_of(const exact_product& x) {  // of the lanes 0, 2, 1, 3
  constexpr int pick = _MM_SHUFFLE(2 + Word, Word, 2 + Word, Word);
  return _mm_castps_si128(_mm_shuffle_ps(_mm_castsi128_ps(x.even), _mm_castsi128_ps(x.odd), pick));
}

TAV_INLINE __m128i in_order(__m128i lanes_0213) { return _mm_shuffle_epi32(lanes_0213, _MM_SHUFFLE(3, 1, 2, 0)); }

TAV_INLINE __m128i saturated(const exact_product& x) {
  const __m128i low = words_of<0>(x), high = words_of<1>(x);
  const __m128i fits = _mm_cmpeq_epi32(high, _mm_srai_epi32(low, 31));
  return in_order(selected(fits, low, limit_32s(high)));
}

// The scales: what becomes of an exact number.
struct unscaled {
  template <class X> __m128i of(const X& x) const { return saturated(x); }
};

class scaled_up {  // by 1 to 32 bits
 public:
  explicit scaled_up(int by) : by_(_mm_cvtsi32_si128(by)) {}

  template <class X> __m128i of(const X& x) const {
    const __m128i v = saturated(x), shifted = _mm_sll_epi32(v, by_);
    return selected(_mm_cmpeq_epi32(_mm_sra_epi32(shifted, by_), v), shifted, limit_32s(v));
  }

 private:
  __m128i by_;
};

template <class X> class scaled_down;

struct halved {  // a sum; the half of the largest difference must not round up
  __m128i of(const exact_sum& x) const {
    const __m128i tie = _mm_and_si128(_mm_and_si128(x.odd, x.half), _mm_set1_epi32(1));
    return _mm_add_epi32(x.half, _mm_andnot_si128(_mm_cmpeq_epi32(x.half, _mm_set1_epi32(max_32s)), tie));
  }
};

// By 2 to 32 bits: the bits cut off are rounded by themselves, for want of room above the half.
template <> class scaled_down<exact_sum> {
 public:
  explicit scaled_down(int s)
      : by_(_mm_cvtsi32_si128(s - 1)),
        cut_off_(_mm_set1_epi32(int((1u << (s - 1)) - 1))),
        below_tie_(_mm_set1_epi32(int((1u << (s - 2)) - 1))) {}

  __m128i of(const exact_sum& x) const {
    const __m128i kept = _mm_sra_epi32(x.half, by_), rest = _mm_and_si128(x.half, cut_off_);
    const __m128i rises_at_tie = _mm_and_si128(_mm_or_si128(kept, x.odd), _mm_set1_epi32(1));
    return _mm_add_epi32(kept, _mm_srl_epi32(_mm_add_epi32(_mm_add_epi32(rest, below_tie_), rises_at_tie), by_));
  }

 private:
  __m128i by_, cut_off_, below_tie_;
};

template <> class scaled_down<exact_word_product> {  // by 1 to 30 bits
 public:
  explicit scaled_down(int s) : by_(_mm_cvtsi32_si128(s)), below_tie_(_mm_set1_epi32((1 << (s - 1)) - 1)) {}

  __m128i of(const exact_word_product& x) const {
    const __m128i odd = _mm_and_si128(_mm_sra_epi32(x.value, by_), _mm_set1_epi32(1));
    return _mm_sra_epi32(_mm_add_epi32(_mm_add_epi32(x.value, below_tie_), odd), by_);
  }

 private:
  __m128i by_, below_tie_;
};

// Lanes of 64 bits have no arithmetic shift. 2^63 more than the number is never negative, and shifts logically.
template <> class scaled_down<exact_product> {  // by 1 to 62 bits
 public:
  explicit scaled_down(int s)
      : by_(_mm_cvtsi32_si128(s)),
        lifted_below_tie_(_mm_set1_epi64x(int64_t((uint64_t(1) << 63) + (uint64_t(1) << (s - 1)) - 1))),
        lift_(_mm_set1_epi64x(int64_t(1) << (63 - s))) {}

  __m128i of(const exact_product& x) const { return saturated(exact_product{rounded(x.even), rounded(x.odd)}); }

 private:
  __m128i rounded(__m128i v) const {
    const __m128i odd = _mm_and_si128(_mm_srl_epi64(v, by_), _mm_set1_epi64x(1));
    return _mm_sub_epi64(_mm_srl_epi64(_mm_add_epi64(_mm_add_epi64(v, lifted_below_tie_), odd), by_), lift_);
  }

  __m128i by_, lifted_below_tie_, lift_;
};

template <> class scaled_down<exact_product_sum> {  // by 1 to 63 bits; here too the bits cut off go by themselves
 public:
  explicit scaled_down(int s)
      : by_(_mm_cvtsi32_si128(s)),
        cut_off_(_mm_set1_epi64x(int64_t((uint64_t(1) << s) - 1))),
        below_tie_(_mm_set1_epi64x((int64_t(1) << (s - 1)) - 1)),
        lift_(_mm_set1_epi64x(int64_t(1) << (63 - s))) {}

  __m128i of(const exact_product_sum& x) const { return saturated(exact_product{rounded(x.even), rounded(x.odd)}); }

 private:
  __m128i rounded(__m128i v) const {
    const __m128i kept = _mm_srl_epi64(_mm_xor_si128(v, sign_64s()), by_);
    const __m128i odd  = _mm_and_si128(_mm_srl_epi64(v, by_), _mm_set1_epi64x(1));
    const __m128i rest = _mm_add_epi64(_mm_add_epi64(_mm_and_si128(v, cut_off_), below_tie_), odd);
    return _mm_add_epi64(_mm_sub_epi64(kept, lift_), _mm_srl_epi64(rest, by_));
  }

  __m128i by_, cut_off_, below_tie_, lift_;
};

}  // namespace tav::TAV_VARIANT
