#include "plain_threshold.h"

#include <math.h>

namespace plain {

template <class T> void raise(const T* __restrict src, T level, T* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = src[i] < level ? level : src[i];
}

template <class T> void lower(const T* __restrict src, T level, T* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = src[i] > level ? level : src[i];
}

void replace_outside(const float* __restrict src, float low, float below, float high, float above,
                     float* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = src[i] < low ? below : src[i] > high ? above : src[i];
}

void raise_magnitudes(const float* __restrict src, float level, float* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = copysignf(fabsf(src[i]) < level ? level : fabsf(src[i]), src[i]);
}

void lower_magnitudes(const Tav16s* __restrict src, Tav16s level, Tav16s* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) {
    const int v = src[i];
    dst[i]      = Tav16s(v > level ? level : v < -level ? -level : v);
  }
}

void raise_magnitudes(const Tav32fc* __restrict src, float level, Tav32fc* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) {
    const double re = src[i].re, im = src[i].im, square = re * re + im * im;
    if (square < double(level) * level && square != 0) {
      const double ratio = level / sqrt(square);
      dst[i]             = {float(re * ratio), float(im * ratio)};
    } else {
      dst[i] = src[i];
    }
  }
}

void limited_inverses(const float* __restrict src, float level, float* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = 1 / copysignf(fabsf(src[i]) < level ? level : fabsf(src[i]), src[i]);
}

template void raise(const Tav16s*, Tav16s, Tav16s*, int);
template void lower(const float*, float, float*, int);

}  // namespace plain
