#include "plain_counting.h"

#include <cmath>

namespace plain {

template <class T> void every_larger(const T* __restrict a, const T* __restrict b, T* __restrict dst, int n) {
  for (int i = 0; i < n; ++i) dst[i] = a[i] > b[i] ? a[i] : b[i];
}
template <class T> void every_smaller(const T* __restrict a, T* __restrict data, int n) {
  for (int i = 0; i < n; ++i) data[i] = a[i] < data[i] ? a[i] : data[i];
}
template void every_larger(const float*, const float*, float*, int);
template void every_larger(const uint8_t*, const uint8_t*, uint8_t*, int);
template void every_smaller(const uint16_t*, uint16_t*, int);

template <class T> int order_of_integers(const T* src, int n) {
  uint32_t all = 0;
  for (int i = 0; i < n; ++i) all |= uint32_t(src[i] < 0 ? -src[i] : src[i]);
  return all == 0 ? 0 : 32 - __builtin_clz(all);
}
template int order_of_integers(const int16_t*, int);

int order_of_floats(const float* src, int n, bool* has_nan) {
  float largest = 0;
  bool  nan     = false;
  for (int i = 0; i < n; ++i) {
    const float size = std::fabs(src[i]);
    nan |= size != size;
    largest = size > largest ? size : largest;
  }
  *has_nan  = nan;
  int order = 0;
  std::frexp(largest, &order);
  return order;
}

int count_between(const int32_t* src, int n, int32_t lower, int32_t upper) {
  int count = 0;
  for (int i = 0; i < n; ++i) count += lower < src[i] && src[i] < upper;
  return count;
}

template <class T> float zero_crossings(const T* src, int n) {
  int count = 0;
  for (int i = 1; i < n; ++i) count += src[i - 1] * src[i] < 0;
  return float(count);
}
template float zero_crossings(const float*, int);
template float zero_crossings(const int16_t*, int);

int32_t update(const int16_t* src, int n, int32_t from, int shift, int16_t alpha) {
  constexpr int64_t far = int64_t(1) << 47;  // from where it does not come back
  const int64_t     a = alpha, b = 1 - a;
  int64_t           s = from;
  for (int i = 0; i < n; ++i) {
    s = a * s + b * (src[i] >> shift);
    s = s > far ? far : s < -far ? -far : s;
  }
  return int32_t(s > INT32_MAX ? INT32_MAX : s < INT32_MIN ? INT32_MIN : s);
}

}  // namespace plain
