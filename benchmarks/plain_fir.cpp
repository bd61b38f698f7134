#include "plain_fir.h"

#include <algorithm>
#include <cmath>

namespace plain {

void fir(const float* __restrict src, float* __restrict dst, int n, const float* __restrict h, int taps) {
  for (int i = 0; i < n; ++i) {
    float sum = 0;
    for (int k = 0; k < taps; ++k) sum += h[k] * src[i + taps - 1 - k];
    dst[i] = sum;
  }
}

void fir(const Tav32fc* __restrict src, Tav32fc* __restrict dst, int n, const Tav32fc* __restrict h, int taps) {
  for (int i = 0; i < n; ++i) {
    float re = 0, im = 0;
    for (int k = 0; k < taps; ++k) {
      const Tav32fc x = src[i + taps - 1 - k];
      re += h[k].re * x.re - h[k].im * x.im;
      im += h[k].re * x.im + h[k].im * x.re;
    }
    dst[i] = {re, im};
  }
}

void fir(const int16_t* __restrict src, int16_t* __restrict dst, int n, const float* __restrict h, int taps, int s) {
  const float scale = std::ldexp(1.0f, -s);
  for (int i = 0; i < n; ++i) {
    float sum = 0;
    for (int k = 0; k < taps; ++k) sum += h[k] * float(src[i + taps - 1 - k]);
    dst[i] = int16_t(std::lrint(std::clamp(sum * scale, -32768.0f, 32767.0f)));
  }
}

void fir_by_taps(const float* __restrict src, float* __restrict dst, int n, const float* __restrict h, int taps) {
  for (int i = 0; i < n; ++i) dst[i] = 0;
  for (int k = 0; k < taps; ++k)
    for (int i = 0; i < n; ++i) dst[i] += h[k] * src[i + taps - 1 - k];
}

}  // namespace plain
