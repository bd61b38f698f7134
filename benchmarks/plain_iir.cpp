#include "plain_iir.h"

#include <math.h>

namespace plain {
namespace {

template <class T> inline T next(T x, const T* b, const T* a, int order, T* delay) {
  const T y = b[0] * x + delay[0];
  for (int i = 0; i + 1 < order; ++i) delay[i] = b[i + 1] * x - a[i] * y + delay[i + 1];
  delay[order - 1] = b[order] * x - a[order - 1] * y;
  return y;
}

}  // namespace

template <class T> void filter(const T* src, T* dst, int n, const T* b, const T* a, int order, T* delay) {
  for (int i = 0; i < n; ++i) dst[i] = next(src[i], b, a, order, delay);
}
template void filter(const float*, float*, int, const float*, const float*, int, float*);
template void filter(const double*, double*, int, const double*, const double*, int, double*);

template <class T> void filter_second_order(const T* src, T* dst, int n, const T* b, const T* a, T* delay) {
  const T b0 = b[0], b1 = b[1], b2 = b[2], a1 = a[0], a2 = a[1];
  T       d0 = delay[0], d1 = delay[1];
  for (int i = 0; i < n; ++i) {
    const T x = src[i], y = b0 * x + d0;
    d0     = b1 * x - a1 * y + d1;
    d1     = b2 * x - a2 * y;
    dst[i] = y;
  }
  delay[0] = d0, delay[1] = d1;
}
template void filter_second_order(const float*, float*, int, const float*, const float*, float*);
template void filter_second_order(const double*, double*, int, const double*, const double*, double*);

void filter(const Tav16s* src, Tav16s* dst, int n, const float* b, const float* a, int order, float* delay) {
  for (int i = 0; i < n; ++i) {
    const long y = lrintf(next(float(src[i]), b, a, order, delay));
    dst[i]       = Tav16s(y > 32767 ? 32767 : y < -32768 ? -32768 : y);
  }
}

}  // namespace plain
