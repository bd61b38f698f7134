// The angle of a point (x, y) in each lane, in single and in double precision: what atan2(y, x) gives, within 1.6 units
// in the last place, over the whole range of the type.
//
// The smaller magnitude over the larger one is a number q from 0 to 1, of which a polynomial is the arctangent; the
// angle then is that, or its distance from pi / 2 or from pi. No scaling is needed: quotients that underflow are right,
// and there is nothing that could overflow. Half of the error is the rounding of q. Signs of zeros count, so that
// (-0.0, 0.0) lies at pi; infinities count as equal; a NaN gives a NaN, by the order of operands in min() and max(),
// which pass on the second one then.
//
// For callers in rounding to nearest.
#pragma once
#include "frame/registers.h"
#include "vector/arctangent_tables.h"

namespace tav::TAV_VARIANT {

// Lanes of floats as bits and as numbers. `lacking` is what right_angle lacks of pi / 2, as a part of it.
struct arctangent_singles {
  using R = __m128;

  static R all(Tav32f v) { return _mm_set1_ps(v); }
  static R both(R a, R b) { return _mm_and_ps(a, b); }
  static R without(R bits, R a) { return _mm_andnot_ps(bits, a); }
  static R either(R a, R b) { return _mm_or_ps(a, b); }
  static R differ(R a, R b) { return _mm_xor_ps(a, b); }
  static R equal(R a, R b) { return _mm_cmpeq_ps(a, b); }
  static R less(R a, R b) { return _mm_cmplt_ps(a, b); }
  static R min(R a, R b) { return _mm_min_ps(a, b); }
  static R max(R a, R b) { return _mm_max_ps(a, b); }

  static constexpr Tav32f largest     = 0x1.fffffep127f;
  static constexpr Tav32f right_angle = 0x1.921fb6p0f, lacking = -0x1.de12cap-26f;
};

struct arctangent_doubles {
  using R = __m128d;

  static R all(Tav64f v) { return _mm_set1_pd(v); }
  static R both(R a, R b) { return _mm_and_pd(a, b); }
  static R without(R bits, R a) { return _mm_andnot_pd(bits, a); }
  static R either(R a, R b) { return _mm_or_pd(a, b); }
  static R differ(R a, R b) { return _mm_xor_pd(a, b); }
  static R equal(R a, R b) { return _mm_cmpeq_pd(a, b); }
  static R less(R a, R b) { return _mm_cmplt_pd(a, b); }
  static R min(R a, R b) { return _mm_min_pd(a, b); }
  static R max(R a, R b) { return _mm_max_pd(a, b); }

  static constexpr Tav64f largest     = 0x1.fffffffffffffp1023;
  static constexpr Tav64f right_angle = 0x1.921fb54442d18p0, lacking = 0x1.678afae35cdd1p-55;
};

template <class F> class arctangent {
  using V = std::conditional_t<sizeof(F) == 4, arctangent_singles, arctangent_doubles>;
  using R = reg<F>;

 public:
  TAV_INLINE static R of(R y, R x) {
    const R sign = V::all(F(-0.0)), right = V::all(V::right_angle), behind = V::both(x, sign);
    const R ax = V::without(sign, x), ay = V::without(sign, y), steep = V::less(ax, ay);
    const R q = quotient(V::min(ax, ay), V::max(ay, ax)), s = q * q;

    // The axis that the arctangent is the distance from, at 0, pi / 2 or pi, and on which side of it.
    const R axis = right - V::without(steep, V::either(right, behind));
    const R side = V::differ(q, V::differ(behind, V::both(steep, sign)));
    const R rest = side * (s * polynomial(s)) + axis * V::all(V::lacking);
    return V::differ(axis + (side + rest), V::both(y, sign));
  }

  // The same, once for all callers to whom its size matters more than a call.
  [[gnu::noinline]] static R apart(R y, R x) { return of(y, x); }

 private:
  // low / high for magnitudes; 0 / 0 is 0, and infinity / infinity is 1. Neither is ever divided.
  TAV_INLINE static R quotient(R low, R high) {
    const R one = V::all(F(1)), zero = V::equal(high, V::all(F(0)));
    high         = V::either(high, V::both(zero, one));
    const R same = V::both(V::equal(low, high), one);
    return V::either(V::min(V::all(V::largest), low) / high, same);
  }

  using terms = arctangent_terms<F>;

  // In blocks, since a single chain has too much latency; even and odd powers apart would have less still, but cancel.
  template <int K, int End> TAV_INLINE static R block(R s) {
    R sum = V::all(terms::c[K]);
    if constexpr (K + 1 < End) sum = sum + s * block<K + 1, End>(s);
    return sum;
  }
  template <int K> TAV_INLINE static R blocks(R s, R power) {
    constexpr int next = K + terms::block;
    if constexpr (next >= terms::count)
      return block<K, terms::count>(s);
    else
      return block<K, next>(s) + power * blocks<next>(s, power);
  }
  template <int N> TAV_INLINE static R power_of(R s) {
    if constexpr (N == 1)
      return s;
    else if constexpr (N % 2 != 0)
      return s * power_of<N - 1>(s);
    else
      return power_of<N / 2>(s * s);
  }

  TAV_INLINE static R polynomial(R s) { return blocks<0>(s, power_of<terms::block>(s)); }
};

}  // namespace tav::TAV_VARIANT
