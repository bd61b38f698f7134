// The scale factor on exact results of 8- and 16-bit elements: the kernels none, down and up over narrow_lanes.h.
//
// An operation gives its exact result twice, as `exact(elements...)` and as `exact_many(registers...)`, and says how
// far that result reaches in its lane. One that reaches the top bit is rounded by its lower bits alone, which leaves
// room for the carry.
#pragma once
#include "vector/narrow_lanes.h"
#include "vector/scaled.h"

namespace tav::TAV_VARIANT {

enum class reach { inner, top_bit, top_bit_unsigned };

template <class Op> using row_of = narrow_row<typename Op::part>;

template <class Op> TAV_INLINE int limited(int64_t r) {
  using row = row_of<Op>;
  return r > row::highest ? row::highest : r < row::lowest ? row::lowest : int(r);
}

template <class Op> TAV_INLINE __m128i narrowed(pair_of_lanes r) {
  if constexpr (Op::result_reach == reach::top_bit_unsigned)
    return row_of<Op>::narrow_unsigned(r);
  else
    return row_of<Op>::narrow(r);
}

template <class Op> struct narrow_none {
  int     one(int64_t r) const { return limited<Op>(r); }
  __m128i many(pair_of_lanes r) const { return narrowed<Op>(r); }
};

// To nearest, ties to even: half of a unit less one is added, and one more where the quotient is odd.
template <class Op> struct narrow_down {
  using row = row_of<Op>;

  int     s;
  __m128i count, below_half, lost_bits;

  explicit narrow_down(int factor)
      : s(factor),
        count(_mm_cvtsi32_si128(s)),
        below_half(row::all(int((1u << (s - 1)) - 1))),
        lost_bits(row::all(int(~(~0u << s)))) {}

  template <class I> int one(I r) const { return limited<Op>((r + ((I(1) << (s - 1)) - 1) + (r >> s & 1)) >> s); }

  __m128i many(pair_of_lanes r) const {
    return row::narrow(each([this](__m128i v) { return rounded(v); }, r));
  }

 private:
  __m128i rounded(__m128i v) const {
    const __m128i one = row::all(1);
    if constexpr (Op::result_reach == reach::inner) {
      const __m128i odd = _mm_and_si128(row::down(v, count), one);
      return row::down(row::add(row::add(v, below_half), odd), count);
    } else {
      const __m128i below = Op::result_reach == reach::top_bit ? row::down(v, count) : row::down_unsigned(v, count);
      const __m128i carry = row::add(row::add(_mm_and_si128(v, lost_bits), below_half), _mm_and_si128(below, one));
      return row::add(below, row::down_unsigned(carry, count));
    }
  }
};

// Unsigned, by all bits of the lane: 1 above half of its range, else 0.
template <class Op> struct narrow_down_all {
  using row = row_of<Op>;

  int     one(int64_t r) const { return r > int64_t(1) << (row::bits - 1); }
  __m128i many(pair_of_lanes r) const {
    const auto above_half = [](__m128i v) {
      const __m128i top = _mm_cvtsi32_si128(row::bits - 1), one = row::all(1);
      return row::down_unsigned(row::sub(v, _mm_and_si128(row::down_unsigned(v, top), one)), top);
    };
    return row::narrow(each(above_half, r));
  }
};

// Saturated before the shift, so that no bit is lost, and after it.
template <class Op> struct narrow_up {
  using row = row_of<Op>;

  int     k;
  __m128i count;

  explicit narrow_up(int shift) : k(shift), count(_mm_cvtsi32_si128(shift)) {}

  int     one(int64_t r) const { return limited<Op>(int64_t(limited<Op>(r)) * (int64_t(1) << k)); }
  __m128i many(pair_of_lanes r) const {
    const auto shifted = each([this](__m128i v) { return row::up(v, count); }, row::widen(narrowed<Op>(r)));
    if constexpr (requires { row::narrow_unsigned(shifted); })
      return row::narrow_unsigned(shifted);
    else
      return row::narrow(shifted);
  }
};

// An operation and a scale, seen by the element-wise shape as one operation.
template <class Op, class Scale> struct narrow_kernel {
  static constexpr kernel_shape shape{.round_bytes = 16};
  Op                            op;
  Scale                         scale;

  template <class... E> auto one(E... e) const {
    const auto r = op.exact(e...);
    using D      = typename Op::dst;
    if constexpr (requires { r.re; })
      return D{typename Op::part(scale.one(r.re)), typename Op::part(scale.one(r.im))};
    else
      return D(scale.one(r));
  }
  template <class... V> __m128i many(V... v) const {
    if constexpr (std::is_same_v<Scale, narrow_none<Op>> && requires { op.saturated_many(v...); })
      return op.saturated_many(v...);
    else
      return scale.many(op.exact_many(v...));
  }
};

// Runs `with` one of the scales.
template <class Op, class With> struct each_narrow_scale {
  const With& with;

  TavStatus none() const { return with(narrow_none<Op>{}); }
  TavStatus down(int by) const {
    if constexpr (Op::result_reach == reach::top_bit_unsigned)
      if (by == row_of<Op>::bits) return with(narrow_down_all<Op>{});
    return with(narrow_down<Op>{by});
  }
  TavStatus up(int by) const { return with(narrow_up<Op>{by}); }
};

// The base of operations of this kind.
template <class S1, class S2, class D> struct narrow_types : types<S1, S2, D> {
  template <class Op, class Scale> using kernel = narrow_kernel<Op, Scale>;
  template <class Op, class With> using scales  = each_narrow_scale<Op, With>;
};

}  // namespace tav::TAV_VARIANT
