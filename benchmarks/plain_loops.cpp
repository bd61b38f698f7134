#include "plain_loops.h"

namespace plain {
namespace {

uint16_t reversed(uint16_t v) { return __builtin_bswap16(v); }
uint32_t reversed(uint32_t v) { return __builtin_bswap32(v); }
uint64_t reversed(uint64_t v) { return __builtin_bswap64(v); }

struct from_top {
  static bool    get(const uint8_t* p, int bit) { return p[bit / 8] >> (7 - bit % 8) & 1; }
  static uint8_t mask(int bit) { return uint8_t(0x80 >> bit % 8); }
  static uint8_t join(uint8_t first, uint8_t second, int by) { return uint8_t(first << by | second >> (8 - by)); }
};

struct from_bottom {
  static bool    get(const uint8_t* p, int bit) { return p[bit / 8] >> bit % 8 & 1; }
  static uint8_t mask(int bit) { return uint8_t(1 << bit % 8); }
  static uint8_t join(uint8_t first, uint8_t second, int by) { return uint8_t(first >> by | second << (8 - by)); }
};

// Single bits until dst is at a byte, then bytes, then single bits.
template <class Order>
void bits(const uint8_t* __restrict src, int src_bit, uint8_t* __restrict dst, int dst_bit, int n) {
  const auto one = [&] {
    const uint8_t mask = Order::mask(dst_bit);
    dst[dst_bit / 8]   = uint8_t(Order::get(src, src_bit) ? dst[dst_bit / 8] | mask : dst[dst_bit / 8] & ~mask);
    ++src_bit, ++dst_bit, --n;
  };
  while (n > 0 && dst_bit % 8 != 0) one();
  const uint8_t* from  = src + src_bit / 8;
  uint8_t*       to    = dst + dst_bit / 8;
  const int      bytes = n / 8, by = src_bit % 8;
  for (int i = 0; i < bytes; ++i) to[i] = by == 0 ? from[i] : Order::join(from[i], from[i + 1], by);
  src_bit += 8 * bytes, dst_bit += 8 * bytes, n -= 8 * bytes;
  while (n > 0) one();
}

}  // namespace

void copy(const uint8_t* __restrict src, uint8_t* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = src[i];
}

template <class T> void fill(T value, T* dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = value;
}

template <class T> void flip(const T* __restrict src, T* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = src[n - 1 - i];
}

template <class T> void flip_in_place(T* data, int n) {
  for (int i = 0; i < n / 2; ++i) {
    const T low     = data[i];
    data[i]         = data[n - 1 - i];
    data[n - 1 - i] = low;
  }
}

template <class T> void swap_bytes(const T* __restrict src, T* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = reversed(src[i]);
}

template <class T> void swap_bytes_in_place(T* data, int n) {
  for (int i = 0; i < n; ++i) data[i] = reversed(data[i]);
}

void swap_bytes_24(const uint8_t* __restrict src, uint8_t* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) {
    dst[3 * i]     = src[3 * i + 2];
    dst[3 * i + 1] = src[3 * i + 1];
    dst[3 * i + 2] = src[3 * i];
  }
}

template <class T> void bitwise_and(const T* __restrict a, const T* __restrict b, T* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = a[i] & b[i];
}

template <class T> void bitwise_xor(const T* __restrict src, T value, T* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = src[i] ^ value;
}

template <class T> void shift_left(const T* __restrict src, int count, T* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = T(src[i] << count);
}

template <class T> void shift_right(const T* __restrict src, int count, T* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = T(src[i] >> count);
}

template <class T> void add(const T* __restrict a, const T* __restrict b, T* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = a[i] + b[i];
}

void add_constant(const float* __restrict src, float val, float* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = src[i] + val;
}

void add_saturating(const int16_t* __restrict a, const int16_t* __restrict b, int16_t* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) {
    const int sum = a[i] + b[i];
    dst[i]        = int16_t(sum > 32767 ? 32767 : sum < -32768 ? -32768 : sum);
  }
}

void multiply(const float* __restrict a, const float* __restrict b, float* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = a[i] * b[i];
}

void multiply_by(const float* __restrict src, float val, float* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = src[i] * val;
}

void multiply(const Tav32fc* __restrict a, const Tav32fc* __restrict b, Tav32fc* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) {
    dst[i].re = a[i].re * b[i].re - a[i].im * b[i].im;
    dst[i].im = a[i].re * b[i].im + a[i].im * b[i].re;
  }
}

void multiply_by(const Tav32fc* __restrict src, Tav32fc val, Tav32fc* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) {
    dst[i].re = src[i].re * val.re - src[i].im * val.im;
    dst[i].im = src[i].re * val.im + src[i].im * val.re;
  }
}

void copy_bits(const uint8_t* src, int src_bit, uint8_t* dst, int dst_bit, int n) {
  bits<from_top>(src, src_bit, dst, dst_bit, n);
}

void copy_bits_from_bottom(const uint8_t* src, int src_bit, uint8_t* dst, int dst_bit, int n) {
  bits<from_bottom>(src, src_bit, dst, dst_bit, n);
}

int pack_bits(const uint32_t* __restrict src, const int32_t* __restrict widths, int n, uint8_t* __restrict dst) {
  uint64_t pending = 0;
  int      held = 0, total = 0;
  for (int i = 0; i < n; ++i) {
    const int width = widths[i];
    pending         = pending << width | (src[i] & ((uint64_t(1) << width) - 1));
    total += width;
    for (held += width; held >= 8; held -= 8) *dst++ = uint8_t(pending >> (held - 8));
  }
  if (held > 0) *dst = uint8_t(pending << (8 - held));
  return total;
}

template void add(const float*, const float*, float*, int);
template void add(const double*, const double*, double*, int);
template void fill(uint8_t, uint8_t*, int);
template void fill(int16_t, int16_t*, int);
template void fill(float, float*, int);
template void fill(double, double*, int);
template void flip(const uint8_t*, uint8_t*, int);
template void flip(const uint16_t*, uint16_t*, int);
template void flip(const float*, float*, int);
template void flip(const double*, double*, int);
template void flip_in_place(uint8_t*, int);
template void flip_in_place(uint16_t*, int);
template void flip_in_place(float*, int);
template void flip_in_place(double*, int);
template void swap_bytes(const uint16_t*, uint16_t*, int);
template void swap_bytes(const uint32_t*, uint32_t*, int);
template void swap_bytes(const uint64_t*, uint64_t*, int);
template void swap_bytes_in_place(uint16_t*, int);
template void swap_bytes_in_place(uint32_t*, int);
template void swap_bytes_in_place(uint64_t*, int);
template void bitwise_and(const uint8_t*, const uint8_t*, uint8_t*, int);
template void bitwise_and(const uint32_t*, const uint32_t*, uint32_t*, int);
template void bitwise_xor(const uint16_t*, uint16_t, uint16_t*, int);
template void shift_left(const int16_t*, int, int16_t*, int);
template void shift_right(const uint8_t*, int, uint8_t*, int);
template void shift_right(const int32_t*, int, int32_t*, int);

}  // namespace plain
