// The argument patterns of the element-wise functions: check, then run. One function template each.
#pragma once
#include "frame/checks.h"
#include "frame/kernel_shape.h"

namespace tav::TAV_VARIANT {

// What an operation reads and makes.
template <class S1, class S2, class D> struct types {
  using src1 = S1;
  using src2 = S2;
  using dst  = D;
};

template <class Op> TavStatus one_source(const typename Op::src1* src, typename Op::dst* dst, int len) {
  if (const TavStatus bad = check_vector(len, src, dst)) return bad;
  return elementwise(Op{}, dst, size_t(len), src);
}

template <class Op> TavStatus on_itself(typename Op::dst* srcDst, int len) {
  if (const TavStatus bad = check_vector(len, srcDst)) return bad;
  return elementwise(Op{}, srcDst, size_t(len), self{});
}

template <class Op>
TavStatus two_sources(const typename Op::src1* src1, const typename Op::src2* src2, typename Op::dst* dst, int len) {
  if (const TavStatus bad = check_vector(len, src1, src2, dst)) return bad;
  return elementwise(Op{}, dst, size_t(len), src1, src2);
}

}  // namespace tav::TAV_VARIANT
