// Filling, moving and reversing by definition, one element or bit at a time.
#pragma once
#include <string.h>

#include <vector>

#include "tavs.h"

namespace oracle {

template <class T> void set(std::vector<T>& dst, T val) {
  for (T& v : dst) v = val;
}

template <class T> void flip(std::vector<T>& dst, const std::vector<T>& src) {
  for (size_t i = 0; i < src.size(); ++i) dst[i] = src[src.size() - 1 - i];
}

// Groups of `width` bytes, each back to front.
inline std::vector<Tav8u> swapped_bytes(const std::vector<Tav8u>& src, size_t width) {
  std::vector<Tav8u> dst(src.size());
  for (size_t i = 0; i < src.size(); ++i) dst[i] = src[i / width * width + width - 1 - i % width];
  return dst;
}

template <class T> T swapped_bytes(T value) {
  std::vector<Tav8u> bytes(sizeof(T));
  memcpy(bytes.data(), &value, sizeof value);
  bytes = swapped_bytes(bytes, sizeof(T));
  memcpy(&value, bytes.data(), sizeof value);
  return value;
}

// Bit n of a stream, numbered within a byte from its top or from its bottom.
inline unsigned mask_of_bit(unsigned n, bool from_top) { return from_top ? 0x80u >> n % 8 : 1u << n % 8; }

inline bool bit(const std::vector<Tav8u>& stream, unsigned n, bool from_top) {
  return (stream[n / 8] & mask_of_bit(n, from_top)) != 0;
}

inline void put_bit(std::vector<Tav8u>& stream, unsigned n, bool from_top, bool value) {
  const unsigned mask = mask_of_bit(n, from_top);
  stream[n / 8]       = Tav8u(value ? stream[n / 8] | mask : stream[n / 8] & ~mask);
}

inline void copy_bits(const std::vector<Tav8u>& src, unsigned src_bit, std::vector<Tav8u>& dst, unsigned dst_bit,
                      unsigned len, bool from_top) {
  for (unsigned i = 0; i < len; ++i) put_bit(dst, dst_bit + i, from_top, bit(src, src_bit + i, from_top));
}

struct packed {
  TavStatus status;
  unsigned  bits;
};

inline packed pack_bits(const std::vector<Tav32u>& src, const std::vector<Tav32s>& widths, std::vector<Tav8u>& dst,
                        unsigned dst_bit) {
  packed result{tavStatusOk, 0};
  for (size_t i = 0; i < src.size(); ++i) {
    Tav32s width = widths[i];
    if (width < 0 || width > 32) result.status = tavStatusWarnBitWidth;
    width = width < 0 ? 0 : width > 32 ? 32 : width;
    for (Tav32s k = width - 1; k >= 0; --k) put_bit(dst, dst_bit + result.bits++, true, (src[i] >> k & 1) != 0);
  }
  if (result.bits != 0)
    for (unsigned n = dst_bit + result.bits; n % 8 != 0; ++n) put_bit(dst, n, true, false);
  return result;
}

}  // namespace oracle
