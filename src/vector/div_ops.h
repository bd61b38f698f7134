// Quotients of integers: dividend / divisor * 2^-s, rounded in the mode at hand and saturated.
//
// The divisor is the first operand, as everywhere in this family. One true division rounds once; its error cannot carry
// a quotient across a tie, because the quotients of the type keep clear of those they do not hit. Single precision is
// enough for this at all but the lowest factors (`single_from` in the rows below), double precision always.
//
// Zero divisors need no branch: a quotient of infinity saturates with the dividend's sign, and 0 / 0, which must be 0,
// becomes 0 / -1. Factors outside the range of a type need none either: at 2^64 and 2^-64 only signs count.
#pragma once
#include "frame/bind.h"
#include "frame/rounding.h"
#include "vector/forms.h"
#include "vector/narrow_lanes.h"
#include "vector/to_integer.h"

namespace tav::TAV_VARIANT {

struct factor_range {
  int lowest, highest;
};

inline constexpr int beyond = 64;  // stands for every factor outside the range

inline int limited(int s, factor_range range) { return s > range.highest ? beyond : s < range.lowest ? -beyond : s; }

// The units divide four 32-bit integers by four others. What falls below the least integer becomes it.

// `Biased` moves quotients away from zero by `bias` before the conversion.
template <bool Biased> class in_single {
 public:
  in_single(int s, int highest, Tav32f bias = 0)
      : scale_(power_of_two_minus<Tav32f>(s)), highest_(Tav32f(highest)), bias_(bias) {}

  TAV_INLINE __m128i four(__m128i b, __m128i a) const {
    __m128 q = _mm_div_ps(_mm_mul_ps(_mm_cvtepi32_ps(a), _mm_set1_ps(scale_)), _mm_cvtepi32_ps(b));
    if constexpr (Biased) q = _mm_add_ps(q, _mm_or_ps(_mm_set1_ps(bias_), _mm_and_ps(q, _mm_set1_ps(-0.0f))));
    return _mm_cvtps_epi32(_mm_min_ps(q, _mm_set1_ps(highest_)));
  }
  TAV_INLINE int one(int b, int a) const { return _mm_cvtsi128_si32(four(_mm_set1_epi32(b), _mm_set1_epi32(a))); }

 private:
  Tav32f scale_, highest_, bias_;
};

class in_double {
 public:
  in_double(int s, int highest) : scale_(power_of_two_minus<Tav64f>(s)), highest_(highest) {}

  // The low two of a, into the low half of the result.
  TAV_INLINE __m128i two(__m128d b, __m128i a) const {
    const __m128d q = _mm_div_pd(_mm_mul_pd(_mm_cvtepi32_pd(a), _mm_set1_pd(scale_)), b);
    return _mm_cvtpd_epi32(_mm_min_pd(q, _mm_set1_pd(highest_)));
  }
  TAV_INLINE __m128i four(__m128d low, __m128d high, __m128i a) const {
    return _mm_unpacklo_epi64(two(low, a), two(high, _mm_srli_si128(a, 8)));
  }
  TAV_INLINE __m128i four(__m128i b, __m128i a) const {
    return four(_mm_cvtepi32_pd(b), _mm_cvtepi32_pd(_mm_srli_si128(b, 8)), a);
  }
  TAV_INLINE int one(int b, int a) const { return _mm_cvtsi128_si32(two(_mm_set1_pd(b), _mm_set1_epi32(a))); }

