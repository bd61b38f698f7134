// tavsMul_*, tavsMulC_*, tavsAddProduct_* with results of 32 bits, scaled.
#include "frame/bind.h"
#include "frame/rounding.h"
#include "vector/wide_ops.h"

namespace tav::TAV_VARIANT {

constexpr scale_range products{.zero_above = 62, .sign_from = -32};
constexpr scale_range complex_products{.zero_above = 63, .sign_from = -32};
constexpr scale_range word_products{.zero_above = 30, .sign_from = -31};
constexpr scale_range word_products_plus{.zero_above = 32, .sign_from = -31};
constexpr scale_range products_plus{.zero_above = 62, .sign_from = -31};  // 63 could give 1, and gives 0

struct product_32s : wide_types<exact_product, Tav32s, Tav32s, Tav32s> {
  static exact_product exact(__m128i a, __m128i b) { return product_of(a, b); }
};

struct product_32s32sc : wide_types<exact_product, Tav32s, Tav32sc, Tav32sc> {
  static exact_product exact(__m128i re, __m128i b) {
    return product_of(_mm_shuffle_epi32(re, _MM_SHUFFLE(1, 1, 0, 0)), b);
  }
};

struct product_32sc : wide_types<exact_product_sum, Tav32sc, Tav32sc, Tav32sc> {
  static exact_product_sum exact(__m128i a, __m128i b) { return complex_product_of(a, b); }
};

struct product_16s32s : wide_types<exact_word_product, Tav16s, Tav16s, Tav32s> {
  static exact_word_product exact(__m128i a, __m128i b) { return word_product_of(a, b); }
};

struct product_plus_16s32s : wide_types<exact_sum, Tav16s, Tav16s, Tav32s> {
  static exact_sum exact(__m128i a, __m128i b, __m128i c) { return sum_of(word_product_of(a, b).value, c); }
};

struct product_plus_32s : wide_types<exact_product, Tav32s, Tav32s, Tav32s> {
  static exact_product exact(__m128i a, __m128i b, __m128i c) { return product_plus(a, b, c); }
};

// tavsMul_32s alone multiplies in double precision. Products beyond 2^53 lose low bits before they are scaled, so that
// some results next to a tie differ from those of the exact products: this is how the function is defined.
template <bool Scaled> struct double_kernel {
  static constexpr kernel_shape shape = wide_shape;

  __m128d multiplier;

  Tav32s  one(Tav32s a, Tav32s b) const { return from_a_lane<Tav32s>(two(in_a_lane(a), in_a_lane(b))); }
  __m128i many(__m128i a, __m128i b) const {
    return _mm_unpacklo_epi64(two(a, b), two(_mm_unpackhi_epi64(a, a), _mm_unpackhi_epi64(b, b)));
  }

 private:
  __m128i two(__m128i a, __m128i b) const {
    __m128d product = _mm_cvtepi32_pd(a);
    if constexpr (Scaled) product = _mm_mul_pd(product, multiplier);
    product = _mm_mul_pd(product, _mm_cvtepi32_pd(b));
    product = _mm_max_pd(_mm_min_pd(product, _mm_set1_pd(max_32s)), _mm_set1_pd(min_32s));
    return _mm_cvtpd_epi32(product);
  }
};

template <class With> struct each_multiplier {
  const With& with;

  TavStatus none() const { return with(double_kernel<false>{}); }
  TavStatus up(int by) const { return with(double_kernel<true>{power_of_two(by)}); }
  TavStatus down(int by) const { return up(-by); }

 private:
  static __m128d power_of_two(int n) { return _mm_castsi128_pd(_mm_set1_epi64x(int64_t(1023 + n) << 52)); }
};

struct mul_32s : types<Tav32s, Tav32s, Tav32s> {
  template <class S> static TavStatus run(int s, Tav32s* dst, size_t len, const Tav32s* src1, S src2) {
    const round_to_nearest scope;
    const auto with = [&](const auto& kernel) { return elementwise(kernel, dst, len, src1, source(dst, src2)); };
    return with_scale<products>(s, dst, len, each_multiplier<decltype(with)>{with});
  }
};

// tavsMul_Low_32s: a word of the product, neither rounded nor saturated.
struct low_words {
  __m128i of(const exact_product& x) const { return in_order(words_of<0>(x)); }
};

struct low_words_up {
  __m128i by;
  __m128i of(const exact_product& x) const { return in_order(_mm_sll_epi32(words_of<0>(x), by)); }
};

struct low_words_down {  // by less than 32 bits
  __m128i by;
  __m128i of(const exact_product& x) const {
    return low_words{}.of({_mm_srl_epi64(x.even, by), _mm_srl_epi64(x.odd, by)});
  }
};

struct high_words_down {
  __m128i by;
  __m128i of(const exact_product& x) const { return in_order(_mm_sra_epi32(words_of<1>(x), by)); }
};

template <class With> struct each_low_scale {
  const With& with;

  TavStatus none() const { return with(low_words{}); }
  TavStatus up(int by) const { return with(low_words_up{_mm_cvtsi32_si128(by)}); }
  TavStatus down(int s) const {
    if (s < 32) return with(low_words_down{_mm_cvtsi32_si128(s)});
    return with(high_words_down{_mm_cvtsi32_si128(s - 32)});
  }
};

struct product_low_32s : product_32s {
  template <class Op, class With> using scales = each_low_scale<With>;
};

// What a constant makes superfluous.
template <class Op> using times = zero_clears<one_keeps<by_constant<Op>>>;

using mul_low_32s        = scaled<product_low_32s, products>;
using mul_32s32sc        = scaled<product_32s32sc, products>;
using mul_32sc           = scaled<product_32sc, complex_products>;
using mul_16s32s         = scaled<product_16s32s, word_products>;
using mul_c_32s          = scaled<times<product_32s>, products>;
using mul_c_32sc         = scaled<times<product_32sc>, complex_products>;
using add_product_16s32s = scaled<product_plus_16s32s, word_products_plus>;
using add_product_32s    = scaled<product_plus_32s, products_plus>;

TAV_BIND(Mul_32s_Sfs, &two_sources_scaled<mul_32s>)
TAV_BIND(Mul_32s_ISfs, &in_place_scaled<mul_32s>)
TAV_BIND(Mul_32sc_Sfs, &two_sources_scaled<mul_32sc>)
TAV_BIND(Mul_32sc_ISfs, &in_place_scaled<mul_32sc>)
TAV_BIND(Mul_32s32sc_Sfs, &two_sources_scaled<mul_32s32sc>)
TAV_BIND(Mul_32s32sc_ISfs, &in_place_scaled<mul_32s32sc>)
TAV_BIND(Mul_16s32s_Sfs, &two_sources_scaled<mul_16s32s>)
TAV_BIND(Mul_Low_32s_Sfs, &two_sources_scaled<mul_low_32s>)

TAV_BIND(MulC_32s_Sfs, &constant_scaled<mul_c_32s>)
TAV_BIND(MulC_32s_ISfs, &constant_in_place_scaled<mul_c_32s>)
TAV_BIND(MulC_32sc_Sfs, &constant_scaled<mul_c_32sc>)
TAV_BIND(MulC_32sc_ISfs, &constant_in_place_scaled<mul_c_32sc>)

TAV_BIND(AddProduct_16s32s_Sfs, &accumulated_scaled<add_product_16s32s>)
TAV_BIND(AddProduct_32s_Sfs, &accumulated_scaled<add_product_32s>)

}  // namespace tav::TAV_VARIANT
