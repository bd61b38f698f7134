// tavsPowerSpectr_*, tavsMagSquared_*: re^2 + im^2.
#include "vector/narrow_scale.h"
#include "vector/squares.h"
#include "vector/wide_ops.h"

namespace tav::TAV_VARIANT {
namespace {

// 2^31 becomes one less, which scales to the same and has a sign.
struct power_of_words : narrow_types<Tav16s, Tav16s, Tav16s> {
  using part                          = Tav16s;
  static constexpr reach result_reach = reach::top_bit;

  static int64_t       exact(Tav16sc v) { return square_of_words(v); }
  static int64_t       exact(Tav16s re, Tav16s im) { return exact({re, im}); }
  static pair_of_lanes exact_many(several<__m128i, 2> v) {
    return each([](__m128i pairs) { return below_the_sign(squares_of_words(pairs)); }, v);
  }
  static pair_of_lanes exact_many(__m128i re, __m128i im) { return exact_many(in_pairs(re, im)); }

 private:
  static __m128i below_the_sign(__m128i v) { return _mm_sub_epi32(v, _mm_srli_epi32(v, 31)); }
};

using scaled_power_16s = scaled<power_of_words, scale_range{31, -15}>;

struct magnitude_squared_32fc64f : types<Tav32fc, Tav32fc, Tav64f> {  // widened before the squares
  static constexpr kernel_shape shape = shape_of_parts<Tav64f>;

  static Tav64f  one(Tav32fc v) { return squares_of<Tav64f>::one(Tav64f(v.re), Tav64f(v.im)); }
  static __m128d many(__m128 v) {
    return squares_of<Tav64f>::many({{_mm_cvtps_pd(v), _mm_cvtps_pd(_mm_movehl_ps(v, v))}});
  }
};

// As the power of words, 2^63 becomes one less. Two registers of pairs make one of results.
struct magnitude_squared_32s : wide_types<exact_product_sum, Tav32s, Tav32s, Tav32s> {
  static exact_product_sum exact(several<__m128i, 2> v) {
    const __m128i low = below_the_sign(v.r[0]), high = below_the_sign(v.r[1]);
    return {{_mm_unpacklo_epi64(low, high), _mm_unpackhi_epi64(low, high)}};
  }
  static exact_product_sum exact(__m128i pair) { return exact({{pair, pair}}); }

 private:
  static __m128i below_the_sign(__m128i pairs) {
    const __m128i v = squares_of_long_words(pairs);
    return _mm_sub_epi64(v, _mm_srli_epi64(v, 63));
  }
};

using scaled_magnitude_squared_32s = scaled<magnitude_squared_32s, scale_range{63, -31}>;

}  // namespace

TAV_BIND(PowerSpectr_32f, &two_sources<squares_of<Tav32f>>)
TAV_BIND(PowerSpectr_64f, &two_sources<squares_of<Tav64f>>)
TAV_BIND(PowerSpectr_16s32f, &two_sources<squares_16s32f>)
TAV_BIND(PowerSpectr_16s_Sfs, &two_sources_scaled<scaled_power_16s>)

TAV_BIND(PowerSpectr_32fc, (&one_source<on_pairs<squares_of<Tav32f>, Tav32fc>>))
TAV_BIND(PowerSpectr_64fc, (&one_source<on_pairs<squares_of<Tav64f>, Tav64fc>>))
TAV_BIND(PowerSpectr_16sc32f, (&one_source<on_pairs<squares_16s32f, Tav16sc>>))
TAV_BIND(PowerSpectr_16sc_Sfs, (&pairs_scaled<scaled_power_16s, Tav16sc>))

TAV_BIND(MagSquared_32fc64f, &one_source<magnitude_squared_32fc64f>)
TAV_BIND(MagSquared_32sc32s_Sfs, (&pairs_scaled<scaled_magnitude_squared_32s, Tav32sc>))

}  // namespace tav::TAV_VARIANT
