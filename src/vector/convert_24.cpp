// tavsConvert between 24-bit integers and 32-bit integers or floats.
#include "vector/convert_24.h"

#include "frame/rounding.h"
#include "vector/to_integer.h"

namespace tav::TAV_VARIANT {

constexpr int max_24s = 0x7FFFFF, min_24s = -max_24s - 1, max_24u = 0xFFFFFF;

struct widened_24s {
  using dst                      = Tav32s;
  static constexpr in_lane place = in_lane::high;  // the shift brings the sign along

  static __m128i many(__m128i v) { return _mm_srai_epi32(v, 8); }
};

struct widened_24u {
  using dst                      = Tav32u;
  static constexpr in_lane place = in_lane::low;

  static __m128i many(__m128i v) { return v; }
};

template <class Widened> struct float_of_24 : Widened {  // exact
  using dst = Tav32f;

  static __m128 many(__m128i v) { return _mm_cvtepi32_ps(Widened::many(v)); }
};

template <int Lowest, int Highest> struct rounded_float_to_24 {
  using src                      = Tav32f;
  static constexpr in_lane place = in_lane::low;

  __m128 factor;

  __m128i many(__m128 v) const { return _mm_cvtps_epi32(limited(v * factor, float(Lowest), float(Highest))); }
};

// Without a roundMode: to nearest, ties to even, whatever the thread's mode.
template <int Lowest, int Highest>
static TavStatus float_to_24(const Tav32f* src, Tav8u* dst, int len, int scaleFactor) {
  if (const TavStatus bad = check_vector(len, src, dst)) return bad;
  const round_to_nearest scope;
  return to_24(rounded_float_to_24<Lowest, Highest>{_mm_set1_ps(power_of_two_minus<Tav32f>(scaleFactor))}, src, dst,
               size_t(len));
}

template <class T> static TAV_INLINE __m128i shifted_right(__m128i v, __m128i by) {
  return std::is_signed_v<T> ? _mm_sra_epi32(v, by) : _mm_srl_epi32(v, by);
}

// v * 2^(by - 8), saturated to 24 bits, in the upper three bytes of each lane, by 0 to 39. There the limits of 24 bits
// are those of 32, and a shift back tells what was lost.
template <class T> class saturated_to_24 {
 public:
  using src                      = T;
  static constexpr in_lane place = in_lane::high;

  explicit saturated_to_24(int by) : by_(_mm_cvtsi32_si128(by)) {}

  __m128i many(__m128i v) const {
    const __m128i shifted = _mm_sll_epi32(v, by_), fits = _mm_cmpeq_epi32(shifted_right<T>(shifted, by_), v);
    if constexpr (std::is_signed_v<T>)
      return selected(fits, shifted, limit_32s(v));
    else
      return _mm_or_si128(shifted, _mm_andnot_si128(fits, _mm_set1_epi32(-1)));
  }

 private:
  __m128i by_;
};

// v * 2^-s, s from 1 to 31. The bits cut off are rounded by themselves, for want of room above the highest values.
template <class T> class rounded_to_24 {
 public:
  using src                      = T;
  static constexpr in_lane place = in_lane::high;

  explicit rounded_to_24(int s)
      : by_(_mm_cvtsi32_si128(s)),
        cut_off_(_mm_set1_epi32(int((1u << s) - 1))),
        below_tie_(_mm_set1_epi32(int((1u << (s - 1)) - 1))),
        limits_(8) {}

  __m128i many(__m128i v) const {
    const __m128i kept = shifted_right<T>(v, by_), odd = _mm_and_si128(kept, _mm_set1_epi32(1));
    const __m128i rest = _mm_add_epi32(_mm_add_epi32(_mm_and_si128(v, cut_off_), below_tie_), odd);
    return limits_.many(_mm_add_epi32(kept, _mm_srl_epi32(rest, by_)));
  }

 private:
  __m128i            by_, cut_off_, below_tie_;
  saturated_to_24<T> limits_;
};

// Beyond 31 a factor works like 31: 0xFFFFFFFF becomes 2 and not 0, however large the factor.
template <class T> static TavStatus integer_to_24(const T* src, Tav8u* dst, int len, int scaleFactor) {
  if (const TavStatus bad = check_vector(len, src, dst)) return bad;
  const int s = scaleFactor > 31 ? 31 : scaleFactor < -31 ? -31 : scaleFactor;
  if (s > 0) return to_24(rounded_to_24<T>(s), src, dst, size_t(len));
  return to_24(saturated_to_24<T>(8 - s), src, dst, size_t(len));
}

TAV_BIND(Convert_24s32s, &from_24<widened_24s>)
TAV_BIND(Convert_24u32u, &from_24<widened_24u>)
TAV_BIND(Convert_24s32f, &from_24<float_of_24<widened_24s>>)
TAV_BIND(Convert_24u32f, &from_24<float_of_24<widened_24u>>)

TAV_BIND(Convert_32s24s_Sfs, &integer_to_24<Tav32s>)
TAV_BIND(Convert_32u24u_Sfs, &integer_to_24<Tav32u>)
TAV_BIND(Convert_32f24s_Sfs, (&float_to_24<min_24s, max_24s>))
TAV_BIND(Convert_32f24u_Sfs, (&float_to_24<0, max_24u>))

}  // namespace tav::TAV_VARIANT
