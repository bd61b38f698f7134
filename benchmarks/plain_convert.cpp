#include "plain_convert.h"

#include <emmintrin.h>

namespace plain {
namespace {

float limited(float v) { return v > 32767.0f ? 32767.0f : v < -32768.0f ? -32768.0f : v; }

int nearest(float v) { return _mm_cvtss_si32(_mm_set_ss(v)); }  // lrintf, but for the call

}  // namespace

void to_nearest(const float* __restrict src, float multiplier, Tav16s* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = Tav16s(nearest(limited(src[i] * multiplier)));
}

void to_nearest(const float* __restrict src, Tav32s* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) {
    const float v = src[i];
    dst[i]        = v >= 0x1p31f ? INT32_MAX : v < -0x1p31f ? INT32_MIN : nearest(v);
  }
}

void to_nearest(const double* __restrict src, double multiplier, Tav32s* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) {
    const double v = src[i] * multiplier;
    dst[i]         = v >= 0x1p31 ? INT32_MAX : v < -0x1p31 ? INT32_MIN : _mm_cvtsd_si32(_mm_set_sd(v));
  }
}

void toward_zero(const float* __restrict src, Tav16s* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = Tav16s(int(limited(src[i])));
}

void ties_away(const float* __restrict src, Tav16s* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = Tav16s(int(limited(src[i] + (src[i] < 0 ? -0.5f : 0.5f))));
}

template <class S, class D> void convert(const S* __restrict src, D* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = D(src[i]);
}

void saturate(const Tav32s* __restrict src, Tav16s* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = Tav16s(src[i] > 32767 ? 32767 : src[i] < -32768 ? -32768 : src[i]);
}

template void convert(const Tav16s*, Tav32f*, int);
template void convert(const Tav32s*, Tav64f*, int);
template void convert(const Tav8u*, Tav32f*, int);

}  // namespace plain
