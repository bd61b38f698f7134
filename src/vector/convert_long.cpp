// tavsConvert_64s32s_Sfs, tavsConvert_64s64f, tavsConvert_64f64s_Sfs: 64-bit integers.
//
// The registers know no conversion between them and doubles: both ways go through halves of 32 bits.
#include "vector/convert_forms.h"
#include "vector/long_lanes.h"
#include "vector/to_integer.h"
#include "vector/wide_ops.h"

namespace tav::TAV_VARIANT {

// 64 bits to 32.

struct pair_of_longs : several<__m128i, 2> {};

TAV_INLINE __m128i saturated(const pair_of_longs& v) {
  const exact_product both{v.r[0], v.r[1]};
  const __m128i       low = words_of<0>(both), high = words_of<1>(both);
  return selected(_mm_cmpeq_epi32(high, _mm_srai_epi32(low, 31)), low, limit_32s(high));
}

struct long_down_to_32s {
  long_down by;

  __m128i of(const pair_of_longs& v) const {
    return saturated(pair_of_longs{{by.of<signed_long>(v.r[0]), by.of<signed_long>(v.r[1])}});
  }
};

template <class Scale> struct convert_64s32s_kernel {
  static constexpr kernel_shape shape{.round_bytes = 16};

  Scale scale;

  Tav32s  one(Tav64s a) const { return from_a_lane<Tav32s>(many({{in_a_lane(a), _mm_setzero_si128()}})); }
  __m128i many(several<__m128i, 2> v) const { return scale.of(pair_of_longs{v}); }
};

// The rounding mode matters where bits are cut off, which is at factors above 0.
struct convert_64s32s : types<Tav64s, Tav64s, Tav32s> {
  static TavStatus run(int roundMode, int s, Tav32s* dst, size_t len, const Tav64s* src) {
    constexpr scale_range range{.zero_above = 64, .sign_from = -32};
    return with_scale<range>(s, dst, len, runs{src, dst, len, rounding_of(roundMode)});
  }

 private:
  struct runs {
    const Tav64s* src;
    Tav32s*       dst;
    size_t        len;
    rounding      how;

    TavStatus none() const { return with(unscaled{}); }
    TavStatus up(int by) const { return with(scaled_up(by)); }
    TavStatus down(int s) const { return with(long_down_to_32s{long_down(s, how)}); }

    template <class Scale> TavStatus with(const Scale& scale) const {
      return elementwise(convert_64s32s_kernel<Scale>{scale}, dst, len, src);
    }
  };
};

// 64 bits to a double, rounded once, in the caller's mode: each half is written into the fraction of a double that is
// large enough to hold it in place. Downward, the sum makes -0.0 of a zero: the sign is the integer's.
struct convert_64s64f : types<Tav64s, Tav64s, Tav64f> {
  static constexpr kernel_shape shape{.round_bytes = 32};

  static Tav64f  one(Tav64s a) { return _mm_cvtsd_f64(many(load_low<8>(&a))); }
  static __m128d many(__m128i v) {
    constexpr double for_low = 0x1p52, for_high = 0x1p84, bias = 0x1p63;
    const __m128i    low  = _mm_or_si128(low_words_of(v), as_bits(_mm_set1_pd(for_low)));
    const __m128i    high = _mm_xor_si128(_mm_srli_epi64(v, 32), as_bits(_mm_set1_pd(for_high + bias)));
    const __m128d    sum  = (_mm_castsi128_pd(high) - _mm_set1_pd(for_high + bias + for_low)) + _mm_castsi128_pd(low);
    return _mm_and_pd(sum, _mm_castsi128_pd(_mm_or_si128(v, _mm_set1_epi64x(max_64s))));
  }
};

static TavStatus convert_longs_to_doubles(const Tav64s* src, Tav64f* dst, unsigned len) {
  if (const TavStatus bad = check_unsigned_length(len, src, dst)) return bad;  // the length is unsigned here
  return elementwise(convert_64s64f{}, dst, len, src);
}

// A double to 64 bits: its magnitude in two halves, of which the low one is rounded by what adding 2^52 leaves no room
// for. To round ties away from zero the magnitude comes raised by a half.
class convert_64f64s_kernel {
 public:
  static constexpr kernel_shape shape{.round_bytes = 16};

  convert_64f64s_kernel(Tav64f multiplier, bool ties_away)
      : by_(_mm_set1_pd(multiplier)), raise_(_mm_set1_pd(ties_away ? 0.5 : 0)) {}

  Tav64s  one(Tav64f a) const { return from_a_lane<Tav64s>(many(_mm_set_sd(a))); }
  __m128i many(__m128d v) const {
    const __m128d scaled    = v * by_;
    const __m128i below     = as_bits(_mm_cmplt_pd(scaled, _mm_setzero_pd()));
    const __m128d size      = sign_cleared(scaled) + raise_;
    const __m128i too_large = as_bits(_mm_cmpnlt_pd(size, _mm_set1_pd(0x1p63)));  // a NaN, too, and it is not below 0
    const __m128i limit     = _mm_xor_si128(below, _mm_set1_epi64x(max_64s));
    return selected(too_large, limit, with_sign(whole(size), below));
  }

 private:
  static __m128i whole(__m128d size) {
    const __m128i high = _mm_cvttpd_epi32(size * _mm_set1_pd(0x1p-32));  // and zeros in its upper half
    const __m128d low = size - _mm_cvtepi32_pd(high) * _mm_set1_pd(0x1p32), room = _mm_set1_pd(0x1p52);
    return _mm_add_epi64(_mm_shuffle_epi32(high, _MM_SHUFFLE(1, 2, 0, 2)),
                         _mm_xor_si128(as_bits(low + room), as_bits(room)));
  }

  __m128d by_, raise_;
};

struct convert_64f64s : types<Tav64f, Tav64f, Tav64s> {
  static TavStatus run(int roundMode, int s, Tav64s* dst, size_t len, const Tav64f* src) {
    const rounding how = rounding_of(roundMode);
    return in_mode_for(how, [=] {
      const convert_64f64s_kernel kernel(power_of_two_minus<Tav64f>(s), how == rounding::ties_away);
      return elementwise(kernel, dst, len, src);
    });
  }
};

TAV_BIND(Convert_64s32s_Sfs, &one_source_rounded<convert_64s32s>)
TAV_BIND(Convert_64s64f, &convert_longs_to_doubles)
TAV_BIND(Convert_64f64s_Sfs, &one_source_rounded<convert_64f64s>)

}  // namespace tav::TAV_VARIANT
