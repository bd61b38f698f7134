#include "plain_phase.h"

#include <math.h>

namespace plain {

void phase(const float* __restrict re, const float* __restrict im, float* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = atan2f(im[i], re[i]);
}

void phase(const Tav32fc* __restrict src, float* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = atan2f(src[i].im, src[i].re);
}

void phase(const Tav64fc* __restrict src, double* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = atan2(src[i].im, src[i].re);
}

void phase_scaled(const Tav16sc* __restrict src, Tav16s* __restrict dst, int n, int s) {
  const float units = ldexpf(1, -s);
  for (int i = 0; i < n; ++i) {
    const float angle = atan2f(src[i].im, src[i].re) * units;
    dst[i]            = Tav16s(lrintf(angle > 32767 ? 32767 : angle < -32768 ? -32768 : angle));
  }
}

}  // namespace plain
