// tavsThreshold_LTInv_*: reciprocals of elements whose magnitude is raised to the level first, by true division, which
// depends on no position in the array. At level 0 an element 0 becomes an infinity, without a trap, and a warning.
#include "vector/threshold_pairs.h"

namespace tav::TAV_VARIANT::thresholds {

// Remembers whether any lane was set.
class warning {
 public:
  void      add(auto mask) { met_ = _mm_or_si128(met_, as_bits(mask)); }
  TavStatus status() const { return _mm_movemask_epi8(met_) != 0 ? tavStatusWarnInverseOfZero : tavStatusOk; }

 private:
  __m128i met_ = _mm_setzero_si128();
};

TAV_INLINE __m128  is_zero(__m128 v) { return _mm_cmpeq_ps(v, _mm_setzero_ps()); }
TAV_INLINE __m128d is_zero(__m128d v) { return _mm_cmpeq_pd(v, _mm_setzero_pd()); }

template <class T> struct inverse;

template <real_float T> struct inverse<T> : on_magnitudes<T, callers_mode_masked, T>, warning {
  static constexpr kernel_shape shape{.round_bytes = 16};

  explicit inverse(T level) : raised_(level) {}

  TAV_INLINE reg<T> many(reg<T> x) {
    const reg<T> divisor = raised_.many(x);  // 0 where both x and the level are; a NaN as level counts as 0
    add(is_zero(divisor));
    return all(T(1)) / divisor;
  }

 private:
  clipped_magnitude<T, below> raised_;
};

// conj(x) / (|x| * max(|x|, level)), of magnitude 1 / level at most; a 0 has phase 0.
template <complex_float T> struct inverse<T> : on_magnitudes<T, callers_mode_masked, part_of<T>>, warning {
  static constexpr kernel_shape shape = pair_shape<T>;

  explicit inverse(part_of<T> level)
      : level_(positive(bounded<T>(in_both(level)))),
        square_(level_ * level_),
        of_zero_(_mm_move_sd(_mm_setzero_pd(), 1 / level_)) {}

  TAV_INLINE auto many(auto x) {
    const two_pairs wide   = bounded<T>(in_double(x));
    const __m128d   square = squares(wide), below_level = fails<Tav64f, below>(square, square_);
    add(_mm_and_pd(zeros(wide), is_zero(level_)));
    __m128d divisor = square;
    if (_mm_movemask_pd(below_level) != 0) divisor = selected(below_level, _mm_sqrt_pd(square) * level_, square);
    const two_pairs divisors = for_each_part(divisor), no_phase = for_each_part(is_zero(square));
    return from_double<T>(
        {{one_inverse(wide.r[0], divisors.r[0], no_phase.r[0]), one_inverse(wide.r[1], divisors.r[1], no_phase.r[1])}});
  }

 private:
  static __m128d positive(__m128d level) { return _mm_max_pd(level, _mm_setzero_pd()); }  // a NaN counts as 0

  TAV_INLINE __m128d one_inverse(__m128d x, __m128d divisor, __m128d no_phase) const {
    return selected(no_phase, of_zero_, _mm_xor_pd(x, _mm_setr_pd(0.0, -0.0)) / divisor);
  }
  // The square of a small double is 0 as well; its magnitude, the sum of its parts' ones, is not.
  TAV_INLINE static __m128d zeros(two_pairs x) {
    const __m128d sign = _mm_set1_pd(-0.0);
    return is_zero(_mm_hadd_pd(_mm_andnot_pd(sign, x.r[0]), _mm_andnot_pd(sign, x.r[1])));
  }

  __m128d level_, square_, of_zero_;
};

}  // namespace tav::TAV_VARIANT::thresholds

namespace tav::TAV_VARIANT {

using namespace thresholds;

TAV_BIND(Threshold_LTInv_32f, &threshold<inverse<Tav32f>>::apart)
TAV_BIND(Threshold_LTInv_32f_I, &threshold<inverse<Tav32f>>::in_place)
TAV_BIND(Threshold_LTInv_32fc, &threshold<inverse<Tav32fc>>::apart)
TAV_BIND(Threshold_LTInv_32fc_I, &threshold<inverse<Tav32fc>>::in_place)
TAV_BIND(Threshold_LTInv_64f, &threshold<inverse<Tav64f>>::apart)
TAV_BIND(Threshold_LTInv_64f_I, &threshold<inverse<Tav64f>>::in_place)
TAV_BIND(Threshold_LTInv_64fc, &threshold<inverse<Tav64fc>>::apart)
TAV_BIND(Threshold_LTInv_64fc_I, &threshold<inverse<Tav64fc>>::in_place)

}  // namespace tav::TAV_VARIANT