 private:
  Tav64f scale_, highest_;
};

// Elements as registers of four 32-bit integers, and back.
template <class T> struct quads : narrow_row<T> {};

template <> struct quads<Tav8u> {
  static constexpr int lowest = 0, highest = 255;

  static several<__m128i, 4> widen(__m128i v) {
    const auto words = narrow_row<Tav8u>::widen(v);
    const auto low = narrow_row<Tav16u>::widen(words.r[0]), high = narrow_row<Tav16u>::widen(words.r[1]);
    return {{low.r[0], low.r[1], high.r[0], high.r[1]}};
  }
  static __m128i narrow(several<__m128i, 4> q) {
    return narrow_row<Tav8u>::narrow({{_mm_packs_epi32(q.r[0], q.r[1]), _mm_packs_epi32(q.r[2], q.r[3])}});
  }
};

template <> struct quads<Tav32s> {
  static constexpr int lowest = INT32_MIN, highest = INT32_MAX;

  static several<__m128i, 1> widen(__m128i v) { return {{v}}; }
  static several<__m128i, 2> widen(several<__m128i, 2> v) { return v; }
  static __m128i             narrow(several<__m128i, 1> q) { return q.r[0]; }
};

template <class T> TAV_INLINE __m128i zero_elements(__m128i v) {
  const __m128i zero = _mm_setzero_si128();
  return sizeof(T) == 1   ? _mm_cmpeq_epi8(v, zero)
         : sizeof(T) == 2 ? _mm_cmpeq_epi16(v, zero)
                          : _mm_cmpeq_epi32(v, zero);
}
template <class T> TAV_INLINE __m128i zero_elements(several<__m128i, 2> v) {
  return _mm_packs_epi32(zero_elements<T>(v.r[0]), zero_elements<T>(v.r[1]));
}

class zeros_met {
 public:
  TAV_INLINE void add(__m128i mask) { mask_ = _mm_or_si128(mask_, mask); }
  TavStatus       status() const { return _mm_movemask_epi8(mask_) != 0 ? tavStatusWarnDivideByZero : tavStatusOk; }

 private:
  __m128i mask_ = _mm_setzero_si128();
};

template <class D> TAV_INLINE D not_below_range(int q) { return D(q < quads<D>::lowest ? quads<D>::lowest : q); }

// B / A in elements D.
template <class A, class B, class D, class Unit> struct quotients : types<A, B, D> {
  static constexpr kernel_shape shape{.round_bytes = 16};
  static constexpr int          highest = quads<D>::highest;

  Unit      unit;
  zeros_met zeros;

  explicit quotients(const Unit& u) : unit(u) {}

  TAV_INLINE D one(A b, B a) {
    zeros.add(_mm_cvtsi32_si128(-int(b == 0)));
    return not_below_range<D>(unit.one(a == 0 ? -1 : b, a));
  }
  TAV_INLINE __m128i many(group<A, lanes<D>> b, group<B, lanes<D>> a) {
    zeros.add(zero_elements<A>(b));
    const auto divisors = quads<A>::widen(_mm_or_si128(b, zero_elements<B>(a)));
    auto       q        = quads<B>::widen(a);
    for (int k = 0; k < lanes<D> / 4; ++k) q.r[k] = unit.four(divisors.r[k], q.r[k]);
    return quads<D>::narrow(q);
  }
  TavStatus status() const { return zeros.status(); }
};

// (ar + i ai) / (br + i bi) = (ar br + ai bi + i (ai br - ar bi)) / (br^2 + bi^2); both numerators are exact. Over a
// zero divisor the parts of the dividend stand alone: over 1, as far as the numerators go, and over next to nothing.
struct quotients_16sc : types<Tav16sc, Tav16sc, Tav16sc> {
  static constexpr kernel_shape shape{.round_bytes = 16};
  static constexpr int          highest = INT16_MAX;

  in_double unit;
  zeros_met zeros;

  explicit quotients_16sc(const in_double& u) : unit(u) {}

