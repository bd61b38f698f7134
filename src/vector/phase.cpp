// tavsPhase_*: the angles of points, which come as pairs or as two arrays of coordinates. A single element goes through
// the kernel of a whole register, which takes no longer.
#include "frame/bind.h"
#include "frame/rounding.h"
#include "vector/arctangent.h"
#include "vector/forms.h"
#include "vector/parts.h"
#include "vector/to_integer.h"

namespace tav::TAV_VARIANT {
namespace {

template <class F> struct points { reg<F> re, im; };

// The points in a register of floats, from what the sources hold.
TAV_INLINE points<Tav32f> points_of(__m128 re, __m128 im) { return {re, im}; }
TAV_INLINE points<Tav64f> points_of(__m128d re, __m128d im) { return {re, im}; }
TAV_INLINE points<Tav32f> points_of(several<__m128, 2> pairs) { return {all_re(pairs), all_im(pairs)}; }
TAV_INLINE points<Tav64f> points_of(several<__m128d, 2> pairs) { return {all_re(pairs), all_im(pairs)}; }

// Of 16-bit coordinates, four of each in the low halves, or four pairs.
TAV_INLINE points<Tav32f> points_of_words(__m128i re, __m128i im) {
  return {_mm_cvtepi32_ps(low_half_as_32s(re)), _mm_cvtepi32_ps(low_half_as_32s(im))};
}
TAV_INLINE points<Tav32f> points_of_words(__m128i pairs) {
  return {_mm_cvtepi32_ps(_mm_srai_epi32(_mm_slli_epi32(pairs, 16), 16)), _mm_cvtepi32_ps(_mm_srai_epi32(pairs, 16))};
}

// Of two pairs of 32-bit coordinates.
TAV_INLINE points<Tav64f> points_of_long_words(__m128i pairs) {
  return {_mm_cvtepi32_pd(_mm_shuffle_epi32(pairs, _MM_SHUFFLE(3, 1, 2, 0))),
          _mm_cvtepi32_pd(_mm_shuffle_epi32(pairs, _MM_SHUFFLE(2, 0, 3, 1)))};
}

// An element in a group of N, the others being 0.
template <int N, class T> TAV_INLINE group<T, N> alone(T v) {
  T all[N] = {v};
  return load<access::unaligned, N>(all);
}

template <class F> TAV_INLINE reg<F> angle(points<F> p) { return arctangent<F>::of(p.im, p.re); }
template <class F> TAV_INLINE reg<F> angle_apart(points<F> p) { return arctangent<F>::apart(p.im, p.re); }

// As floats, of S: a coordinate or a pair.
template <class S, class F> struct phase_of_floats : types<S, S, F> {
  static constexpr kernel_shape shape{.round_bytes = 16};

  static F                 one(auto... s) { return angle_apart(points_of(alone<lanes<F>>(s)...))[0]; }
  TAV_INLINE static reg<F> many(auto... r) { return angle(points_of(r...)); }
};

template <class S> struct phase_of_words : types<S, S, Tav32f> {
  static constexpr kernel_shape shape{.round_bytes = 16};

  static Tav32f            one(auto... s) { return angle_apart(points_of_words(alone<4>(s)...))[0]; }
  TAV_INLINE static __m128 many(auto... r) { return angle(points_of_words(r...)); }
};

// Angles in units of 2^s, to nearest, limited to 16 bits. Few lie so near a tie that single precision cannot tell the
// side; those are computed anew in double precision, which always can: of all pairs and factors, the nearest to a tie
// is 2^-48 of its size away.
class angle_in_words {
 public:
  explicit angle_in_words(int s)
      : units_(_mm_set1_ps(power_of_two_minus<Tav32f>(s))), precise_units_(power_of_two_minus<Tav64f>(s)) {}

  TAV_INLINE __m128i of(points<Tav32f> low, points<Tav32f> high) const {
    const __m128  a = limited(angle(low) * units_, -32768, 32767), b = limited(angle(high) * units_, -32768, 32767);
    const __m128i nearest_a = _mm_cvtps_epi32(a), nearest_b = _mm_cvtps_epi32(b);
    if (_mm_movemask_ps(_mm_or_ps(in_doubt(a, nearest_a), in_doubt(b, nearest_b))) == 0) [[likely]]
      return _mm_packs_epi32(nearest_a, nearest_b);
    return _mm_packs_epi32(precisely(low), precisely(high));
  }

  [[gnu::noinline]] __m128i precisely(points<Tav32f> p) const {
    const auto high = [](__m128 v) { return _mm_cvtps_pd(_mm_movehl_ps(v, v)); };
    return _mm_unpacklo_epi64(precisely(points<Tav64f>{_mm_cvtps_pd(p.re), _mm_cvtps_pd(p.im)}),
                              precisely(points<Tav64f>{high(p.re), high(p.im)}));
  }

 private:
  TAV_INLINE static __m128 in_doubt(__m128 value, __m128i nearest) {
    constexpr float largest_error = 0x1.2p-23f;  // of an angle, as a part of it; that of any pair is below 0x1.1p-23
    const __m128    off           = sign_cleared(value - _mm_cvtepi32_ps(nearest));
    const __m128    error         = sign_cleared(value) * _mm_set1_ps(largest_error);
    return _mm_cmpge_ps(off + error, _mm_set1_ps(0.5f));
  }
  TAV_INLINE __m128i precisely(points<Tav64f> p) const {
    return _mm_cvtpd_epi32(limited(angle_apart(p) * _mm_set1_pd(precise_units_), -32768, 32767));
  }

