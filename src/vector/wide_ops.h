// Scaled functions whose results have 32 bits: an operation makes exact numbers of its sources (`exact`), which are of
// the kind `number`; a scale brings them back to 32 bits.
#pragma once
#include "vector/scaled.h"
#include "vector/wide_lanes.h"

namespace tav::TAV_VARIANT {

inline constexpr kernel_shape wide_shape{.round_bytes = 16};

template <class T> TAV_INLINE __m128i in_a_lane(T v) { return load_low<sizeof(T)>(&v); }
template <class T> TAV_INLINE T       from_a_lane(__m128i v) {
        T one;
        if constexpr (sizeof(T) == 8) {
          _mm_storel_epi64(reinterpret_cast<__m128i*>(&one), v);
  } else {
          const int word = _mm_cvtsi128_si32(v);
          __builtin_memcpy(&one, &word, sizeof one);
  }
        return one;
}

// The scalar parts use the first lanes of a register: there is no narrower way to be exact that were faster.
template <class Op, class Scale> struct wide_kernel {
  static constexpr kernel_shape shape = wide_shape;

  Op    op;
  Scale scale;

  template <class... S> typename Op::dst one(S... s) const {
    return from_a_lane<typename Op::dst>(many(in_a_lane(s)...));
  }
  template <class... R> __m128i many(R... r) const { return scale.of(op.exact(r...)); }
};

// Runs `with` one of the scales.
template <class Op, class With> struct each_wide_scale {
  const With& with;

  TavStatus none() const { return with(unscaled{}); }
  TavStatus up(int by) const { return with(scaled_up(by)); }
  TavStatus down(int s) const {
    if constexpr (std::is_same_v<typename Op::number, exact_sum>)
      if (s == 1) return with(halved{});
    return with(scaled_down<typename Op::number>(s));
  }
};

// The base of operations of this kind.
template <class Number, class S1, class S2, class D> struct wide_types : types<S1, S2, D> {
  using number                                  = Number;
  template <class Op, class Scale> using kernel = wide_kernel<Op, Scale>;
  template <class Op, class With> using scales  = each_wide_scale<Op, With>;
};

// An operation with a constant for its second operand.
template <class Op> struct by_constant : Op {
  explicit by_constant(typename Op::src2 v) : val(repeated(v)) {}

  auto exact(__m128i a) const { return Op::exact(a, val); }

 private:
  __m128i val;
};

}  // namespace tav::TAV_VARIANT
