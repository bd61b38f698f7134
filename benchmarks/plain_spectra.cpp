#include "plain_spectra.h"

namespace plain {

template <class T> static void mul_pairs(const T* __restrict a, const T* __restrict b, T* __restrict dst, int n) {
  for (int i = 0; i + 1 < n; i += 2) {
    dst[i]     = a[i] * b[i] - a[i + 1] * b[i + 1];
    dst[i + 1] = a[i] * b[i + 1] + a[i + 1] * b[i];
  }
}

template <class T> static void mul_pack_of(const T* a, const T* b, T* dst, int n) {
  dst[0] = a[0] * b[0];
  if (n % 2 == 0) dst[n - 1] = a[n - 1] * b[n - 1];
  mul_pairs(a + 1, b + 1, dst + 1, n - 1 - (n % 2 == 0));
}
void mul_pack(const float* a, const float* b, float* dst, int n) { mul_pack_of(a, b, dst, n); }
void mul_pack(const double* a, const double* b, double* dst, int n) { mul_pack_of(a, b, dst, n); }

void mul_perm(const float* a, const float* b, float* dst, int n) {
  if (n % 2 != 0) return mul_pack(a, b, dst, n);
  dst[0] = a[0] * b[0];
  dst[1] = a[1] * b[1];
  mul_pairs(a + 2, b + 2, dst + 2, n - 2);
}

void mul_pack_conj(const float* __restrict a, float* __restrict dst, int n) {
  dst[0] *= a[0];
  if (n % 2 == 0) dst[n - 1] *= a[n - 1];
  for (int i = 1; i + 1 < n; i += 2) {
    const float re = dst[i], im = dst[i + 1];
    dst[i]     = a[i] * re + a[i + 1] * im;
    dst[i + 1] = a[i + 1] * re - a[i] * im;
  }
}

static int16_t shifted(int64_t v, int s) {
  v >>= s;
  return int16_t(v > 32767 ? 32767 : v < -32768 ? -32768 : v);
}

void mul_perm_shifted(const int16_t* __restrict a, const int16_t* __restrict b, int16_t* __restrict dst, int n, int s) {
  const bool even = n % 2 == 0;
  dst[0]          = shifted(a[0] * b[0], s);
  if (even) dst[1] = shifted(a[1] * b[1], s);
  for (int i = even ? 2 : 1; i + 1 < n; i += 2) {
    dst[i]     = shifted(int64_t(a[i]) * b[i] - int64_t(a[i + 1]) * b[i + 1], s);
    dst[i + 1] = shifted(int64_t(a[i]) * b[i + 1] + int64_t(a[i + 1]) * b[i], s);
  }
}

void expand_ccs(const Tav32fc* __restrict src, Tav32fc* __restrict dst, int n) {
  for (int k = 0; k <= n / 2; ++k) dst[k] = src[k];
  for (int k = 1; k <= (n - 1) / 2; ++k) dst[n - k] = {src[k].re, -src[k].im};
}

template <class T, class C> static void expand_pack_of(const T* __restrict src, C* __restrict dst, int n) {
  dst[0] = {src[0], 0};
  for (int k = 1; k <= (n - 1) / 2; ++k) {
    dst[k]     = {src[2 * k - 1], src[2 * k]};
    dst[n - k] = {src[2 * k - 1], T(-src[2 * k])};
  }
  if (n % 2 == 0) dst[n / 2] = {src[n - 1], 0};
}
void expand_pack(const float* src, Tav32fc* dst, int n) { expand_pack_of(src, dst, n); }
void expand_pack(const double* src, Tav64fc* dst, int n) { expand_pack_of(src, dst, n); }

void expand_perm(const int16_t* __restrict src, Tav16sc* __restrict dst, int n) {
  const int  even = n % 2 == 0;
  const auto conj = [](int v) { return int16_t(v < -32767 ? 32767 : -v); };
  dst[0]          = {src[0], 0};
  for (int k = 1; k <= (n - 1) / 2; ++k) {
    const int16_t re = src[2 * k - 1 + even], im = src[2 * k + even];
    dst[k]     = {re, im};
    dst[n - k] = {re, conj(im)};
  }
  if (even) dst[n / 2] = {src[1], 0};
}

}  // namespace plain
