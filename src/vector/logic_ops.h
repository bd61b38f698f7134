// The bitwise functions. An engine over bytes serves the elements of all widths, in place and not.
#pragma once
#include "frame/checks.h"
#include "vector/byte_engine.h"

namespace tav::shared {

// `with_zero` is what the operation comes to with a constant of 0.
struct and_bits {
  __m128i          operator()(__m128i a, __m128i b) const { return _mm_and_si128(a, b); }
  static TavStatus with_zero(const void*, void* dst, size_t n) { return zero_bytes(dst, n); }
};

struct or_bits {
  __m128i          operator()(__m128i a, __m128i b) const { return _mm_or_si128(a, b); }
  static TavStatus with_zero(const void* src, void* dst, size_t n) { return copy_unless_in_place(src, dst, n); }
};

struct xor_bits {
  __m128i          operator()(__m128i a, __m128i b) const { return _mm_xor_si128(a, b); }
  static TavStatus with_zero(const void* src, void* dst, size_t n) { return copy_unless_in_place(src, dst, n); }
};

// n bytes; dst may be a source.
template <class Op>
__attribute__((visibility("hidden"))) TavStatus combine(const void* src1, const void* src2, void* dst, size_t n);

// The same with a constant as the second source: 4 bytes full of elements, all alike.
template <class Op>
__attribute__((visibility("hidden"))) TavStatus combine_with(const void* src, void* dst, size_t n, Tav32u word);

}  // namespace tav::shared

namespace tav::TAV_VARIANT {

using shared::and_bits, shared::or_bits, shared::xor_bits;

template <class Op, class T> TavStatus combined(const T* src1, const T* src2, T* dst, int len) {
  if (const TavStatus bad = check_vector(len, src1, src2, dst)) return bad;
  return shared::combine<Op>(src1, src2, dst, size_t(len) * sizeof(T));
}

template <class Op, class T> TavStatus combined_in_place(const T* src, T* srcDst, int len) {
  return combined<Op>(src, srcDst, srcDst, len);
}

template <class Op, class T> TavStatus with_constant(const T* src, T val, T* dst, int len) {
  if (const TavStatus bad = check_vector(len, src, dst)) return bad;
  const size_t n = size_t(len) * sizeof(T);
  if (val == 0) return Op::with_zero(src, dst, n);
  return shared::combine_with<Op>(src, dst, n, val * (~Tav32u(0) / T(~T(0))));  // fills 4 bytes
}

template <class Op, class T> TavStatus with_constant_in_place(T val, T* srcDst, int len) {
  return with_constant<Op>(srcDst, val, srcDst, len);
}

template <class T> TavStatus inverted(const T* src, T* dst, int len) {
  return with_constant<xor_bits>(src, T(~T(0)), dst, len);
}

template <class T> TavStatus inverted_in_place(T* srcDst, int len) { return inverted<T>(srcDst, srcDst, len); }

}  // namespace tav::TAV_VARIANT
