// Thresholds of complex floats, two pairs at a time, in double precision. Magnitudes are compared by their squares:
// those of singles are all in range, and those of doubles from about 1e-154 to 1e154. A pair of which one part is a NaN
// does not fail. Results follow the caller's rounding mode.
#pragma once
#include "vector/threshold_ops.h"

namespace tav::TAV_VARIANT::thresholds {

using two_pairs = several<__m128d, 2>;

// A scalar loop of costly pairs is short.
template <class T> inline constexpr kernel_shape pair_shape{.round_bytes = 16};
template <> inline constexpr kernel_shape        pair_shape<Tav64fc>{.round_bytes = 32, .step = 2};

TAV_INLINE two_pairs in_double(__m128 x) { return {{_mm_cvtps_pd(x), _mm_cvtps_pd(_mm_movehl_ps(x, x))}}; }
TAV_INLINE two_pairs in_double(two_pairs x) { return x; }

template <class T> TAV_INLINE group<T, 2> from_double(two_pairs x) {
  if constexpr (std::is_same_v<T, Tav32fc>)
    return _mm_movelh_ps(_mm_cvtpd_ps(x.r[0]), _mm_cvtpd_ps(x.r[1]));
  else
    return x;
}

// An infinity among singles is no more than far beyond them: then no product with 0 is a NaN. Doubles are left alone.
template <class T> TAV_INLINE __m128d bounded(__m128d v) {
  if constexpr (std::is_same_v<T, Tav64fc>) return v;
  return limited_to<Tav64f, below>(_mm_set1_pd(-0x1p500), limited_to<Tav64f, above>(_mm_set1_pd(0x1p500), v));
}
template <class T> TAV_INLINE two_pairs bounded(two_pairs x) { return {{bounded<T>(x.r[0]), bounded<T>(x.r[1])}}; }

// The level in both lanes. Held, since the scope of the mode holds back work on memory only.
template <class L> TAV_INLINE __m128d in_both(L level) { return _mm_set1_pd(double(held(level))); }

TAV_INLINE __m128d   squares(two_pairs x) { return _mm_hadd_pd(x.r[0] * x.r[0], x.r[1] * x.r[1]); }
TAV_INLINE two_pairs for_each_part(__m128d v) { return {{_mm_unpacklo_pd(v, v), _mm_unpackhi_pd(v, v)}}; }

// With a lane of the mask for each pair.
TAV_INLINE __m128 selected_pairs(__m128d mask, __m128 yes, __m128 no) { return selected(_mm_castpd_ps(mask), yes, no); }
TAV_INLINE two_pairs selected_pairs(__m128d mask, two_pairs yes, two_pairs no) {
  const two_pairs masks = for_each_part(mask);
  return {{selected(masks.r[0], yes.r[0], no.r[0]), selected(masks.r[1], yes.r[1], no.r[1])}};
}

template <complex_float T, side Side> struct replaced<T, Side> : on_magnitudes<T, callers_mode_masked, part_of<T>, T> {
  static constexpr kernel_shape shape = pair_shape<T>;

  replaced(part_of<T> level, T value)
      : square_(in_both(level) * in_both(level)), value_(filled_with<T, step_of<replaced, T>>(value)) {}

  TAV_INLINE auto many(auto x) const {
    return selected_pairs(fails<Tav64f, Side>(squares(in_double(x)), square_), value_, x);
  }

 private:
  __m128d     square_;
  group<T, 2> value_;
};

// A failing pair is scaled by level / magnitude. What has no phase, 0 or a square too small for a double, stays.
template <complex_float T, side Side> struct clipped<T, Side> : on_magnitudes<T, callers_mode_masked, part_of<T>> {
  static constexpr kernel_shape shape = pair_shape<T>;

  explicit clipped(part_of<T> level)
      : level_(sign_cleared(bounded<T>(in_both(level)))), square_(in_both(level) * in_both(level)) {}

  TAV_INLINE auto many(auto x) const {
    const two_pairs wide    = in_double(x);
    const __m128d   square  = squares(wide);
    const __m128d   failing = _mm_and_pd(fails<Tav64f, Side>(square, square_), _mm_cmpneq_pd(square, _mm_setzero_pd()));
    if (_mm_movemask_pd(failing) == 0) return x;
    const two_pairs near = bounded<T>(wide), ratios = for_each_part(level_ / _mm_sqrt_pd(squares(near)));
    return selected_pairs(failing, from_double<T>({{near.r[0] * ratios.r[0], near.r[1] * ratios.r[1]}}), x);
  }

 private:
  __m128d level_, square_;
};

}  // namespace tav::TAV_VARIANT::thresholds
