// tavsDivC_* and tavsDivCRev_*: integers by a constant, and a constant by each element.
#include "vector/div_float_ops.h"
#include "vector/div_ops.h"
#include "vector/move_forms.h"

namespace tav::TAV_VARIANT {

// Four integers times 2^-s / divisor, instead of a division. The product may miss the quotient by the last bits, and a
// tie with it: rounded to the upper 21 of its 24 bits, it hits ties again and still keeps clear of those that the
// quotient does not hit, from a somewhat higher factor on than a division in single precision.
class times_reciprocal {
 public:
  static constexpr int factors_above_single = 4;

  times_reciprocal(int s, int highest, int divisor)
      : reciprocal_(held(power_of_two_minus<Tav32f>(s) / held(Tav32f(divisor)))), highest_(Tav32f(highest)) {}

  TAV_INLINE __m128i four(__m128i a) const {
    const __m128i q     = as_bits(_mm_mul_ps(_mm_cvtepi32_ps(a), _mm_set1_ps(reciprocal_))),
                  upper = _mm_and_si128(_mm_add_epi32(q, _mm_set1_epi32(4)), _mm_set1_epi32(~7));
    return _mm_cvtps_epi32(_mm_min_ps(from_bits<Tav32f>(upper), _mm_set1_ps(highest_)));
  }

 private:
  Tav32f reciprocal_, highest_;
};

class over_constant {
 public:
  over_constant(int s, int highest, int divisor) : unit_(s, highest), divisor_(divisor) {}

  TAV_INLINE __m128i four(__m128i a) const { return unit_.four(_mm_set1_epi32(divisor_), a); }

 private:
  in_double unit_;
  int       divisor_;
};

template <class T, class Unit> struct quotients_by {
  static constexpr kernel_shape shape{.round_bytes = 16};

  Unit unit;

  TAV_INLINE T       one(T a) const { return not_below_range<T>(_mm_cvtsi128_si32(unit.four(_mm_set1_epi32(a)))); }
  TAV_INLINE __m128i many(__m128i a) const {
    auto q = quads<T>::widen(a);
    for (int k = 0; k < lanes<T> / 4; ++k) q.r[k] = unit.four(q.r[k]);
    return quads<T>::narrow(q);
  }
};

// An operation with one of its operands fixed.
template <class Op, class T> struct with_divisor : Op {
  T val;

  with_divisor(const Op& op, T v) : Op(op), val(v) {}
  TAV_INLINE auto one(T a) { return Op::one(val, a); }
  TAV_INLINE auto many(reg<T> a) { return Op::many(from_bits<T>(repeated(val)), a); }
};

template <class Op, class T> struct with_dividend : Op {
  T val;

  with_dividend(const Op& op, T v) : Op(op), val(v) {}
  TAV_INLINE auto one(T b) { return Op::one(b, val); }
  TAV_INLINE auto many(reg<T> b) { return Op::many(b, from_bits<T>(repeated(val))); }
};

template <class T> bool is_zero(T val) { return val == 0; }
static bool             is_zero(Tav16sc val) { return val.re == 0 && val.im == 0; }

template <class T> TavStatus all_divided(const T* src, T val, T* dst, size_t len, int s) {
  using row         = division_row<T>;
  constexpr int top = quads<T>::highest;

  const round_to_nearest_masked scope;
  const int                     at = limited(s, row::factors);
  if (at < row::single_from + times_reciprocal::factors_above_single && at != -beyond)
    return elementwise(quotients_by<T, over_constant>{{at, top, val}}, dst, len, src);
  return elementwise(quotients_by<T, times_reciprocal>{{at, top, val}}, dst, len, src);
}

// Far below the range the scaled quotient of 0 is not 0: every element becomes the maximum.
static TavStatus all_divided(const Tav16u* src, Tav16u val, Tav16u* dst, size_t len, int s) {
  if (s < division_row<Tav16u>::factors.lowest)
    return shared::fill_elements<sizeof(Tav16u)>(dst, len, repeated(Tav16u(UINT16_MAX)));
  return all_divided<Tav16u>(src, val, dst, len, s);
}

// A smaller range than for two arrays; below it every part other than 0 saturates, even though some exact results would
// not.
static TavStatus all_divided(const Tav16sc* src, Tav16sc val, Tav16sc* dst, size_t len, int s) {
  const round_to_nearest_masked scope;
  return elementwise(with_divisor(quotients_16sc({limited(s, {-16, 15}), INT16_MAX}), val), dst, len, src);
}

template <class T> TavStatus divided_by_constant(const T* src, T val, T* dst, int len, int scaleFactor) {
  if (const TavStatus bad = check_vector(len, src, dst)) return bad;
  if (is_zero(val)) return tavStatusDivideByZero;
  return all_divided(src, val, dst, size_t(len), scaleFactor);
}

static TavStatus constant_divided_16u(const Tav16u* src, Tav16u val, Tav16u* dst, int len) {
  if (const TavStatus bad = check_vector(len, src, dst)) return bad;
  return with_quotients<Tav16u>(
      0, [&](const auto& op) { return elementwise(with_dividend(op, val), dst, size_t(len), src); });
}

static TavStatus constant_divided_32f(const Tav32f* src, Tav32f val, Tav32f* dst, int len) {
  if (const TavStatus bad = check_vector(len, src, dst)) return bad;
  const round_to_nearest_masked scope;
  return elementwise(with_dividend(quotients_32f{}, val), dst, size_t(len), src);
}

TAV_BIND(DivC_8u_Sfs, &divided_by_constant<Tav8u>)
TAV_BIND(DivC_16s_Sfs, &divided_by_constant<Tav16s>)
TAV_BIND(DivC_16u_Sfs, &divided_by_constant<Tav16u>)
TAV_BIND(DivC_16sc_Sfs, &divided_by_constant<Tav16sc>)
TAV_BIND(DivCRev_16u, &constant_divided_16u)
TAV_BIND(DivCRev_32f, &constant_divided_32f)

TAV_BIND(DivC_8u_ISfs, (&onto_source<&::tavsDivC_8u_Sfs, Tav8u, Tav8u, int, int>))
TAV_BIND(DivC_16s_ISfs, (&onto_source<&::tavsDivC_16s_Sfs, Tav16s, Tav16s, int, int>))
TAV_BIND(DivC_16u_ISfs, (&onto_source<&::tavsDivC_16u_Sfs, Tav16u, Tav16u, int, int>))
TAV_BIND(DivC_16sc_ISfs, (&onto_source<&::tavsDivC_16sc_Sfs, Tav16sc, Tav16sc, int, int>))
TAV_BIND(DivCRev_16u_I, (&onto_source<&::tavsDivCRev_16u, Tav16u, Tav16u, int>))
TAV_BIND(DivCRev_32f_I, (&onto_source<&::tavsDivCRev_32f, Tav32f, Tav32f, int>))

}  // namespace tav::TAV_VARIANT
