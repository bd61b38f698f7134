// Arrays of elements of three bytes, in and out of lanes of 32 bits.
//
// Four elements take 12 bytes, but the vector steps load and store 16, which is faster than to put 12 together. The
// four bytes too many belong to the next two elements: a step is taken only if they exist, and what it stores there is
// zeros, which the next step or the tail overwrites.
#pragma once
#include "vector/bytes_24.h"
#include "vector/wide_ops.h"

namespace tav::TAV_VARIANT {

inline constexpr size_t bytes_24    = 3;      // of an element
inline constexpr size_t with_room   = 4 + 2;  // elements there must be for a step of 16 bytes
inline constexpr size_t round_of_24 = 16;     // elements in a round of the main loop

// A pass has four(i), which takes four elements and may touch two more, exactly_four(i) and one(i).
template <class Pass> TAV_INLINE TavStatus in_fours(const Pass& pass, size_t len) {
  size_t i = 0;
  for (; len - i >= round_of_24 + with_room - 4; i += round_of_24) {
#pragma GCC unroll 4
    for (size_t k = 0; k < round_of_24; k += 4) pass.four(i + k);
  }
  for (; len - i >= with_room; i += 4) pass.four(i);
  if (len - i >= 4) pass.exactly_four(i), i += 4;
  for (; i < len; ++i) pass.one(i);
  return tavStatusOk;
}

// Op has `dst`, `place`, where in the lanes it wants the elements, and many(lanes).
template <class Op> struct pass_from_24 {
  using dst_type = typename Op::dst;

  Op           op;
  const Tav8u* src;
  dst_type*    dst;

  TAV_INLINE void four(size_t i) const { put(i, load_bits<access::unaligned>(src + i * bytes_24)); }
  TAV_INLINE void exactly_four(size_t i) const { put(i, load_12_bytes(src + i * bytes_24)); }
  TAV_INLINE void one(size_t i) const {
    const __m128i lane = lanes_of_24<Op::place>(load_3_bytes(src + i * bytes_24));
    poke(dst + i, from_a_lane<dst_type>(as_bits(op.many(lane))));
  }

 private:
  TAV_INLINE void put(size_t i, __m128i packed) const {
    store<access::unaligned>(dst + i, op.many(lanes_of_24<Op::place>(packed)));
  }
};

// Op has `src`, `place`, where in the lanes it leaves the elements, and many(register).
template <class Op> struct pass_to_24 {
  using src_type = typename Op::src;

  Op              op;
  const src_type* src;
  Tav8u*          dst;

  TAV_INLINE void four(size_t i) const { store_bits<access::unaligned>(dst + i * bytes_24, packed(i)); }
  TAV_INLINE void exactly_four(size_t i) const { store_12_bytes(dst + i * bytes_24, packed(i)); }
  TAV_INLINE void one(size_t i) const {
    const __m128i lane = in_a_lane(peek(src + i));
    store_3_bytes(dst + i * bytes_24, packed_24<Op::place>(op.many(from_bits<src_type>(lane))));
  }

 private:
  TAV_INLINE __m128i packed(size_t i) const {
    return packed_24<Op::place>(op.many(load<access::unaligned, 4>(src + i)));
  }
};

// The two argument patterns.
template <class Op> TavStatus from_24(const Tav8u* src, typename Op::dst* dst, int len) {
  if (const TavStatus bad = check_vector(len, src, dst)) return bad;
  return in_fours(pass_from_24<Op>{Op{}, src, dst}, size_t(len));
}

template <class Op> TavStatus to_24(const Op& op, const typename Op::src* src, Tav8u* dst, size_t len) {
  return in_fours(pass_to_24<Op>{op, src, dst}, len);
}

}  // namespace tav::TAV_VARIANT
