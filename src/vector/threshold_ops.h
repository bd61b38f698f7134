// Thresholds of real elements. An element that is a NaN does not fail, nor does -0.0 at a level of 0.0: both come
// through as they are.
#pragma once
#include "vector/threshold_forms.h"

namespace tav::TAV_VARIANT::thresholds {

template <class T>
concept real = !requires(T v) {
  v.re;
};

template <class T> inline constexpr kernel_shape real_shape{.round_bytes = 32};
template <> inline constexpr kernel_shape        real_shape<Tav16s> = shape_16_bit;
template <> inline constexpr kernel_shape        real_shape<Tav32s> = shape_32_bit;

template <class T> TAV_INLINE reg<T> all(T v) { return from_bits<T>(repeated(v)); }

template <class T> TAV_INLINE reg<T> is_less(reg<T> a, reg<T> b) {
  if constexpr (std::is_same_v<T, Tav16s>) return _mm_cmplt_epi16(a, b);
  if constexpr (std::is_same_v<T, Tav32s>) return _mm_cmplt_epi32(a, b);
  if constexpr (std::is_same_v<T, Tav32f>) return _mm_cmplt_ps(a, b);
  if constexpr (std::is_same_v<T, Tav64f>) return _mm_cmplt_pd(a, b);
}

template <class T, side Side> TAV_INLINE reg<T> fails(reg<T> x, reg<T> level) {
  return Side == below ? is_less<T>(x, level) : is_less<T>(level, x);
}

// The level where x fails. Where neither is the larger one, the processor takes the second operand, x.
template <class T, side Side> TAV_INLINE reg<T> limited_to(reg<T> level, reg<T> x) {
  if constexpr (std::is_same_v<T, Tav16s>) return Side == below ? _mm_max_epi16(level, x) : _mm_min_epi16(level, x);
  if constexpr (std::is_same_v<T, Tav32s>) return selected(fails<T, Side>(x, level), level, x);
  if constexpr (std::is_same_v<T, Tav32f>) return Side == below ? _mm_max_ps(level, x) : _mm_min_ps(level, x);
  if constexpr (std::is_same_v<T, Tav64f>) return Side == below ? _mm_max_pd(level, x) : _mm_min_pd(level, x);
}

template <class T, side Side> struct clipped;
template <class T, side Side> struct replaced;

template <real T, side Side> struct clipped<T, Side> : on_values<T, T> {
  static constexpr kernel_shape shape = real_shape<T>;

  explicit clipped(T level) : level_(all(level)) {}
  reg<T> many(reg<T> x) const { return limited_to<T, Side>(level_, x); }

 private:
  reg<T> level_;
};

template <real T, side Side> struct replaced<T, Side> : on_values<T, T, T> {
  static constexpr kernel_shape shape = real_shape<T>;

  replaced(T level, T value) : level_(all(level)), value_(all(value)) {}
  reg<T> many(reg<T> x) const { return selected(fails<T, Side>(x, level_), value_, x); }

 private:
  reg<T> level_, value_;
};

// Both at once. What has been replaced is not compared again.
template <class T> struct replaced_outside : on_values<T, T, T, T, T> {
  static constexpr kernel_shape shape = real_shape<T>;

  static TavStatus check(T low, T, T high, T) { return low > high ? tavStatusBadThresholdPair : tavStatusOk; }

  replaced_outside(T low, T instead_of_lower, T high, T instead_of_higher)
      : low_(all(low)),
        instead_of_lower_(all(instead_of_lower)),
        high_(all(high)),
        instead_of_higher_(all(instead_of_higher)) {}
  reg<T> many(reg<T> x) const {
    return selected(fails<T, above>(x, high_), instead_of_higher_,
                    selected(fails<T, below>(x, low_), instead_of_lower_, x));
  }

 private:
  reg<T> low_, instead_of_lower_, high_, instead_of_higher_;
};

// The magnitude is clipped, the sign bit kept: that of -0.0 as well, and 0 counts as positive.
template <class T, side Side> struct clipped_magnitude;

// Between -level and level. The magnitude of the lowest integer needs no care.
template <class T> struct clipped_magnitude<T, above> : on_magnitudes<T, callers_mode, T> {
  static constexpr kernel_shape shape = real_shape<T>;

  explicit clipped_magnitude(T level) : highest_(all(without_sign(level))), lowest_(all(T(-without_sign(level)))) {}
  reg<T> many(reg<T> x) const { return limited_to<T, below>(lowest_, limited_to<T, above>(highest_, x)); }

 private:
  static T without_sign(T level) { return level == 0 ? T(0) : level; }

  reg<T> highest_, lowest_;
};

template <real_float T> struct clipped_magnitude<T, below> : on_magnitudes<T, callers_mode, T> {
  static constexpr kernel_shape shape = real_shape<T>;

  explicit clipped_magnitude(T level) : level_(all(level)) {}
  reg<T> many(reg<T> x) const {
    const __m128i sign_bits = as_bits(all(T(-0.0))), bits = as_bits(x);
    const reg<T>  magnitude = limited_to<T, below>(level_, from_bits<T>(_mm_andnot_si128(sign_bits, bits)));
    return from_bits<T>(_mm_or_si128(as_bits(magnitude), _mm_and_si128(sign_bits, bits)));
  }

 private:
  reg<T> level_;
};

// With the sign in all bits of a lane, x ^ sign is the magnitude of x, less 1 where x is negative. The level less 1
// fits that, and it is -1 at least, below all of them.
template <class T>
requires std::is_integral_v<T>
struct clipped_magnitude<T, below> : on_magnitudes<T, callers_mode, T> {
  static constexpr kernel_shape shape = real_shape<T>;

  explicit clipped_magnitude(T level) : level_(all(level)) {}
  __m128i many(__m128i x) const {
    const __m128i sign = is_less<T>(x, _mm_setzero_si128());
    return _mm_xor_si128(limited_to<T, below>(lane_sum(level_, sign), _mm_xor_si128(x, sign)), sign);
  }

 private:
  static __m128i lane_sum(__m128i a, __m128i b) { return sizeof(T) == 2 ? _mm_add_epi16(a, b) : _mm_add_epi32(a, b); }

  __m128i level_;
};

}  // namespace tav::TAV_VARIANT::thresholds
