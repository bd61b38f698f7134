// tavsConvert between half floats and floats or 16-bit integers.
#include "vector/convert_half.h"

#include "frame/rounding.h"
#include "vector/to_integer.h"
#include "vector/wide_ops.h"

namespace tav::TAV_VARIANT {

// Each takes eight elements, and as many steps for one: the first lanes of the registers.

struct float_of_half : types<Tav16u, void, Tav32f> {
  static constexpr kernel_shape shape{.round_bytes = 32, .step = 8};

  static Tav32f             one(Tav16u h) { return _mm_cvtss_f32(many(in_a_lane(h)).r[0]); }
  static several<__m128, 2> many(__m128i h) { return floats_of_halves(h); }
};

template <class S, class D> struct half_types : types<S, void, D> {
  static constexpr kernel_shape shape{.round_bytes = 16};

  static D first_of(__m128i v) { return D(_mm_cvtsi128_si32(v)); }
};

template <half_mode Mode> struct half_of_float : half_types<Tav32f, Tav16u> {
  static Tav16u  one(Tav32f v) { return first_of(many({{_mm_set_ss(v), _mm_setzero_ps()}})); }
  static __m128i many(several<__m128, 2> v) { return halves_of_floats<Mode>(v); }
};

struct half_of_integer : half_types<Tav16s, Tav16u> {
  static Tav16u  one(Tav16s v) { return first_of(many(in_a_lane(v))); }
  static __m128i many(__m128i v) { return halves_of_integers(v); }
};

struct scaled_integer_of_half : half_types<Tav16u, Tav16s> {
  __m128 factor;

  explicit scaled_integer_of_half(int s) : factor(_mm_set1_ps(power_of_two_minus<Tav32f>(s))) {}

  Tav16s  one(Tav16u h) const { return first_of(many(in_a_lane(h))); }
  __m128i many(__m128i h) const {
    const auto v = floats_of_halves(h);
    return _mm_packs_epi32(rounded(v.r[0]), rounded(v.r[1]));
  }

 private:
  __m128i rounded(__m128 v) const { return _mm_cvtps_epi32(limited(v * factor, INT16_MIN, INT16_MAX)); }
};

// Of the round modes, half floats do not know 2. All but 1 round toward zero, those that have no meaning as well.
constexpr int to_nearest_mode = 1, ties_away_mode = 2;

static TavStatus check_half(int roundMode, int len, const void* src, const void* dst) {
  if (const TavStatus bad = check_vector(len, src, dst)) return bad;
  return roundMode == ties_away_mode ? tavStatusBadRoundMode : tavStatusOk;
}

template <class Nearest, class TowardZero, class S, class D>
static TAV_INLINE TavStatus in_round_mode(int roundMode, const Nearest& nearest, const TowardZero& toward_zero,
                                          const S* src, D* dst, int len) {
  if (roundMode == to_nearest_mode) {
    const round_to_nearest scope;
    return elementwise(nearest, dst, size_t(len), src);
  }
  const round_toward_zero scope;
  return elementwise(toward_zero, dst, size_t(len), src);
}

static TavStatus float_to_half(const Tav32f* src, Tav16u* dst, int len, int roundMode) {
  if (const TavStatus bad = check_half(roundMode, len, src, dst)) return bad;
  return in_round_mode(roundMode, half_of_float<half_mode::nearest>{}, half_of_float<half_mode::toward_zero>{}, src,
                       dst, len);
}

static TavStatus integer_to_half(const Tav16s* src, Tav16u* dst, int len, int roundMode) {
  if (const TavStatus bad = check_half(roundMode, len, src, dst)) return bad;
  return in_round_mode(roundMode, half_of_integer{}, half_of_integer{}, src, dst, len);
}

static TavStatus half_to_integer(const Tav16u* src, Tav16s* dst, int len, int roundMode, int scaleFactor) {
  if (const TavStatus bad = check_half(roundMode, len, src, dst)) return bad;
  const scaled_integer_of_half op(scaleFactor);
  return in_round_mode(roundMode, op, op, src, dst, len);
}

TAV_BIND(Convert_16f32f, &one_source<float_of_half>)
TAV_BIND(Convert_32f16f, &float_to_half)
TAV_BIND(Convert_16s16f, &integer_to_half)
TAV_BIND(Convert_16f16s_Sfs, &half_to_integer)

}  // namespace tav::TAV_VARIANT
