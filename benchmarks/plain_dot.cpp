#include "plain_dot.h"

#include <limits>

namespace plain {
namespace {

template <class Sum, class T> Sum sum_of_products(const T* __restrict a, const T* __restrict b, int n) {
  Sum sum = 0;
  for (int i = 0; i < n; ++i) sum += Sum(a[i]) * Sum(b[i]);
  return sum;
}

template <class Part, class C, class D> void complex_dot(const C* __restrict a, const C* __restrict b, int n, D* sum) {
  Part re = 0, im = 0;
  for (int i = 0; i < n; ++i) {
    re += Part(a[i].re) * b[i].re - Part(a[i].im) * b[i].im;
    im += Part(a[i].re) * b[i].im + Part(a[i].im) * b[i].re;
  }
  *sum = {re, im};
}

template <class T> T scaled(int64_t v, int s) {
  using limits    = std::numeric_limits<T>;
  const int64_t r = (v + ((int64_t(1) << (s - 1)) - 1) + (v >> s & 1)) >> s;
  return T(r > limits::max() ? limits::max() : r < limits::min() ? limits::min() : r);
}

}  // namespace

void dot(const float* a, const float* b, int n, float* sum) { *sum = sum_of_products<float>(a, b, n); }
void dot(const double* a, const double* b, int n, double* sum) { *sum = sum_of_products<double>(a, b, n); }
void dot(const float* a, const float* b, int n, double* sum) { *sum = sum_of_products<double>(a, b, n); }
void dot(const Tav32fc* a, const Tav32fc* b, int n, Tav32fc* sum) { complex_dot<float>(a, b, n, sum); }
void dot(const Tav16sc* a, const Tav16sc* b, int n, Tav64sc* sum) { complex_dot<int64_t>(a, b, n, sum); }

// The products of words fit 32 bits.
static int64_t sum_of_words(const int16_t* __restrict a, const int16_t* __restrict b, int n) {
  int64_t sum = 0;
  for (int i = 0; i < n; ++i) sum += a[i] * b[i];
  return sum;
}

void dot(const int16_t* a, const int16_t* b, int n, int64_t* sum) { *sum = sum_of_words(a, b, n); }
void dot_scaled(const int16_t* a, const int16_t* b, int n, int16_t* sum, int s) {
  *sum = scaled<int16_t>(sum_of_words(a, b, n), s);
}
void dot_scaled(const int32_t* a, const int32_t* b, int n, int32_t* sum, int s) {
  *sum = scaled<int32_t>(sum_of_products<int64_t>(a, b, n), s);
}

}  // namespace plain
