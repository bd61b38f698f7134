// tavsNormalize_*: differences with one number, over another, which is inverted once.
#include "frame/rounding.h"
#include "vector/forms.h"
#include "vector/narrow_lanes.h"
#include "vector/to_integer.h"

namespace tav::TAV_VARIANT {

// Floats, in the caller's rounding mode.
template <class T> struct normalized {
  static constexpr kernel_shape shape{.round_bytes = 32};

  T          less;
  part_of<T> times;
  reg<T>     all_less  = from_bits<T>(repeated(less));
  reg<T>     all_times = from_bits<T>(repeated(times));

  T one(T a) const {
    if constexpr (requires { a.re; })
      return {(a.re - less.re) * times, (a.im - less.im) * times};
    else
      return (a - less) * times;
  }
  reg<T> many(reg<T> a) const { return (a - all_less) * all_times; }
};

template <class T> constexpr T smallest_normal         = T(0x1p-126f);
template <> constexpr Tav64f   smallest_normal<Tav64f> = 0x1p-1022;

template <class T> TavStatus normalize(const T* src, T* dst, int len, T vSub, part_of<T> vDiv) {
  using real = part_of<T>;
  if (const TavStatus bad = check_vector(len, src, dst)) return bad;
  if ((vDiv < 0 ? -vDiv : vDiv) < smallest_normal<real>) return tavStatusDivideByZero;
  {
    const round_to_nearest_masked scope;
    vDiv = held(real(1) / held(vDiv));
  }
  return elementwise(normalized<T>{vSub, vDiv}, dst, size_t(len), src);
}

// 16-bit integers: an exact difference times a single that holds the divisor and the scale, to nearest.
template <class T> struct normalized_words {
  static constexpr kernel_shape shape{.round_bytes = 16};

  T       less;
  Tav32f  times;
  __m128i all_less  = repeated(less);
  __m128  all_times = _mm_set1_ps(times);

  T one(T a) const {
    if constexpr (requires { a.re; })
      return {of(a.re - less.re), of(a.im - less.im)};
    else
      return of(a - less);
  }
  __m128i many(__m128i a) const {
    const auto d = narrow_row<Tav16s>::difference(a, all_less);
    return _mm_packs_epi32(rounded(_mm_cvtepi32_ps(d.r[0])), rounded(_mm_cvtepi32_ps(d.r[1])));
  }

 private:
  Tav16s  of(int difference) const { return Tav16s(_mm_cvtsi128_si32(rounded(_mm_set_ss(Tav32f(difference))))); }
  __m128i rounded(__m128 difference) const {
    return _mm_cvtps_epi32(limited(difference * all_times, -32768.0f, 32767.0f));
  }
};

// 2^-s. Going up it takes the factor modulo 128, so that -128 is as 0; going down it ends in 0, from 127 on.
static Tav64f power_of_factor(int s) {
  if (s < 0) return power_of_two_minus<Tav64f>(-int(-Tav32u(s) & 127));
  return power_of_two_minus<Tav32f>(s);
}

template <class T> TavStatus normalize_scaled(const T* src, T* dst, int len, T vSub, int vDiv, int scaleFactor) {
  if (const TavStatus bad = check_vector(len, src, dst)) return bad;
  if (vDiv == 0) return tavStatusDivideByZero;
  const round_to_nearest scope;
  const Tav32f           times = held(Tav32f(power_of_factor(scaleFactor) / held(Tav64f(vDiv))));
  return elementwise(normalized_words<T>{vSub, times}, dst, size_t(len), src);
}

TAV_BIND(Normalize_32f, &normalize<Tav32f>)
TAV_BIND(Normalize_64f, &normalize<Tav64f>)
TAV_BIND(Normalize_32fc, &normalize<Tav32fc>)
TAV_BIND(Normalize_64fc, &normalize<Tav64fc>)
TAV_BIND(Normalize_16s_Sfs, &normalize_scaled<Tav16s>)
TAV_BIND(Normalize_16sc_Sfs, &normalize_scaled<Tav16sc>)

}  // namespace tav::TAV_VARIANT
