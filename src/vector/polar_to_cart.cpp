// tavsPolarToCart_*: magnitudes and phases to real and imaginary parts. Everything rounds to nearest, in any mode of
// the caller.
#include "frame/bind.h"
#include "frame/checks.h"
#include "frame/rounding.h"
#include "vector/parts.h"
#include "vector/sine_cosine.h"
#include "vector/to_integer.h"
#include "vector/whole_vectors.h"

namespace tav::TAV_VARIANT {

// Real parts in one register, imaginary ones in another.
template <class T> struct parts_from_polar {
  static constexpr int step = lanes<T>;

  TAV_INLINE static several<reg<T>, 2> many(reg<T> magn, reg<T> phase) {
    const auto of = sine_cosine_of(phase);
    return {magn * of.cosine, magn * of.sine};
  }
};

template <class T> struct pairs_from_polar {
  static constexpr int step = lanes<T>;

  TAV_INLINE static several<reg<T>, 2> many(reg<T> magn, reg<T> phase) {
    const several<reg<T>, 2> parts = parts_from_polar<T>::many(magn, phase);
    return in_pairs(parts.r[0], parts.r[1]);
  }
};

// Integers by way of doubles, whose error hardly ever shows. Two magnitudes and two phases become re, im, re, im.
struct longs_from_polar {
  static constexpr int step = 2, phase_bits = 32;

  __m128d unit, scale;

  longs_from_polar(int fraction, int s)
      : unit(_mm_set1_pd(power_of_two_minus<Tav64f>(fraction))), scale(_mm_set1_pd(power_of_two_minus<Tav64f>(s))) {}

  TAV_INLINE __m128i many(__m128i magn, __m128i phase) const {
    return limited_to(-2147483648.0, 2147483647.0, magn, phase);
  }
  TAV_INLINE __m128i limited_to(double lowest, double highest, __m128i magn, __m128i phase) const {
    const auto    of     = sine_cosine_for_integers(_mm_cvtepi32_pd(phase) * unit);
    const __m128d scaled = _mm_cvtepi32_pd(magn) * scale;
    const __m128i re     = _mm_cvtpd_epi32(limited(scaled * of.cosine, lowest, highest));
    const __m128i im     = _mm_cvtpd_epi32(limited(scaled * of.sine, lowest, highest));
    return _mm_unpacklo_epi32(re, im);
  }
};

// Words by way of singles, which are off by less than 0.006: where that could decide, and where a single cannot hold
// the number, doubles do.
struct words_from_polar {
  static constexpr int step = 4, phase_bits = 16;

  __m128           unit, scale;
  longs_from_polar exact;

  words_from_polar(int fraction, int s)
      : unit(_mm_set1_ps(power_of_two_minus<Tav32f>(fraction))),
        scale(_mm_set1_ps(power_of_two_minus<Tav32f>(s))),
        exact(fraction, s) {}

  TAV_INLINE __m128i many(__m128i magn, __m128i phase) const {
    const __m128i m = low_half_as_32s(magn), p = low_half_as_32s(phase);
    const auto    of     = sine_cosine_of(_mm_cvtepi32_ps(p) * unit);
    const __m128  scaled = _mm_cvtepi32_ps(m) * scale, re = scaled * of.cosine, im = scaled * of.sine;
    const __m128i whole_re = _mm_cvtps_epi32(re), whole_im = _mm_cvtps_epi32(im);
    if (_mm_movemask_ps(_mm_or_ps(near_tie(re, whole_re), near_tie(im, whole_im)))) return by_doubles(m, p);
    return _mm_packs_epi32(_mm_unpacklo_epi32(whole_re, whole_im), _mm_unpackhi_epi32(whole_re, whole_im));
  }

 private:
  static __m128i high_half(__m128i v) { return _mm_unpackhi_epi64(v, v); }

  // NaNs count, and numbers beyond 32 bits, which convert to another one.
  static __m128 near_tie(__m128 v, __m128i whole) {
    const __m128 off = sign_cleared(v - _mm_cvtepi32_ps(whole));
    return _mm_cmpnle_ps(off, _mm_set1_ps(0.493f));
  }

  __attribute__((noinline)) __m128i by_doubles(__m128i m, __m128i p) const {
    return _mm_packs_epi32(exact.limited_to(-32768, 32767, m, p),
                           exact.limited_to(-32768, 32767, high_half(m), high_half(p)));
  }
};

template <class T> TavStatus polar_to_parts(const T* srcMagn, const T* srcPhase, T* dstRe, T* dstIm, int len) {
  if (const TavStatus bad = check_vector(len, srcMagn, srcPhase, dstRe, dstIm)) return bad;
  const round_to_nearest scope;
  return whole_vectors(parts_from_polar<T>{}, two_arrays<T>{dstRe, dstIm}, size_t(len), srcMagn, srcPhase);
}

template <class T, class C> TavStatus polar_to_pairs(const T* srcMagn, const T* srcPhase, C* dst, int len) {
  if (const TavStatus bad = check_vector(len, srcMagn, srcPhase, dst)) return bad;
  const round_to_nearest scope;
  return whole_vectors(pairs_from_polar<T>{}, dst, size_t(len), srcMagn, srcPhase);
}

// Powers past these change nothing more where they scale results; phases of 2^-count stay finite.
constexpr int farthest_scale = 200, farthest_phase = -900;

template <class Op, class T, class C>
TavStatus polar_to_scaled(const T* srcMagn, const T* srcPhase, int phaseFixedPoint, C* dst, int len, int scaleFactor) {
  if (const TavStatus bad = check_vector(len, dst, srcMagn, srcPhase)) return bad;
  if (phaseFixedPoint >= Op::phase_bits) return tavStatusBadSize;
  const int fraction = phaseFixedPoint < farthest_phase ? farthest_phase : phaseFixedPoint;
  const int s        = scaleFactor > farthest_scale    ? farthest_scale
                       : scaleFactor < -farthest_scale ? -farthest_scale
                                                       : scaleFactor;

  const round_to_nearest scope;
  return whole_vectors(Op(fraction, s), dst, size_t(len), srcMagn, srcPhase);
}

template <class Op, class T, class C>
TavStatus polar_to_integers(const T* srcMagn, const T* srcPhase, int phaseFixedPoint, C* dst, int len) {
  return polar_to_scaled<Op>(srcMagn, srcPhase, phaseFixedPoint, dst, len, 0);
}

TAV_BIND(PolarToCart_32f, &polar_to_parts<Tav32f>)
TAV_BIND(PolarToCart_64f, &polar_to_parts<Tav64f>)
TAV_BIND(PolarToCart_32fc, (&polar_to_pairs<Tav32f, Tav32fc>))
TAV_BIND(PolarToCart_64fc, (&polar_to_pairs<Tav64f, Tav64fc>))
TAV_BIND(PolarToCart_16sc, (&polar_to_integers<words_from_polar, Tav16s, Tav16sc>))
TAV_BIND(PolarToCart_32sc, (&polar_to_integers<longs_from_polar, Tav32s, Tav32sc>))
TAV_BIND(PolarToCart_16sc_Sfs, (&polar_to_scaled<words_from_polar, Tav16s, Tav16sc>))

}  // namespace tav::TAV_VARIANT
