// Sine and cosine of a register of angles, for every angle and without a call of the C library: in single and in double
// precision within 2 units in the last place (measured: 1.55 and 0.8). Infinities and NaNs give NaNs. To be used in a
// scope that rounds to nearest, which is how the number of quarter turns is found.
//
// An angle becomes a number of quarter turns and a rest from -pi/4 to pi/4. Angles too large to lose their turns in a
// few exact products go to huge_angle.h one by one. The polynomials in the rest have the least relative error that
// their rounded coefficients allow.
#pragma once
#include "frame/registers.h"
#include "vector/huge_angle.h"

namespace tav::TAV_VARIANT {

template <class R> struct sine_cosine { R sine, cosine; };

// Angles without their signs, reduced. The quarters fill the lanes in words of 32 bits; their lowest two bits count.
struct angles_32f {
  __m128  rest;
  __m128i quarters;
};
struct angles_64f {
  __m128d rest, low;  // low is what rounding cut off the rest
  __m128i quarters;
};

// The same where the lanes of the mask are huge: those are reduced again.
__attribute__((noinline, cold)) inline angles_32f with_huge(__m128 angle, angles_32f r, int mask) {
  alignas(16) Tav32f of[4], rest[4];
  alignas(16) Tav32s quarters[4];
  store<access::aligned>(of, angle), store<access::aligned>(rest, r.rest);
  store<access::aligned>(quarters, r.quarters);
  for (int i = 0; i < 4; ++i) {
    if ((mask >> i & 1) == 0) continue;
    const auto reduced = shared::reduce_huge_angle(of[i]);
    rest[i]            = Tav32f(reduced.rest);
    quarters[i]        = reduced.quarters;
  }
  return {load<access::aligned, 4>(rest), load<access::aligned, 4>(quarters)};
}

__attribute__((noinline, cold)) inline angles_64f with_huge(__m128d angle, angles_64f r, int mask) {
  alignas(16) Tav64f of[2], rest[2], low[2];
  alignas(16) Tav32s quarters[4];
  store<access::aligned>(of, angle), store<access::aligned>(rest, r.rest), store<access::aligned>(low, r.low);
  store<access::aligned>(quarters, r.quarters);
  for (int i = 0; i < 2; ++i) {
    if ((mask >> i & 1) == 0) continue;
    const auto reduced = shared::reduce_huge_angle(of[i]);
    rest[i] = reduced.rest, low[i] = reduced.low;
    quarters[2 * i] = quarters[2 * i + 1] = reduced.quarters;
  }
  return {load<access::aligned, 2>(rest), load<access::aligned, 2>(low), load<access::aligned, 4>(quarters)};
}

TAV_INLINE int lanes_above(__m128 angle, Tav32f limit) {
  return _mm_movemask_ps(_mm_cmpgt_ps(angle, _mm_set1_ps(limit)));
}
TAV_INLINE int lanes_above(__m128d angle, Tav64f limit) {
  return _mm_movemask_pd(_mm_cmpgt_pd(angle, _mm_set1_pd(limit)));
}

// Quarter turns to the nearest, as doubles and in the low bits of their words.
struct quarters_64f {
  __m128d n;
  __m128i bits;
};

TAV_INLINE quarters_64f quarters_in(__m128d angle) {
  const __m128d no_fraction = _mm_set1_pd(0x1.8p52);  // beside it a double has no room for one
  const __m128d moved       = angle * _mm_set1_pd(0x1.45f306dc9c883p-1) + no_fraction;
  return {moved - no_fraction, _mm_castpd_si128(moved)};
}
TAV_INLINE __m128i in_both_words(__m128i bits) { return _mm_shuffle_epi32(bits, _MM_SHUFFLE(2, 2, 0, 0)); }

// pi/2 is taken in parts, so short that their products with the number of quarters are exact, but for the last. Of
// singles the rest is a double, and rounded once.
TAV_INLINE angles_32f reduced(__m128 angle) {
  const auto rest_of = [](__m128d a, __m128d n) {
    return _mm_cvtpd_ps((a - n * _mm_set1_pd(0x1.921fb544p+0)) - n * _mm_set1_pd(0x1.0b4611a626331p-34));
  };
  const __m128d a0 = _mm_cvtps_pd(angle), a1 = _mm_cvtps_pd(_mm_movehl_ps(angle, angle));
  const auto    q0 = quarters_in(a0), q1 = quarters_in(a1);
  const __m128  low_words =
      _mm_shuffle_ps(_mm_castsi128_ps(q0.bits), _mm_castsi128_ps(q1.bits), _MM_SHUFFLE(2, 0, 2, 0));

  const angles_32f r{_mm_movelh_ps(rest_of(a0, q0.n), rest_of(a1, q1.n)), _mm_castps_si128(low_words)};
  if (const int huge = lanes_above(angle, 0x1p22f)) [[unlikely]]
    return with_huge(angle, r, huge);
  return r;
}

// Here the differences are exact as well, together with what they lose.
TAV_INLINE angles_64f reduced(__m128d angle) {
  const auto    q     = quarters_in(angle);
  const __m128d part2 = q.n * _mm_set1_pd(0x1.10b4611p-30), part3 = q.n * _mm_set1_pd(0x1.4c4c662p-59);
  const __m128d first = angle - q.n * _mm_set1_pd(0x1.921fb54p+0), second = first - part2, rest = second - part3;
  const __m128d lost = ((first - second) - part2) + ((second - rest) - part3);

  const angles_64f r{rest, lost - q.n * _mm_set1_pd(0x1.1701b839a252p-88), in_both_words(q.bits)};
  if (const int huge = lanes_above(angle, 0x1p23)) [[unlikely]]
    return with_huge(angle, r, huge);
  return r;
}

// Shorter parts serve all that 32-bit integers can be. The rest is right as a number, not in all of its own bits, where
// it is small.
TAV_INLINE angles_64f reduced_for_integers(__m128d angle) {
  const auto    q    = quarters_in(angle);
  const __m128d near = (angle - q.n * _mm_set1_pd(0x1.921fbp+0)) - q.n * _mm_set1_pd(0x1.5110bp-22);

  const angles_64f r{near - q.n * _mm_set1_pd(0x1.18469898cc517p-44), _mm_setzero_pd(), in_both_words(q.bits)};
  if (const int huge = lanes_above(angle, 0x1p31)) [[unlikely]]
    return with_huge(angle, r, huge);
  return r;
}

TAV_INLINE sine_cosine<__m128> of_rest(__m128 r) {
  const __m128 z = r * r;
  const __m128 s = (_mm_set1_ps(-0x1.995406p-13f) * z + _mm_set1_ps(0x1.110778p-7f)) * z + _mm_set1_ps(-0x1.555546p-3f);
  const __m128 c = (_mm_set1_ps(0x1.99e80cp-16f) * z + _mm_set1_ps(-0x1.6c0c28p-10f)) * z + _mm_set1_ps(0x1.55554ap-5f);
  return {r + s * z * r, _mm_set1_ps(1) - (z * _mm_set1_ps(0.5f) - c * z * z)};
}

// s and c in r + s r^3 and 1 - r^2 / 2 + c r^4.
struct polynomials_64f {
  __m128d s, c;
};

TAV_INLINE polynomials_64f polynomials_in(__m128d z) {
  __m128d s = _mm_set1_pd(0x1.5d8b5585b5051p-33) * z + _mm_set1_pd(-0x1.ae5e4b83b75e3p-26);
  s         = s * z + _mm_set1_pd(0x1.71de35552b247p-19);
  s         = s * z + _mm_set1_pd(-0x1.a01a019be9215p-13);
  s         = s * z + _mm_set1_pd(0x1.111111110f73p-7);
  s         = s * z + _mm_set1_pd(-0x1.5555555555548p-3);
  __m128d c = _mm_set1_pd(-0x1.8fa68529f40a4p-37) * z + _mm_set1_pd(0x1.1ee9dbcfd3084p-29);
  c         = c * z + _mm_set1_pd(-0x1.27e4f7f191fe1p-22);
  c         = c * z + _mm_set1_pd(0x1.a01a019c8f25ap-16);
  c         = c * z + _mm_set1_pd(-0x1.6c16c16c15015p-10);
  c         = c * z + _mm_set1_pd(0x1.555555555554bp-5);
  return {s, c};
}

// With the low part, and with what 1 - r^2 / 2 loses.
TAV_INLINE sine_cosine<__m128d> of_rest(__m128d r, __m128d low) {
  const __m128d z = r * r, half = z * _mm_set1_pd(0.5), near = _mm_set1_pd(1) - half;
  const auto    p = polynomials_in(z);
  return {r + (p.s * z * r + low * near), near + (((_mm_set1_pd(1) - near) - half) + (p.c * z * z - r * low))};
}

TAV_INLINE sine_cosine<__m128d> of_rest(__m128d r) {
  const __m128d z = r * r;
  const auto    p = polynomials_in(z);
  return {r + p.s * z * r, _mm_set1_pd(1) - (z * _mm_set1_pd(0.5) - p.c * z * z)};
}

// The quarters turn sine and cosine into each other, with the signs of the quadrant; the sine has the angle's as well.
template <class T> TAV_INLINE sine_cosine<reg<T>> turned(sine_cosine<reg<T>> of, __m128i quarters, __m128i angle) {
  const __m128i bit0 = _mm_slli_epi32(quarters, 31), bit1 = _mm_slli_epi32(quarters, 30);
  const __m128i sign = repeated(T(-0.0)), s = as_bits(of.sine), c = as_bits(of.cosine);
  const __m128i exchange = _mm_and_si128(_mm_xor_si128(s, c), _mm_srai_epi32(bit0, 31));
  return {from_bits<T>(_mm_xor_si128(_mm_xor_si128(s, exchange), _mm_and_si128(_mm_xor_si128(bit1, angle), sign))),
          from_bits<T>(_mm_xor_si128(_mm_xor_si128(c, exchange), _mm_and_si128(_mm_xor_si128(bit1, bit0), sign)))};
}

TAV_INLINE sine_cosine<__m128> sine_cosine_of(__m128 angle) {
  const auto a = reduced(sign_cleared(angle));
  return turned<Tav32f>(of_rest(a.rest), a.quarters, as_bits(angle));
}

TAV_INLINE sine_cosine<__m128d> sine_cosine_of(__m128d angle) {
  const auto a = reduced(sign_cleared(angle));
  return turned<Tav64f>(of_rest(a.rest, a.low), a.quarters, as_bits(angle));
}

// For results that become integers: of angles with at most 32 significant bits, with an absolute error below 2^-51.
TAV_INLINE sine_cosine<__m128d> sine_cosine_for_integers(__m128d angle) {
  const auto a = reduced_for_integers(sign_cleared(angle));
  return turned<Tav64f>(of_rest(a.rest), a.quarters, as_bits(angle));
}

}  // namespace tav::TAV_VARIANT
