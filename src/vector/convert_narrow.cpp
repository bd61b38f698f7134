// tavsConvert_32s16s, tavsConvert_32s16s_Sfs, tavsConvert_16s8s_Sfs: integers to narrower ones, saturated.
#include "vector/convert_forms.h"
#include "vector/narrow_scale.h"
#include "vector/round_mode.h"
#include "vector/wide_ops.h"

namespace tav::TAV_VARIANT {

struct convert_32s16s : types<Tav32s, Tav32s, Tav16s> {
  static constexpr kernel_shape shape{.round_bytes = 32};

  static Tav16s  one(Tav32s a) { return from_a_lane<Tav16s>(many({{in_a_lane(a), _mm_setzero_si128()}})); }
  static __m128i many(pair_of_lanes v) { return narrow_row<Tav16s>::narrow(v); }
};

// Factors above 31 count as 31, so that the largest elements still give 1.
struct convert_32s16s_scaled : narrow_types<Tav32s, Tav32s, Tav16s> {
  using part                          = Tav16s;
  static constexpr reach result_reach = reach::top_bit;

  static int64_t       exact(Tav32s a) { return a; }
  static pair_of_lanes exact_many(pair_of_lanes v) { return v; }

  static TavStatus run(int s, Tav16s* dst, size_t len, const Tav32s* src) {
    constexpr int most = 31, least = -15;
    return scaled<convert_32s16s_scaled, scale_range{most, least}>::run(s > most ? most : s, dst, len, src);
  }
};

// 16 bits to 8. Beyond these bounds the results depend on signs alone.
inline constexpr scale_range convert_16s8s_range{.zero_above = 17, .sign_from = -7};

struct convert_16s8s_unscaled {
  pair_of_lanes of(pair_of_lanes v) const { return v; }
};

class convert_16s8s_up {
 public:
  explicit convert_16s8s_up(int by) : by_(_mm_cvtsi32_si128(by)) {}

  pair_of_lanes of(pair_of_lanes v) const {  // limited first, so that no bit is lost
    return each(
        [this](__m128i w) {
          const __m128i fits = _mm_max_epi16(_mm_min_epi16(w, _mm_set1_epi16(127)), _mm_set1_epi16(-128));
          return _mm_sll_epi16(fits, by_);
        },
        v);
  }

 private:
  __m128i by_;
};

// Magnitudes are shifted to twice the result, raised by 1 or not, and halved. Ties to even raise those whose half is
// odd, or which had more bits than the tie.
class convert_16s8s_down {
 public:
  convert_16s8s_down(int s, rounding how)
      : to_twice_(_mm_cvtsi32_si128(s - 1)),
        below_(_mm_set1_epi16(short((1u << (s - 1)) - 1))),
        to_even_(_mm_set1_epi16(how == rounding::ties_to_even)),
        away_(_mm_set1_epi16(how == rounding::ties_away)) {}

  pair_of_lanes of(pair_of_lanes v) const {
    return each([this](__m128i w) { return rounded(w); }, v);
  }

 private:
  __m128i rounded(__m128i w) const {
    const __m128i size = _mm_abs_epi16(w), twice = _mm_srl_epi16(size, to_twice_);  // that of -32768 has no sign
    const __m128i rest   = _mm_srl_epi16(_mm_add_epi16(_mm_and_si128(size, below_), below_), to_twice_);
    const __m128i odd    = _mm_and_si128(_mm_or_si128(_mm_srli_epi16(twice, 1), rest), to_even_);
    const __m128i raised = _mm_add_epi16(twice, _mm_or_si128(odd, away_));
    return _mm_sign_epi16(_mm_srli_epi16(raised, 1), w);
  }

  __m128i to_twice_, below_, to_even_, away_;
};

template <class Scale> struct convert_16s8s_kernel {
  static constexpr kernel_shape shape{.round_bytes = 16};

  Scale scale;

  Tav8s   one(Tav16s a) const { return from_a_lane<Tav8s>(many({{in_a_lane(a), _mm_setzero_si128()}})); }
  __m128i many(pair_of_lanes v) const {
    const pair_of_lanes w = scale.of(v);
    return _mm_packs_epi16(w.r[0], w.r[1]);
  }
};

struct convert_16s8s_runs {
  const Tav16s* src;
  Tav8s*        dst;
  size_t        len;
  rounding      how;

  TavStatus none() const { return with(convert_16s8s_unscaled{}); }
  TavStatus up(int by) const { return with(convert_16s8s_up(by)); }
  TavStatus down(int s) const { return with(convert_16s8s_down(s, how)); }

  template <class Scale> TavStatus with(const Scale& scale) const {
    return elementwise(convert_16s8s_kernel<Scale>{scale}, dst, len, src);
  }
};

// The length is unsigned here.
static TavStatus convert_16s8s(const Tav16s* src, Tav8s* dst, unsigned len, int roundMode, int scaleFactor) {
  if (const TavStatus bad = check_unsigned_length(len, src, dst)) return bad;
  const convert_16s8s_runs runs{src, dst, len, rounding_of(roundMode)};
  return with_scale<convert_16s8s_range>(scaleFactor, dst, len, runs);
}

TAV_BIND(Convert_32s16s, &one_source<convert_32s16s>)
TAV_BIND(Convert_32s16s_Sfs, &one_source_scaled<convert_32s16s_scaled>)
TAV_BIND(Convert_16s8s_Sfs, &convert_16s8s)

}  // namespace tav::TAV_VARIANT
