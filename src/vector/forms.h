// The argument patterns of the element-wise functions: check, then run. One function template each.
#pragma once
#include "frame/bind.h"
#include "frame/checks.h"
#include "frame/kernel_shape.h"
#include "vector/byte_engine.h"
#include "vector/shortcuts.h"

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

template <class Op> TavStatus in_place(const typename Op::src1* src, typename Op::dst* srcDst, int len) {
  if (const TavStatus bad = check_vector(len, src, srcDst)) return bad;
  return elementwise(Op{}, srcDst, size_t(len), src, self{});
}

template <class Op>
TavStatus accumulated(const typename Op::src1* src1, const typename Op::src2* src2, typename Op::dst* srcDst, int len) {
  if (const TavStatus bad = check_vector(len, src1, src2, srcDst)) return bad;
  return elementwise(Op{}, srcDst, size_t(len), src1, src2, self{});
}

// With a constant, which the operation is made from, and which may spare the work.

template <class Op>
TavStatus constant(const typename Op::src1* src, typename Op::src2 val, typename Op::dst* dst, int len) {
  if (const TavStatus bad = check_vector(len, src, dst)) return bad;
  const size_t bytes = size_t(len) * sizeof(*dst);
  if (keeps<Op>(val)) return shared::copy_bytes(src, dst, bytes);
  if (clears<Op>(val)) return shared::zero_bytes(dst, bytes);
  return elementwise(Op(val), dst, size_t(len), src);
}

template <class Op> TavStatus constant_in_place(typename Op::src2 val, typename Op::dst* srcDst, int len) {
  if (const TavStatus bad = check_vector(len, srcDst)) return bad;
  if (keeps<Op>(val)) return tavStatusOk;
  if (clears<Op>(val)) return shared::zero_bytes(srcDst, size_t(len) * sizeof(*srcDst));
  return elementwise(Op(val), srcDst, size_t(len), self{});
}

template <class Op>
TavStatus accumulated_constant(const typename Op::src1* src, typename Op::src2 val, typename Op::dst* srcDst, int len) {
  if (const TavStatus bad = check_vector(len, src, srcDst)) return bad;
  return elementwise(Op(val), srcDst, size_t(len), src, self{});
}

// With a scale factor there are several kernels: the operation brings its own run(scaleFactor, dst, len, sources...),
// which picks one. Where the destination is a source too, that source is self{}.

template <class Op>
TavStatus two_sources_scaled(const typename Op::src1* src1, const typename Op::src2* src2, typename Op::dst* dst,
                             int len, int scaleFactor) {
  if (const TavStatus bad = check_vector(len, src1, src2, dst)) return bad;
  return Op::run(scaleFactor, dst, size_t(len), src1, src2);
}

// The second source is the destination.
template <class Op>
TavStatus in_place_scaled(const typename Op::src1* src, typename Op::dst* srcDst, int len, int scaleFactor) {
  if (const TavStatus bad = check_vector(len, src, srcDst)) return bad;
  return Op::run(scaleFactor, srcDst, size_t(len), src, self{});
}

// The third source is the destination.
template <class Op>
TavStatus accumulated_scaled(const typename Op::src1* src1, const typename Op::src2* src2, typename Op::dst* srcDst,
                             int len, int scaleFactor) {
  if (const TavStatus bad = check_vector(len, src1, src2, srcDst)) return bad;
  return Op::run(scaleFactor, srcDst, size_t(len), src1, src2, self{});
}

// With a constant, run(scaleFactor, val, dst, len, source) comes to know it first.
template <class Op>
TavStatus constant_scaled(const typename Op::src1* src, typename Op::src2 val, typename Op::dst* dst, int len,
                          int scaleFactor) {
  if (const TavStatus bad = check_vector(len, src, dst)) return bad;
  return Op::run(scaleFactor, val, dst, size_t(len), src);
}

template <class Op>
TavStatus constant_in_place_scaled(typename Op::src2 val, typename Op::dst* srcDst, int len, int scaleFactor) {
  if (const TavStatus bad = check_vector(len, srcDst)) return bad;
  return Op::run(scaleFactor, val, srcDst, size_t(len), self{});
}

// What is left to do where a constant changes nothing.
template <class D> TAV_INLINE TavStatus copied(D* dst, size_t len, const D* src) {
  return shared::copy_bytes(src, dst, len * sizeof(D));
}
template <class D> TAV_INLINE TavStatus copied(D*, size_t, self) { return tavStatusOk; }

// Sums of complex elements are sums of twice as many parts. The length is tested first, the pointers by the form of the
// parts; a length that cannot be doubled gives that form a wrapped one, which it refuses.

inline int twice(int len) { return int(unsigned(len) * 2); }

template <auto* OfParts, class C, class... Scale>
TavStatus two_sources_of_parts(const C* src1, const C* src2, C* dst, int len, Scale... scaleFactor) {
  if (len < 1) return tavStatusBadSize;
  return forward<OfParts>(parts_of(src1), parts_of(src2), parts_of(dst), twice(len), scaleFactor...);
}

template <auto* OfParts, class C, class... Scale>
TavStatus in_place_of_parts(const C* src, C* srcDst, int len, Scale... scaleFactor) {
  if (len < 1) return tavStatusBadSize;
  return forward<OfParts>(parts_of(src), parts_of(srcDst), twice(len), scaleFactor...);
}

}  // namespace tav::TAV_VARIANT
