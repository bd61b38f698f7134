#include "plain_complex.h"

#include <math.h>

namespace plain {

void real_parts(const Tav32fc* __restrict src, float* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = src[i].re;
}

void take_apart(const Tav32fc* __restrict src, float* __restrict re, float* __restrict im, int n) {
  for (int i = 0; i < n; ++i) {
    re[i] = src[i].re;
    im[i] = src[i].im;
  }
}

void join(const float* __restrict re, const float* __restrict im, Tav32fc* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = {re[i], im[i]};
}

void conjugate(const Tav32fc* __restrict src, Tav32fc* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = {src[i].re, -src[i].im};
}

void conjugate_flipped(const Tav32fc* __restrict src, Tav32fc* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = {src[n - 1 - i].re, -src[n - 1 - i].im};
}

void magnitude(const Tav32fc* __restrict src, float* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = sqrtf(src[i].re * src[i].re + src[i].im * src[i].im);
}

void power(const Tav32fc* __restrict src, float* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = src[i].re * src[i].re + src[i].im * src[i].im;
}

// Doubles hold what the rounding of a 16-bit root needs. A 32-bit one is right but for rare cases next to a tie.
template <class C, class T>
static void rounded_roots(const C* __restrict src, T* __restrict dst, int n, int s, double top) {
  const double scale = ldexp(1, -s);
  for (int i = 0; i < n; ++i) {
    const double re = src[i].re, im = src[i].im, r = sqrt(re * re + im * im) * scale;
    dst[i] = T(lrint(r < top ? r : top));
  }
}

void magnitude_scaled(const Tav16sc* src, int16_t* dst, int n, int s) { rounded_roots(src, dst, n, s, 32767); }
void magnitude_scaled(const Tav32sc* src, int32_t* dst, int n, int s) { rounded_roots(src, dst, n, s, 2147483647); }

}  // namespace plain
