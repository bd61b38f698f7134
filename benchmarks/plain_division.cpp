#include "plain_division.h"

#include <limits>

namespace plain {
namespace {

template <class T> T quotient(int a, int b) {
  using limits = std::numeric_limits<T>;
  if (b == 0) return a > 0 ? limits::max() : a < 0 ? limits::min() : T(0);
  int       q    = a / b;
  const int rest = 2 * (a % b), size = rest < 0 ? -rest : rest, whole = b < 0 ? -b : b;
  if (size > whole || (size == whole && q % 2 != 0)) q += (a < 0) == (b < 0) ? 1 : -1;
  return T(q > limits::max() ? limits::max() : q);
}

}  // namespace

template <class T> void divide(const T* __restrict b, const T* __restrict a, T* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = quotient<T>(a[i], b[i]);
}

template <class T> void divide_by(const T* __restrict a, T b, T* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = quotient<T>(a[i], b);
}

void divide(const float* __restrict b, const float* __restrict a, float* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = a[i] / b[i];
}

template void divide(const Tav8u*, const Tav8u*, Tav8u*, int);
template void divide(const Tav16s*, const Tav16s*, Tav16s*, int);
template void divide(const Tav16u*, const Tav16u*, Tav16u*, int);
template void divide_by(const Tav16s*, Tav16s, Tav16s*, int);

}  // namespace plain
