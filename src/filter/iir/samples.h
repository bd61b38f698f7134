// Samples, real and complex, one by one and four in a row. Four samples fill one register of singles, two of doubles or
// of complex singles, four of complex doubles.
#pragma once
#include <utility>

#include "filter/iir/traits.h"
#include "vector/shortcuts.h"

namespace tav::TAV_VARIANT::iir {

template <class A> TAV_INLINE A plus(A a, A b) {
  if constexpr (is_complex<A>)
    return {a.re + b.re, a.im + b.im};
  else
    return a + b;
}
template <class A> TAV_INLINE A minus(A a, A b) {
  if constexpr (is_complex<A>)
    return {a.re - b.re, a.im - b.im};
  else
    return a - b;
}
template <class A> TAV_INLINE A times(A a, A b) {
  if constexpr (is_complex<A>)
    return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
  else
    return a * b;
}
template <class A> TAV_INLINE A negated(A a) {
  if constexpr (is_complex<A>)
    return {-a.re, -a.im};
  else
    return -a;
}
template <class A> TAV_INLINE bool is_zero(A a) {
  if constexpr (is_complex<A>)
    return equals(a.re, 0) && equals(a.im, 0);
  else
    return equals(a, 0);
}

// Of complex numbers by the ratio of the parts, which cannot overflow where the result does not.
template <class A> A reciprocal(A a) {
  if constexpr (!is_complex<A>) {
    return 1 / a;
  } else if (__builtin_fabs(a.re) >= __builtin_fabs(a.im)) {
    const part<A> ratio = a.im / a.re, divisor = a.re + a.im * ratio;
    return {1 / divisor, -ratio / divisor};
  } else {
    const part<A> ratio = a.re / a.im, divisor = a.re * ratio + a.im;
    return {ratio / divisor, -1 / divisor};
  }
}

template <class A> inline constexpr int samples_per_register = lanes<A>;
template <class A> inline constexpr int quad_registers       = 4 / samples_per_register<A>;

template <class A> using quad = several<reg<A>, quad_registers<A>>;  // four samples, in order

template <class A> TAV_INLINE reg<A> load_register(const A* p) { return from_bits<A>(load_bits<access::unaligned>(p)); }
template <class A> TAV_INLINE reg<A> load_aligned(const A* p) { return from_bits<A>(load_bits<access::aligned>(p)); }
template <class A> TAV_INLINE void   store_register(A* p, reg<A> v) { store_bits<access::unaligned>(p, as_bits(v)); }

template <class A> TAV_INLINE quad<A> load_quad(const A* p) {
  quad<A> v;
#pragma GCC unroll 4
  for (int q = 0; q < quad_registers<A>; ++q) v.r[q] = load_register(p + q * samples_per_register<A>);
  return v;
}

template <class A> TAV_INLINE void store_quad(A* p, quad<A> v) {
  constexpr int registers = quad_registers<A>;
#pragma GCC unroll 4
  for (int q = 0; q < registers; ++q) store_register(p + q * samples_per_register<A>, v.r[q]);
}

template <int K> TAV_INLINE __m128  lane(__m128 v) { return _mm_shuffle_ps(v, v, K * 0x55); }
template <int K> TAV_INLINE __m128d lane(__m128d v) { return _mm_shuffle_pd(v, v, K * 3); }

TAV_INLINE __m128  all_lanes(Tav32f v) { return _mm_set1_ps(v); }
TAV_INLINE __m128d all_lanes(Tav64f v) { return _mm_set1_pd(v); }

// Part K of four samples, in every lane.
template <int K, class R, int Q> TAV_INLINE R all_of(several<R, Q> v) {
  constexpr int in_register = 16 / sizeof(decltype(R{}[0]));
  return lane<K % in_register>(v.r[K / in_register]);
}

// Four samples S later: zeros come in at the start.
template <int S, class A> TAV_INLINE quad<A> delayed(quad<A> v) {
  constexpr int whole = S / samples_per_register<A>, bytes = S % samples_per_register<A> * int(sizeof(A));
  quad<A>       out;
#pragma GCC unroll 4
  for (int q = 0; q < quad_registers<A>; ++q) {
    const __m128i high = q >= whole ? as_bits(v.r[q >= whole ? q - whole : 0]) : _mm_setzero_si128();
    const __m128i low  = q > whole ? as_bits(v.r[q > whole ? q - whole - 1 : 0]) : _mm_setzero_si128();
    out.r[q]           = from_bits<A>(bytes == 0 ? high : _mm_alignr_epi8(high, low, 16 - bytes));
  }
  return out;
}

// A factor for registers of samples: its real part in all lanes; for complex samples its imaginary part too, negative
// in the lanes of real parts. In tables it takes this form too.
template <class A> struct factor {
  static constexpr int samples = parts<A> * samples_per_register<A>;  // that a factor takes the room of

  explicit TAV_INLINE factor(A v) {
    if constexpr (is_complex<A>) {
      re = all_lanes(v.re);
      im = signs(v.im);
    } else {
      re = all_lanes(v);
    }
  }
  explicit TAV_INLINE factor(const A* table) : re(load_aligned(table)) {
    if constexpr (is_complex<A>) im = load_aligned(table + samples_per_register<A>);
  }
  TAV_INLINE void store(A* table) const {
    store_register(table, re);
    if constexpr (is_complex<A>) store_register(table + samples_per_register<A>, im);
  }

  TAV_INLINE reg<A> operator*(reg<A> v) const {
    if constexpr (is_complex<A>)
      return v * re + parts_exchanged(v) * im;
    else
      return v * re;
  }

  reg<A> re, im;

 private:
  static reg<A> signs(part<A> v) {
    if constexpr (sizeof(v) == 4)
      return _mm_setr_ps(-v, v, -v, v);
    else
      return _mm_setr_pd(-v, v);
  }
};

}  // namespace tav::TAV_VARIANT::iir
