#include "plain_polar.h"

#include <math.h>

namespace plain {

void polar_to_cart(const float* __restrict magn, const float* __restrict phase, Tav32fc* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) {
    float s, c;
    sincosf(phase[i], &s, &c);
    dst[i] = {magn[i] * c, magn[i] * s};
  }
}

void polar_to_cart(const double* __restrict magn, const double* __restrict phase, Tav64fc* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) {
    double s, c;
    sincos(phase[i], &s, &c);
    dst[i] = {magn[i] * c, magn[i] * s};
  }
}

static int16_t limited(float v) { return int16_t(lrintf(v > 32767 ? 32767 : v)); }  // never below -32768

void polar_to_cart(const int16_t* __restrict magn, const int16_t* __restrict phase, int fraction,
                   Tav16sc* __restrict dst, int n) {
  const float unit = ldexpf(1, -fraction);
  for (int i = 0; i < n; ++i) {
    float s, c;
    sincosf(float(phase[i]) * unit, &s, &c);
    dst[i] = {limited(float(magn[i]) * c), limited(float(magn[i]) * s)};
  }
}

void normalize(const float* __restrict src, float* __restrict dst, int n, float sub, float div) {
  const float times = 1 / div;
  for (int i = 0; i < n; ++i) dst[i] = (src[i] - sub) * times;
}

}  // namespace plain
