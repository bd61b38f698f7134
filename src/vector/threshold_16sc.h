// Thresholds of complex 16-bit integers. Magnitudes are compared by their squares, which 32 bits hold exactly; a pair
// that is scaled gets the exact nearest integers, to even, in any mode of the caller.
#pragma once
#include "vector/threshold_ops.h"

namespace tav::TAV_VARIANT::thresholds {

// The square of the magnitude reaches 2^31, one too many: less 1 it compares with the level's square less 1.
template <side Side> class square_limit {
 public:
  explicit square_limit(Tav16s level) : limit_(_mm_set1_epi32(level * level - 1)) {}

  TAV_INLINE __m128i fails(__m128i pairs) const {
    return thresholds::fails<Tav32s, Side>(_mm_add_epi32(_mm_madd_epi16(pairs, pairs), _mm_set1_epi32(-1)), limit_);
  }

 private:
  __m128i limit_;
};

template <side Side> struct replaced<Tav16sc, Side> : on_magnitudes<Tav16sc, callers_mode, Tav16s, Tav16sc> {
  static constexpr kernel_shape shape{.round_bytes = 32};

  replaced(Tav16s level, Tav16sc value) : limit_(level), value_(all(value)) {}
  __m128i many(__m128i x) const { return selected(limit_.fails(x), value_, x); }

 private:
  square_limit<Side> limit_;
  __m128i            value_;
};

// |part| * level / sqrt(square) to nearest. No quotient is a tie: where the root is rational, the pair is a multiple of
// a Pythagorean one, whose largest number is odd.
inline Tav16s scaled_exactly(Tav16s part, Tav32u square, Tav16s level) {
  if (square == 0) return 0;
  const Tav32u  product  = Tav32u(part < 0 ? -part : part) * Tav32u(level);
  const __m128d root     = _mm_sqrt_pd(_mm_set1_pd(double(square)));
  const Tav32u  estimate = Tav32u(_mm_cvttsd_si32(_mm_div_pd(_mm_set1_pd(double(product)), root)));
  const Tav64u  middle = 2 * estimate + 1, twice = 2 * Tav64u(product);
  const int     nearest = int(estimate) + (middle * middle * square < twice * twice);
  return Tav16s(part < 0 ? -nearest : nearest);
}

// Seldom called: where a quotient lies so near to the middle of two integers that a double cannot tell its side.
[[gnu::noinline, gnu::cold]] inline __m128i scaled_exactly(__m128i pairs, Tav16s level) {
  Tav16sc p[4];
  store_bits<access::unaligned>(p, pairs);
  for (Tav16sc& z : p) {
    const Tav32u square = Tav32u(z.re * z.re) + Tav32u(z.im * z.im);
    z                   = {scaled_exactly(z.re, square, level), scaled_exactly(z.im, square, level)};
  }
  return load_bits<access::unaligned>(p);
}

template <side Side> struct clipped<Tav16sc, Side> : on_magnitudes<Tav16sc, round_to_nearest_masked, Tav16s> {
  static constexpr kernel_shape shape{.round_bytes = 16};

  explicit clipped(Tav16s level) : limit_(level), level_(level), level_in_double_(_mm_set1_pd(level)) {}

  TAV_INLINE __m128i many(__m128i x) const {
    const __m128i failing = limit_.fails(x);
    return _mm_movemask_epi8(failing) == 0 ? x : selected(failing, scaled(x), x);
  }

 private:
  // Out of line: next to its roots and quotients a call costs nothing.
  [[gnu::noinline]] __m128i scaled(__m128i x) const {
    const __m128i squares = _mm_madd_epi16(x, x), signs = _mm_srai_epi16(x, 15);
    __m128d       to_middle       = _mm_set1_pd(1);
    const __m128i low             = two_scaled(_mm_unpacklo_epi16(x, signs), squares, to_middle),
                  high            = two_scaled(_mm_unpackhi_epi16(x, signs), upper(squares), to_middle);
    constexpr double beyond_doubt = 0x1p-20;
    if (_mm_movemask_pd(_mm_cmplt_pd(to_middle, _mm_set1_pd(beyond_doubt))) != 0) return scaled_exactly(x, level_);
    return _mm_packs_epi32(low, high);
  }

  // Two pairs in 32-bit lanes, with their squares in the low half of a register. A zero pair is not divided by 0.
  TAV_INLINE __m128i two_scaled(__m128i pairs, __m128i squares, __m128d& to_middle) const {
    const __m128d magnitudes = _mm_sqrt_pd(_mm_max_pd(unsigned_squares(squares), _mm_set1_pd(1))),
                  ratios     = _mm_div_pd(level_in_double_, magnitudes);
    return _mm_unpacklo_epi64(
        rounded(_mm_mul_pd(_mm_cvtepi32_pd(pairs), _mm_unpacklo_pd(ratios, ratios)), to_middle),
        rounded(_mm_mul_pd(_mm_cvtepi32_pd(upper(pairs)), _mm_unpackhi_pd(ratios, ratios)), to_middle));
  }

  // Keeps in mind how near to the middle of two integers any one has come.
  TAV_INLINE static __m128i rounded(__m128d quotients, __m128d& to_middle) {
    const __m128i nearest = _mm_cvtpd_epi32(quotients);
    const __m128d away    = sign_cleared(_mm_sub_pd(quotients, _mm_cvtepi32_pd(nearest)));
    to_middle             = _mm_min_pd(to_middle, _mm_sub_pd(_mm_set1_pd(0.5), away));
    return nearest;
  }

  static __m128i upper(__m128i v) { return _mm_unpackhi_epi64(v, v); }
  static __m128d unsigned_squares(__m128i v) { return sign_cleared(_mm_cvtepi32_pd(v)); }

  square_limit<Side> limit_;
  Tav16s             level_;
  __m128d            level_in_double_;
};

}  // namespace tav::TAV_VARIANT::thresholds
