// Sums, differences and products of 8- and 16-bit elements, exact: what the scaled forms of Add, Sub, Mul, their
// constant forms and AddProduct compute before the scale factor. Complex elements are taken part by part, but for the
// complex product.
#pragma once
#include "vector/narrow_scale.h"

namespace tav::TAV_VARIANT {

template <class I> struct complex_of { I re, im; };

// What is computed; `neutral` is the constant that leaves the first operand as it is.
struct added {
  static constexpr int                      neutral  = 0;
  template <class T> static constexpr reach reach_of = reach::inner;
  static int                                one(int a, int b) { return a + b; }
  template <class Row> static pair_of_lanes many(__m128i a, __m128i b) { return Row::sum(a, b); }
  template <class Row> static __m128i       saturated(__m128i a, __m128i b) { return Row::saturated_sum(a, b); }
};

struct subtracted {  // the second from the first
  static constexpr int                      neutral  = 0;
  template <class T> static constexpr reach reach_of = reach::inner;
  static int                                one(int a, int b) { return a - b; }
  template <class Row> static pair_of_lanes many(__m128i a, __m128i b) { return Row::difference(a, b); }
  template <class Row> static __m128i       saturated(__m128i a, __m128i b) { return Row::saturated_difference(a, b); }
};

struct multiplied {
  static constexpr int neutral = 1;
  template <class T>
  static constexpr reach reach_of = std::is_same_v<T, Tav16s> ? reach::inner : reach::top_bit_unsigned;
  static int64_t         one(int64_t a, int64_t b) { return a * b; }
  template <class Row> static pair_of_lanes many(__m128i a, __m128i b) { return Row::product(a, b); }
};

// Where one instruction gives the saturated result at s = 0.
template <class F>
concept saturates = !std::is_same_v<F, multiplied>;

// F of two sources; Swapped: of the second and the first.
template <class F, class T, bool Swapped = false> struct of_two : narrow_types<T, T, T> {
  using part                          = T;
  static constexpr reach result_reach = F::template reach_of<T>;

  static auto          exact(T a, T b) { return Swapped ? F::one(b, a) : F::one(a, b); }
  static pair_of_lanes exact_many(__m128i a, __m128i b) {
    return Swapped ? F::template many<narrow_row<T>>(b, a) : F::template many<narrow_row<T>>(a, b);
  }
  static __m128i saturated_many(__m128i a, __m128i b) requires saturates<F> {
    return Swapped ? F::template saturated<narrow_row<T>>(b, a) : F::template saturated<narrow_row<T>>(a, b);
  }
};

// F of a source and a constant; Swapped: of the constant and the source.
template <class F, class T, bool Swapped = false> struct of_constant : narrow_types<T, T, T> {
  using part                          = part_of<T>;
  static constexpr reach result_reach = F::template reach_of<part>;

  explicit of_constant(T v) : val(v), all(repeated(v)) {}

  static bool keeps(T v) {
    if constexpr (std::is_same_v<T, part>)
      return !Swapped && v == F::neutral;
    else
      return !Swapped && v.re == F::neutral && v.im == F::neutral;
  }
  static bool clears(T v) {
    if constexpr (std::is_same_v<F, multiplied>)
      return v == 0;
    else
      return false;
  }

  auto exact(T a) const {
    if constexpr (std::is_same_v<T, part>)
      return of_parts(a, val);
    else
      return complex_of<decltype(of_parts(a.re, val.re))>{of_parts(a.re, val.re), of_parts(a.im, val.im)};
  }
  pair_of_lanes exact_many(__m128i a) const {
    return Swapped ? F::template many<narrow_row<part>>(all, a) : F::template many<narrow_row<part>>(a, all);
  }
  __m128i saturated_many(__m128i a) const requires saturates<F> {
    return Swapped ? F::template saturated<narrow_row<part>>(all, a) : F::template saturated<narrow_row<part>>(a, all);
  }

 private:
  static auto of_parts(part a, part v) { return Swapped ? F::one(v, a) : F::one(a, v); }

  T       val;
  __m128i all;
};

// a * b of complex elements. Parts reach 2^31 only where all four inputs are -32768, and only from above: there the
// 32-bit lane wraps to its lowest value, which no other input gives, and 2^31 - 1 scales to the same result.
struct complex_product_16sc : narrow_types<Tav16sc, Tav16sc, Tav16sc> {
  using part                          = Tav16s;
  static constexpr reach result_reach = reach::top_bit;

  static complex_of<int64_t> exact(Tav16sc a, Tav16sc b) {
    return {int64_t(a.re) * b.re - int64_t(a.im) * b.im, int64_t(a.re) * b.im + int64_t(a.im) * b.re};
  }
  static pair_of_lanes exact_many(__m128i a, __m128i b) {
    // -b.im is taken as ~b.im + 1, for -32768 has no negative: a.re * b.re + a.im * ~b.im, and a.im once more.
    const __m128i turned = _mm_xor_si128(b, _mm_set1_epi32(int(0xFFFF0000)));
    const __m128i re     = _mm_add_epi32(_mm_madd_epi16(a, turned), _mm_srai_epi32(a, 16));
    const __m128i wraps  = _mm_madd_epi16(a, _mm_or_si128(_mm_slli_epi32(b, 16), _mm_srli_epi32(b, 16)));
    const __m128i im     = _mm_add_epi32(wraps, _mm_cmpeq_epi32(wraps, _mm_set1_epi32(INT32_MIN)));
    return {{_mm_unpacklo_epi32(re, im), _mm_unpackhi_epi32(re, im)}};
  }
};

struct complex_times_constant_16sc : narrow_types<Tav16sc, Tav16sc, Tav16sc> {
  using part                          = Tav16s;
  static constexpr reach result_reach = reach::top_bit;

  explicit complex_times_constant_16sc(Tav16sc v) : val(v), all(repeated(v)) {}

  static bool keeps(Tav16sc v) { return v.re == 1 && v.im == 0; }
  static bool clears(Tav16sc) { return false; }

  complex_of<int64_t> exact(Tav16sc a) const { return complex_product_16sc::exact(a, val); }
  pair_of_lanes       exact_many(__m128i a) const { return complex_product_16sc::exact_many(a, all); }

 private:
  Tav16sc val;
  __m128i all;
};

struct product_16u16s : narrow_types<Tav16u, Tav16s, Tav16s> {
  using part                          = Tav16s;
  static constexpr reach result_reach = reach::top_bit;

  static int64_t       exact(Tav16u a, Tav16s b) { return int64_t(a) * b; }
  static pair_of_lanes exact_many(__m128i a, __m128i b) {
    const __m128i low =
        _mm_mullo_epi16(a, b);  // the signed high word of a taken as signed lacks b where a's top bit is set
    const __m128i high = _mm_add_epi16(_mm_mulhi_epi16(a, b), _mm_and_si128(_mm_srai_epi16(a, 15), b));
    return {{_mm_unpacklo_epi16(low, high), _mm_unpackhi_epi16(low, high)}};
  }
};

struct product_and_sum_16s : narrow_types<Tav16s, Tav16s, Tav16s> {
  using part                          = Tav16s;
  using row                           = narrow_row<Tav16s>;
  static constexpr reach result_reach = reach::top_bit;

  static int64_t       exact(Tav16s a, Tav16s b, Tav16s sum) { return int64_t(a) * b + sum; }
  static pair_of_lanes exact_many(__m128i a, __m128i b, __m128i sum) {
    return each(row::add, row::product(a, b), row::widen(sum));
  }
};

}  // namespace tav::TAV_VARIANT
