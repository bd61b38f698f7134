// The shape of element-wise kernels with two destinations, which cannot both be brought to a 16-byte boundary: every
// access is unaligned, and only the tail is scalar.
//
// An operation gives `one(elements...)`, a struct of two elements {re, im}, and `many(registers...)`, two registers.
#pragma once
#include "frame/kernel_shape.h"

namespace tav::TAV_VARIANT {

template <class Op, class D, class... S>
TavStatus elementwise_apart(const Op& op, D* dst1, D* dst2, size_t len, const S*... src) {
  constexpr size_t step = lanes<D>;
  size_t           i    = 0;
  for (; len - i >= step; i += step) {
    const auto r = op.many(load<access::unaligned, step>(src + i)...);
    store<access::unaligned>(dst1 + i, r.r[0]);
    store<access::unaligned>(dst2 + i, r.r[1]);
  }
  for (; i < len; ++i) {
    const auto r = op.one(peek(src + i)...);
    poke(dst1 + i, D(r.re));
    poke(dst2 + i, D(r.im));
  }
  return tavStatusOk;
}

}  // namespace tav::TAV_VARIANT
