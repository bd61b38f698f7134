// Operations with a constant for one of their operands, and the constants that spare the work.
//
//   zero_keeps<second_is_constant<sum_of<Tav32f>>>     src + val; with val = 0 nothing needs to be computed
#pragma once
#include "vector/arithmetic_ops.h"

namespace tav::TAV_VARIANT {

template <class Op> struct second_is_constant : types<typename Op::src1, typename Op::src2, typename Op::dst> {
  using constant_type = typename Op::src2;
  static constexpr kernel_shape shape{.round_bytes = Op::shape.round_bytes};

  explicit second_is_constant(constant_type v) : val(v), all(from_bits<constant_type>(repeated(v))) {}

  auto one(auto a, auto... more) const { return Op::one(a, val, more...); }
  auto many(auto a, auto... more) const { return Op::many(a, all, more...); }

 private:
  constant_type      val;
  reg<constant_type> all;
};

template <class Op> struct first_is_constant : types<typename Op::src2, typename Op::src1, typename Op::dst> {
  using constant_type = typename Op::src1;
  static constexpr kernel_shape shape{.round_bytes = Op::shape.round_bytes};

  explicit first_is_constant(constant_type v) : val(v), all(from_bits<constant_type>(repeated(v))) {}

  auto one(auto b) const { return Op::one(val, b); }
  auto many(auto b) const { return Op::many(all, b); }

 private:
  constant_type      val;
  reg<constant_type> all;
};

// What the families compute. Reversed differences know no shortcut, and a complex zero does not clear: the products of
// infinities and NaNs stay NaNs.
template <class T> using plus_constant  = zero_keeps<second_is_constant<sum_of<T>>>;
template <class T> using minus_constant = zero_keeps<first_is_constant<difference_of<T>>>;
template <class T> using constant_minus = second_is_constant<difference_of<T>>;
template <class T> using times_pair     = one_keeps<second_is_constant<product_of<T>>>;
template <class T> using times_constant = zero_clears<one_keeps<second_is_constant<product_of<T>>>>;

}  // namespace tav::TAV_VARIANT
