// Products of packed spectra: the real ends are multiplied as reals, all else in complex pairs. A pair may lie on half
// its size (in Pack form it does).
//
// The destination may be a source: the forms in place run the same code, so that their bits agree with the others'.
#pragma once
#include "transform/fft/packed_formats.h"
#include "vector/arithmetic_ops.h"
#include "vector/parts.h"

namespace tav::TAV_VARIANT::packed {

// Runs `reals(dst, src1, src2)` on the slot of each real end, then `pairs(dst, count, src1, src2)`.
template <class Format, class Reals, class Pairs, class T>
TAV_INLINE TavStatus multiply(const T* src1, const T* src2, T* dst, size_t n, const Reals& reals, const Pairs& pairs) {
  reals(dst, src1, src2);
  if (has_middle(n)) {
    const size_t slot = Format::middle(n);
    reals(dst + slot, src1 + slot, src2 + slot);
  }
  using C          = pair_of<T>;
  const auto first = Format::first_pair(n);
  return pairs(reinterpret_cast<C*>(dst + first), pairs_between(n), reinterpret_cast<const C*>(src1 + first),
               reinterpret_cast<const C*>(src2 + first));
}

// In line: 32-bit code would hand a float back by way of the extended-precision unit.
template <class T> TAV_INLINE void multiply_reals(T* dst, const T* a, const T* b) { poke(dst, T(peek(a) * peek(b))); }

template <class Format, class Op, class T = part_of<typename Op::dst>>
TavStatus product(const T* src1, const T* src2, T* dst, int len) {
  if (const TavStatus bad = check_vector(len, src1, src2, dst)) return bad;
  return multiply<Format>(src1, src2, dst, size_t(len), multiply_reals<T>,
                          [](auto... arguments) { return elementwise(Op{}, arguments...); });
}

template <class Format, class Op, class T = part_of<typename Op::dst>>
TavStatus product_in_place(const T* src, T* srcDst, int len) {
  return product<Format, Op>(src, srcDst, srcDst, len);
}

// a times the conjugate of b.
template <complex_float C> struct product_with_conjugate : types<C, C, C> {
  static constexpr kernel_shape shape = float_shape<C>;

  TAV_INLINE static C      one(C a, C b) { return {a.re * b.re + a.im * b.im, a.im * b.re - a.re * b.im}; }
  TAV_INLINE static reg<C> many(reg<C> a, reg<C> b) {  // a difference of the product with the other sign is the sum
    const auto crossed = turned_round(a) * imaginary_parts(b);
    return difference_and_sum(a * real_parts(b),
                              from_bits<C>(_mm_xor_si128(as_bits(crossed), as_bits(repeated(part_of<C>(-0.0))))));
  }
};

}  // namespace tav::TAV_VARIANT::packed
