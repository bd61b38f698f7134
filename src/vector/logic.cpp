// tavsAnd_*, Or, Xor, AndC, OrC, XorC and Not, but for the few in logic_tuned.cpp.
#include "vector/logic_ops.h"

#include <bit>

#include "frame/bind.h"
#include "vector/lanewise.h"

namespace tav::shared {

template <class Op> TAV_APART TavStatus combine_long(const void* src1, const void* src2, void* dst, size_t n) {
  return in_long(Op{}, Op{}, bytes(dst), n, bytes(src1), bytes(src2));
}

template <class Op> TAV_APART TavStatus combine_medium(const void* src1, const void* src2, void* dst, size_t n) {
  if (is_long<1>(dst, n)) return combine_long<Op>(src1, src2, dst, n);
  return in_medium(Op{}, bytes(dst), n, bytes(src1), bytes(src2));
}

template <class Op> TavStatus combine(const void* src1, const void* src2, void* dst, size_t n) {
  if (n > short_bytes) return combine_medium<Op>(src1, src2, dst, n);
  return in_short(Op{}, bytes(dst), n, bytes(src1), bytes(src2));
}

template TavStatus combine<and_bits>(const void*, const void*, void*, size_t);
template TavStatus combine<or_bits>(const void*, const void*, void*, size_t);
template TavStatus combine<xor_bits>(const void*, const void*, void*, size_t);

template <class Op> struct with {
  __m128i constant;
  explicit with(Tav32u word) : constant(_mm_set1_epi32(int(word))) {}
  __m128i operator()(__m128i a) const { return Op{}(a, constant); }
};

template <class Op> TAV_APART TavStatus combine_with_long(const void* src, void* dst, size_t n, Tav32u word) {
  const Tav32u from_boundary = std::rotr(word, 8 * int(to_boundary(bytes(dst)) % 4));
  return in_long(with<Op>(word), with<Op>(from_boundary), bytes(dst), n, bytes(src));
}

template <class Op> TAV_APART TavStatus combine_with_medium(const void* src, void* dst, size_t n, Tav32u word) {
  if (is_long<1>(dst, n)) return combine_with_long<Op>(src, dst, n, word);
  return in_medium(with<Op>(word), bytes(dst), n, bytes(src));
}

template <class Op> TavStatus combine_with(const void* src, void* dst, size_t n, Tav32u word) {
  if (n > short_bytes) return combine_with_medium<Op>(src, dst, n, word);
  return in_short(with<Op>(word), bytes(dst), n, bytes(src));
}

template TavStatus combine_with<and_bits>(const void*, void*, size_t, Tav32u);
template TavStatus combine_with<or_bits>(const void*, void*, size_t, Tav32u);
template TavStatus combine_with<xor_bits>(const void*, void*, size_t, Tav32u);

}  // namespace tav::shared

namespace tav::TAV_VARIANT {

TAV_BIND(And_8u, &combined<and_bits, Tav8u>)
TAV_BIND(And_16u, &combined<and_bits, Tav16u>)
TAV_BIND(And_32u, &combined<and_bits, Tav32u>)
TAV_BIND(Or_8u, &combined<or_bits, Tav8u>)
TAV_BIND(Or_16u, &combined<or_bits, Tav16u>)
TAV_BIND(Or_32u, &combined<or_bits, Tav32u>)
TAV_BIND(Xor_8u, &combined<xor_bits, Tav8u>)
TAV_BIND(Xor_16u, &combined<xor_bits, Tav16u>)
TAV_BIND(Xor_32u, &combined<xor_bits, Tav32u>)

TAV_BIND(And_8u_I, &combined_in_place<and_bits, Tav8u>)
TAV_BIND(And_16u_I, &combined_in_place<and_bits, Tav16u>)
TAV_BIND(And_32u_I, &combined_in_place<and_bits, Tav32u>)
TAV_BIND(Or_8u_I, &combined_in_place<or_bits, Tav8u>)
TAV_BIND(Or_16u_I, &combined_in_place<or_bits, Tav16u>)
TAV_BIND(Or_32u_I, &combined_in_place<or_bits, Tav32u>)
TAV_BIND(Xor_8u_I, &combined_in_place<xor_bits, Tav8u>)
TAV_BIND(Xor_16u_I, &combined_in_place<xor_bits, Tav16u>)
TAV_BIND(Xor_32u_I, &combined_in_place<xor_bits, Tav32u>)

TAV_BIND(AndC_8u, &with_constant<and_bits, Tav8u>)
TAV_BIND(AndC_16u, &with_constant<and_bits, Tav16u>)
TAV_BIND(AndC_32u, &with_constant<and_bits, Tav32u>)
TAV_BIND(OrC_8u, &with_constant<or_bits, Tav8u>)
TAV_BIND(OrC_16u, &with_constant<or_bits, Tav16u>)
TAV_BIND(OrC_32u, &with_constant<or_bits, Tav32u>)
TAV_BIND(XorC_16u, &with_constant<xor_bits, Tav16u>)
TAV_BIND(XorC_32u, &with_constant<xor_bits, Tav32u>)

TAV_BIND(AndC_8u_I, &with_constant_in_place<and_bits, Tav8u>)
TAV_BIND(AndC_16u_I, &with_constant_in_place<and_bits, Tav16u>)
TAV_BIND(AndC_32u_I, &with_constant_in_place<and_bits, Tav32u>)
TAV_BIND(OrC_8u_I, &with_constant_in_place<or_bits, Tav8u>)
TAV_BIND(OrC_16u_I, &with_constant_in_place<or_bits, Tav16u>)
TAV_BIND(OrC_32u_I, &with_constant_in_place<or_bits, Tav32u>)
TAV_BIND(XorC_16u_I, &with_constant_in_place<xor_bits, Tav16u>)
TAV_BIND(XorC_32u_I, &with_constant_in_place<xor_bits, Tav32u>)

TAV_BIND(Not_32u, &inverted<Tav32u>)
TAV_BIND(Not_32u_I, &inverted_in_place<Tav32u>)

}  // namespace tav::TAV_VARIANT