  __m128 units_;
  Tav64f precise_units_;
};

template <class S> struct phase_in_words : types<S, S, Tav16s> {
  static constexpr kernel_shape shape{.round_bytes = 16};

  // From -29 on there are only limits and zeros, although the smallest angles would fit.
  static constexpr int last_factor = -28, factor_of_limits = -40;

  explicit phase_in_words(int s) : rounded(s) {}

  Tav16s one(auto... s) const { return Tav16s(_mm_cvtsi128_si32(rounded.precisely(points_of_words(alone<4>(s)...)))); }

  TAV_INLINE __m128i many(__m128i re, __m128i im) const {
    return rounded.of(points_of_words(re, im), points_of_words(_mm_unpackhi_epi64(re, re), _mm_unpackhi_epi64(im, im)));
  }
  TAV_INLINE __m128i many(several<__m128i, 2> pairs) const {
    return rounded.of(points_of_words(pairs.r[0]), points_of_words(pairs.r[1]));
  }

 private:
  angle_in_words rounded;
};

// The same in 32 bits, of 32-bit coordinates.
struct phase_in_long_words : types<Tav32sc, Tav32sc, Tav32s> {
  static constexpr kernel_shape shape{.round_bytes = 16};

  static constexpr int last_factor = -64, factor_of_limits = -64;

  explicit phase_in_long_words(int s) : units(_mm_set1_pd(power_of_two_minus<Tav64f>(s))) {}

  Tav32s one(Tav32sc pair) const {
    return _mm_cvtsi128_si32(rounded(angle_apart(points_of_long_words(alone<2>(pair)))));
  }
  TAV_INLINE __m128i many(several<__m128i, 2> pairs) const {
    return _mm_unpacklo_epi64(rounded(angle(points_of_long_words(pairs.r[0]))),
                              rounded(angle(points_of_long_words(pairs.r[1]))));
  }

 private:
  __m128i rounded(__m128d angles) const { return _mm_cvtpd_epi32(limited(angles * units, -0x1p31, 0x1p31 - 1)); }

  __m128d units;
};

template <class Op, class... S>
TAV_INLINE TavStatus phases(const Op& op, typename Op::dst* dst, int len, const S*... src) {
  const round_to_nearest scope;
  return elementwise(op, dst, size_t(len), src...);
}

// Factors of 2 and more give zeros, although 1 could come out.
template <class Op, class... S>
TAV_INLINE TavStatus scaled_phases(int s, typename Op::dst* dst, int len, const S*... src) {
  if (s > 1) return shared::zero_bytes(dst, size_t(len) * sizeof(*dst));
  return phases(Op(s < Op::last_factor ? Op::factor_of_limits : s), dst, len, src...);
}

template <class Op>
TavStatus phase_of_parts(const typename Op::src1* srcRe, const typename Op::src2* srcIm, typename Op::dst* dst,
                         int len) {
  if (const TavStatus bad = check_vector(len, srcRe, srcIm, dst)) return bad;
  return phases(Op{}, dst, len, srcRe, srcIm);
}

template <class Op> TavStatus phase_of_pairs(const typename Op::src1* src, typename Op::dst* dst, int len) {
  if (const TavStatus bad = check_vector(len, src, dst)) return bad;
  return phases(Op{}, dst, len, src);
}

TavStatus phase_16s_scaled(const Tav16s* srcRe, const Tav16s* srcIm, Tav16s* dst, int len, int scaleFactor) {
  if (const TavStatus bad = check_vector(len, srcRe, srcIm, dst)) return bad;
  return scaled_phases<phase_in_words<Tav16s>>(scaleFactor, dst, len, srcRe, srcIm);
}

template <class Op>
TavStatus phase_of_pairs_scaled(const typename Op::src1* src, typename Op::dst* dst, int len, int scaleFactor) {
  if (const TavStatus bad = check_vector(len, src, dst)) return bad;
  return scaled_phases<Op>(scaleFactor, dst, len, src);
}

}  // namespace

TAV_BIND(Phase_32f, (&phase_of_parts<phase_of_floats<Tav32f, Tav32f>>))
TAV_BIND(Phase_64f, (&phase_of_parts<phase_of_floats<Tav64f, Tav64f>>))
TAV_BIND(Phase_32fc, (&phase_of_pairs<phase_of_floats<Tav32fc, Tav32f>>))
TAV_BIND(Phase_64fc, (&phase_of_pairs<phase_of_floats<Tav64fc, Tav64f>>))
TAV_BIND(Phase_16s32f, &phase_of_parts<phase_of_words<Tav16s>>)
TAV_BIND(Phase_16sc32f, &phase_of_pairs<phase_of_words<Tav16sc>>)
TAV_BIND(Phase_16s_Sfs, &phase_16s_scaled)
TAV_BIND(Phase_16sc_Sfs, &phase_of_pairs_scaled<phase_in_words<Tav16sc>>)
TAV_BIND(Phase_32sc_Sfs, &phase_of_pairs_scaled<phase_in_long_words>)

}  // namespace tav::TAV_VARIANT
