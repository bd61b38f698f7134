// Copies between bit streams at any offsets. The numbering of the bits in a byte is a parameter.
//
// Up to three parts: bits up to a byte boundary of dst, whole bytes of dst, bits of a last byte. A byte that holds no
// bit of the range is neither read nor written, so a stream may end where a page ends.
#pragma once
#include "frame/checks.h"
#include "vector/byte_engine.h"

namespace tav::TAV_VARIANT {

// Bit 0 of a byte is its most significant one.
struct from_top {
  static unsigned mask(unsigned from, unsigned count) { return (0xFFu >> from) & ~(0xFFu >> (from + count)); }
  static unsigned onward(unsigned byte, unsigned by) { return byte >> by; }  // to higher bit numbers
  static unsigned back(unsigned byte, unsigned by) { return byte << by; }
  static __m128i  onward(__m128i v, __m128i by) { return _mm_srl_epi16(v, by); }
  static __m128i  back(__m128i v, __m128i by) { return _mm_sll_epi16(v, by); }
};

// Bit 0 of a byte is its least significant one.
struct from_bottom {
  static unsigned mask(unsigned from, unsigned count) { return (0xFFu << from) & (0xFFu >> (8 - from - count)); }
  static unsigned onward(unsigned byte, unsigned by) { return byte << by; }
  static unsigned back(unsigned byte, unsigned by) { return byte >> by; }
  static __m128i  onward(__m128i v, __m128i by) { return _mm_sll_epi16(v, by); }
  static __m128i  back(__m128i v, __m128i by) { return _mm_srl_epi16(v, by); }
};

// Up to 8 bits within one byte of dst; they come from one or two bytes of src.
template <class Order>
TAV_INLINE void copy_within_byte(const Tav8u* src, unsigned src_bit, Tav8u* dst, unsigned dst_bit, unsigned count) {
  unsigned bits = Order::back(src[0], src_bit);
  if (src_bit + count > 8) bits |= Order::onward(src[1], 8 - src_bit);
  const unsigned mask = Order::mask(dst_bit, count);
  *dst                = Tav8u((*dst & ~mask) | (Order::onward(bits & 0xFF, dst_bit) & mask));
}

// Whole bytes of dst, each from two neighbours in src: src_bit is 1 to 7.
template <class Order, int Unroll>
TAV_INLINE void copy_joined_bytes(const Tav8u* src, unsigned src_bit, Tav8u* dst, size_t n) {
  if (n < 16) {
    for (size_t i = 0; i < n; ++i)
      dst[i] = Tav8u(Order::back(src[i], src_bit) | Order::onward(src[i + 1], 8 - src_bit));
    return;
  }
  const __m128i back = _mm_cvtsi32_si128(int(src_bit)), onward = _mm_cvtsi32_si128(int(8 - src_bit)),
                ahead =
                    _mm_set1_epi8(char(Order::mask(0, 8 - src_bit)));  // where the first neighbour's bits come to lie
  const auto joined = [&](size_t i) {
    const __m128i first  = Order::back(load_bits<access::unaligned>(src + i), back);
    const __m128i second = Order::onward(load_bits<access::unaligned>(src + i + 1), onward);
    return _mm_or_si128(_mm_and_si128(ahead, first), _mm_andnot_si128(ahead, second));
  };
  store_bits<access::unaligned>(dst, joined(0));
  size_t i = 16 - (reinterpret_cast<uintptr_t>(dst) & 15);
  for (; i + 16 * Unroll <= n; i += 16 * Unroll)
#pragma GCC unroll 4
    for (size_t k = 0; k < Unroll; ++k) store_bits<access::aligned>(dst + i + 16 * k, joined(i + 16 * k));
  for (; i + 16 <= n; i += 16) store_bits<access::aligned>(dst + i, joined(i));
  store_bits<access::unaligned>(dst + n - 16, joined(n - 16));
}

template <class Order, int Unroll>
void copy_bits(const Tav8u* src, unsigned src_bit, Tav8u* dst, unsigned dst_bit, size_t len) {
  src += src_bit / 8, src_bit %= 8, dst += dst_bit / 8, dst_bit %= 8;
  if (dst_bit != 0) {
    const unsigned head = len < 8 - dst_bit ? unsigned(len) : 8 - dst_bit;
    copy_within_byte<Order>(src, src_bit, dst, dst_bit, head);
    len -= head, src_bit += head, ++dst;
    src += src_bit / 8, src_bit %= 8;
  }
  const size_t bytes = len / 8;
  if (src_bit == 0)
    shared::copy_bytes(src, dst, bytes);
  else
    copy_joined_bytes<Order, Unroll>(src, src_bit, dst, bytes);
  if (len % 8 != 0) copy_within_byte<Order>(src + bytes, src_bit, dst + bytes, 0, unsigned(len % 8));
}

template <class Order, int Unroll>
TavStatus copied_bits(const Tav8u* src, int srcBitOffset, Tav8u* dst, int dstBitOffset, int len) {
  if (const TavStatus bad = check_vector(len, src, dst)) return bad;
  if (srcBitOffset < 0 || dstBitOffset < 0) return tavStatusBadSize;
  copy_bits<Order, Unroll>(src, unsigned(srcBitOffset), dst, unsigned(dstBitOffset), size_t(len));
  return tavStatusOk;
}

}  // namespace tav::TAV_VARIANT
