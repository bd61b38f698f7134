#include "plain_biquad.h"

#include <math.h>

namespace plain {
namespace {

template <class T> T times(T a, T b) { return a * b; }
template <class T> T sum(T a, T b) { return a + b; }
template <class T> T difference(T a, T b) { return a - b; }
Tav32fc              times(Tav32fc a, Tav32fc b) { return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re}; }
Tav32fc              sum(Tav32fc a, Tav32fc b) { return {a.re + b.re, a.im + b.im}; }
Tav32fc              difference(Tav32fc a, Tav32fc b) { return {a.re - b.re, a.im - b.im}; }

// All sections on one sample, with the delay lines in locals: so neighbouring samples overlap in time. A pass over the
// data for each section takes three times as long with four sections.
template <int Sections, class T> struct cascade {
  const T* taps;
  T        d[2 * Sections] = {};

  T next(T x) {
#pragma GCC unroll 8
    for (int s = 0; s < Sections; ++s) {
      const T* t   = taps + 5 * s;
      const T  y   = sum(times(t[0], x), d[2 * s]);
      d[2 * s]     = sum(difference(times(t[1], x), times(t[3], y)), d[2 * s + 1]);
      d[2 * s + 1] = difference(times(t[2], x), times(t[4], y));
      x            = y;
    }
    return x;
  }
};

}  // namespace

template <int Sections, class T> void biquads(const T* src, T* dst, int n, const T* taps) {
  cascade<Sections, T> c{taps};
  for (int i = 0; i < n; ++i) dst[i] = c.next(src[i]);
}
template void biquads<1>(const float*, float*, int, const float*);
template void biquads<4>(const float*, float*, int, const float*);
template void biquads<8>(const float*, float*, int, const float*);
template void biquads<4>(const double*, double*, int, const double*);
template void biquads<4>(const Tav32fc*, Tav32fc*, int, const Tav32fc*);

template <int Sections> void biquads(const int16_t* src, int16_t* dst, int n, const float* taps) {
  cascade<Sections, float> c{taps};
  for (int i = 0; i < n; ++i) {
    const float y = c.next(src[i]);
    dst[i]        = int16_t(lrintf(y < -32768 ? -32768.0f : y > 32767 ? 32767.0f : y));
  }
}
template void biquads<4>(const int16_t*, int16_t*, int, const float*);

}  // namespace plain
