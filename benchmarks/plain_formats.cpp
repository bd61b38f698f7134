#include "plain_formats.h"

#include <math.h>
#include <string.h>

#include <algorithm>

namespace plain {
namespace {

int32_t value_of_24(const uint8_t* p) { return int32_t(uint32_t(p[0] << 8 | p[1] << 16) | uint32_t(p[2]) << 24) >> 8; }

float as_float(uint32_t bits) {
  float v;
  memcpy(&v, &bits, sizeof v);
  return v;
}

uint32_t bits_of(float v) {
  uint32_t bits;
  memcpy(&bits, &v, sizeof bits);
  return bits;
}

float float_of(uint16_t half) {
  const uint32_t sign = uint32_t(half & 0x8000) << 16, magnitude = half & 0x7FFF;
  if (magnitude >= 0x7C00) return as_float(sign | 0x7F800000 | (magnitude & 0x3FF) << 13);
  if (magnitude >= 0x0400) return as_float(sign | ((magnitude << 13) + 0x38000000));
  const float v = float(magnitude) * 0x1p-24f;
  return sign ? -v : v;
}

uint16_t half_of(float v) {
  const uint32_t bits = bits_of(v), magnitude = bits & 0x7FFFFFFF;
  const uint16_t sign = uint16_t(bits >> 16 & 0x8000);
  if (magnitude > 0x7F800000) return sign | 0x7E00;
  if (magnitude >= 0x477FF000) return sign | 0x7C00;
  if (magnitude >= 0x38800000) return uint16_t(sign | (magnitude - 0x38000000 + 0xFFF + (magnitude >> 13 & 1)) >> 13);
  return uint16_t(sign | (bits_of(as_float(magnitude) + 0.5f) - bits_of(0.5f)));
}

}  // namespace

void widen_24(const uint8_t* __restrict src, int32_t* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = value_of_24(src + 3 * i);
}

void widen_24(const uint8_t* __restrict src, float* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = float(value_of_24(src + 3 * i));
}

void narrow_to_24(const float* __restrict src, uint8_t* __restrict dst, int n, int s) {
  const float factor = ldexpf(1, -s);
  for (int i = 0; i < n; ++i) {
    const long v   = lrintf(std::min(std::max(src[i] * factor, -8388608.0f), 8388607.0f));
    dst[3 * i]     = uint8_t(v);
    dst[3 * i + 1] = uint8_t(v >> 8);
    dst[3 * i + 2] = uint8_t(v >> 16);
  }
}

void half_to_float(const uint16_t* __restrict src, float* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = float_of(src[i]);
}

void float_to_half(const float* __restrict src, uint16_t* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = half_of(src[i]);
}

}  // namespace plain
