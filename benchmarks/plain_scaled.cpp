#include <limits>
#include <type_traits>

#include "plain_loops.h"

namespace plain {
namespace {

template <class T> T limited(int64_t r) {
  using limits = std::numeric_limits<T>;
  return T(r > limits::max() ? limits::max() : r < limits::min() ? limits::min() : r);
}

// One loop for each kind of factor, as a careful author would write it.
template <class T, class Wide, class F> void scaled(T* __restrict dst, int n, int s, const F& exact) {
  if (s == 0) {
    for (int i = 0; i < n; ++i) dst[i] = limited<T>(exact(i));
  } else if (s > 0) {
    const Wide below_half = (Wide(1) << (s - 1)) - 1;
    for (int i = 0; i < n; ++i) {
      const Wide r = Wide(exact(i));
      dst[i]       = limited<T>((r + below_half + (r >> s & 1)) >> s);
    }
  } else {
    for (int i = 0; i < n; ++i) dst[i] = limited<T>(int64_t(exact(i)) * (1 << -s));
  }
}

int64_t rounded(int64_t r, int s) { return s == 0 ? r : (r + ((int64_t(1) << (s - 1)) - 1) + (r >> s & 1)) >> s; }

int64_t saturated_sum(int64_t a, int64_t b) {
  int64_t sum;
  return !__builtin_add_overflow(a, b, &sum) ? sum : a < 0 ? INT64_MIN : INT64_MAX;
}

}  // namespace

template <class T> void add_scaled(const T* __restrict a, const T* __restrict b, T* __restrict dst, int n, int s) {
  scaled<T, int>(dst, n, s, [=](int i) { return a[i] + b[i]; });
}

template <class T> void sub_scaled(const T* __restrict a, const T* __restrict b, T* __restrict dst, int n, int s) {
  scaled<T, int>(dst, n, s, [=](int i) { return b[i] - a[i]; });
}

template <class T> void mul_scaled(const T* __restrict a, const T* __restrict b, T* __restrict dst, int n, int s) {
  using wide = std::conditional_t<std::is_same_v<T, uint16_t>, int64_t, int>;
  scaled<T, wide>(dst, n, s, [=](int i) { return wide(a[i]) * b[i]; });
}

void mul_scaled_pairs(const Tav16sc* __restrict a, const Tav16sc* __restrict b, Tav16sc* __restrict dst, int n, int s) {
  const int64_t below_half = (int64_t(1) << (s - 1)) - 1;
  const auto    part       = [=](int64_t r) { return limited<Tav16s>((r + below_half + (r >> s & 1)) >> s); };
  for (int i = 0; i < n; ++i) {
    dst[i].re = part(int64_t(a[i].re) * b[i].re - int64_t(a[i].im) * b[i].im);
    dst[i].im = part(int64_t(a[i].re) * b[i].im + int64_t(a[i].im) * b[i].re);
  }
}

void add_scaled(const int32_t* __restrict a, const int32_t* __restrict b, int32_t* __restrict dst, int n, int s) {
  for (int i = 0; i < n; ++i) dst[i] = limited<int32_t>(rounded(int64_t(a[i]) + b[i], s));
}

void multiply_scaled(const int32_t* __restrict a, const int32_t* __restrict b, int32_t* __restrict dst, int n, int s) {
  for (int i = 0; i < n; ++i) dst[i] = limited<int32_t>(rounded(int64_t(a[i]) * b[i], s));
}

void multiply_scaled(const int32_t* __restrict a, int32_t val, int32_t* __restrict dst, int n, int s) {
  for (int i = 0; i < n; ++i) dst[i] = limited<int32_t>(rounded(int64_t(a[i]) * val, s));
}

void multiply_scaled(const pair<int32_t>* __restrict a, const pair<int32_t>* __restrict b,
                     pair<int32_t>* __restrict dst, int n, int s) {
  for (int i = 0; i < n; ++i) {
    const int64_t re = int64_t(a[i].re) * b[i].re - int64_t(a[i].im) * b[i].im;
    const int64_t im = int64_t(a[i].re) * b[i].im + int64_t(a[i].im) * b[i].re;
    dst[i]           = {limited<int32_t>(rounded(re, s)), limited<int32_t>(rounded(im, s))};
  }
}

void add_scaled(const int64_t* __restrict a, int64_t val, int64_t* __restrict dst, int n, int s) {
  for (int i = 0; i < n; ++i) dst[i] = rounded(saturated_sum(a[i], val), s);
}

template void add_scaled(const uint8_t*, const uint8_t*, uint8_t*, int, int);
template void add_scaled(const int16_t*, const int16_t*, int16_t*, int, int);
template void add_scaled(const uint16_t*, const uint16_t*, uint16_t*, int, int);
template void sub_scaled(const int16_t*, const int16_t*, int16_t*, int, int);
template void mul_scaled(const uint8_t*, const uint8_t*, uint8_t*, int, int);
template void mul_scaled(const int16_t*, const int16_t*, int16_t*, int, int);
template void mul_scaled(const uint16_t*, const uint16_t*, uint16_t*, int, int);

}  // namespace plain