  TAV_INLINE Tav16sc one(Tav16sc b, Tav16sc a) {
    int b_bits, a_bits;
    __builtin_memcpy(&b_bits, &b, sizeof b);
    __builtin_memcpy(&a_bits, &a, sizeof a);
    const int q = _mm_cvtsi128_si32(many(_mm_set1_epi32(b_bits), _mm_set1_epi32(a_bits)));
    return {Tav16s(q), Tav16s(q >> 16)};
  }
  TAV_INLINE __m128i many(__m128i b, __m128i a) {
    const __m128i squares = _mm_madd_epi16(b, b), zero = zero_elements<Tav16sc>(b);
    const __m128d low  = denominators(_mm_cvtepi32_pd(squares)),
                  high = denominators(_mm_cvtepi32_pd(_mm_srli_si128(squares, 8)));
    zeros.add(zero);
    b = _mm_sub_epi32(b, zero);
    const __m128i parts =
        _mm_packs_epi32(unit.four(low, high, real_numerators(b, a)), unit.four(low, high, imaginary_numerators(b, a)));
    return _mm_unpacklo_epi16(parts, _mm_srli_si128(parts, 8));
  }
  TavStatus status() const { return zeros.status(); }

 private:
  // A sum of two squares of -32768 wraps to -2^31, which only has the wrong sign.
  static __m128d denominators(__m128d squares) { return _mm_max_pd(sign_cleared(squares), _mm_set1_pd(0x1p-100)); }

  // The same wrap becomes 2^31 - 1. Its quotient by 2^31 is as good as 1: it rounds alike at every factor.
  static __m128i real_numerators(__m128i b, __m128i a) {
    const __m128i r = _mm_madd_epi16(a, b);
    return _mm_add_epi32(r, _mm_cmpeq_epi32(r, _mm_set1_epi32(INT32_MIN)));
  }

  // -bi is one more than the complement of bi. The sum may wrap on its way, but not the result.
  static __m128i imaginary_numerators(__m128i b, __m128i a) {
    const __m128i swapped = _mm_or_si128(_mm_srli_epi32(a, 16), _mm_slli_epi32(a, 16)),
                  ar      = _mm_srai_epi32(_mm_slli_epi32(a, 16), 16),
                  flipped = _mm_xor_si128(b, _mm_set1_epi32(int(0xFFFF0000)));
    return _mm_add_epi32(_mm_madd_epi16(swapped, flipped), ar);
  }
};

// What is particular to a type. From the factor `single_from` on, single precision suffices.
template <class T> struct division_row;

template <> struct division_row<Tav8u> {
  static constexpr factor_range factors{-15, 8};
  static constexpr int          single_from = -15;
};
template <> struct division_row<Tav16s> {
  static constexpr factor_range factors{-30, 15};
  static constexpr int          single_from = -8;
};
template <> struct division_row<Tav16u> {
  static constexpr factor_range factors{-31, 16};
  static constexpr int          single_from = -7;
};

// Gives go() the operation for factor s, in the mode that it needs.
template <class T, class Go> TAV_INLINE TavStatus with_quotients(int s, const Go& go) {
  using row = division_row<T>;
  const round_to_nearest_masked scope;
  const int                     at = limited(s, row::factors);
  if constexpr (row::single_from > row::factors.lowest)
    if (at < row::single_from && at != -beyond)
      return go(quotients<T, T, T, in_double>(in_double(at, quads<T>::highest)));
  return go(quotients<T, T, T, in_single<false>>(in_single<false>(at, quads<T>::highest)));
}

// dst = src2 / src1
template <class T> struct quotient_of : types<T, T, T> {
  template <class... S> static TavStatus run(int s, T* to, size_t len, S... src) {
    return with_quotients<T>(s, [&](const auto& op) { return elementwise(op, to, len, src...); });
  }
};

// The in-place form of a division with two sources is that division into its second source.
template <auto* Apart, class A, class D, class... Rest> TavStatus into_second(const A* src, D* srcDst, Rest... rest) {
  return forward<Apart>(src, static_cast<const D*>(srcDst), srcDst, rest...);
}

// The in-place form with a constant is the other one onto its source.
template <auto* Apart, class V, class D, class... Rest> TavStatus onto_source(V val, D* srcDst, Rest... rest) {
  return forward<Apart>(static_cast<const D*>(srcDst), val, srcDst, rest...);
}

}  // namespace tav::TAV_VARIANT
