#include "plain_words.h"

namespace plain {
namespace {

int16_t word_of(uint32_t sum, int shift) {
  const int32_t v = int32_t(sum), r = (v + (1 << (shift - 1)) - 1 + (v >> shift & 1)) >> shift;
  return int16_t(r > 32767 ? 32767 : r < -32768 ? -32768 : r);
}

}  // namespace

void filter(const int16_t* __restrict src, const int16_t* __restrict taps, int n, int shift, int16_t* __restrict dst,
            int count) {
  for (int i = 0; i < count; ++i) {
    const int16_t* const x   = src + i - (n - 1);
    uint32_t             sum = 0;
    for (int k = 0; k < n; ++k) sum += uint32_t(x[k] * taps[n - 1 - k]);
    dst[i] = word_of(sum, shift);
  }
}

void filter(const Tav16sc* __restrict src, const Tav16sc* __restrict taps, int n, int shift, Tav16sc* __restrict dst,
            int count) {
  for (int i = 0; i < count; ++i) {
    const Tav16sc* const x  = src + i - (n - 1);
    uint32_t             re = 0, im = 0;
    for (int k = 0; k < n; ++k) {
      const Tav16sc h = taps[n - 1 - k];
      re += uint32_t(x[k].re * h.re) - uint32_t(x[k].im * h.im);
      im += uint32_t(x[k].re * h.im) + uint32_t(x[k].im * h.re);
    }
    dst[i] = {word_of(re, shift), word_of(im, shift)};
  }
}

void filter_by_ring(const float* __restrict src, const float* __restrict taps, int n, float* __restrict ring,
                    int* index, float* __restrict dst, int count) {
  int at = *index;
  for (int i = 0; i < count; ++i) {
    ring[at] = ring[at + n] = src[i];
    at                      = at + 1 == n ? 0 : at + 1;
    double even = 0, odd = 0;
    int    k = 0;
    for (; k + 1 < n; k += 2) {
      even += ring[at + k] * taps[n - 1 - k];
      odd += ring[at + k + 1] * taps[n - 2 - k];
    }
    even += odd;
    if (k < n) even += ring[at + k] * taps[0];
    dst[i] = float(even);
  }
  *index = at;
}

}  // namespace plain
