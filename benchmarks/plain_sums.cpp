#include "plain_sums.h"

#include <math.h>

namespace plain {
namespace {

template <class T> void plain_sum(const T* src, T* result, int n) {
  T total = 0;
  for (int i = 0; i < n; ++i) total += src[i];
  *result = total;
}

template <class T> T rounded(double v, double highest) {
  return T(lrint(v > highest ? highest : v < -highest - 1 ? -highest - 1 : v));
}

template <class T> void plain_sum_scaled(const T* src, T* result, int n, int s, double highest) {
  int64_t total = 0;
  for (int i = 0; i < n; ++i) total += src[i];
  *result = rounded<T>(ldexp(double(total), -s), highest);
}

}  // namespace

void sum(const float* src, float* result, int n) { plain_sum(src, result, n); }
void sum(const double* src, double* result, int n) { plain_sum(src, result, n); }

void mean(const float* src, float* result, int n) {
  plain_sum(src, result, n);
  *result /= float(n);
}

void std_dev(const float* src, float* result, int n) {
  float total = 0, squares = 0;
  for (int i = 0; i < n; ++i) total += src[i], squares += src[i] * src[i];
  *result = sqrtf((squares - total * total / float(n)) / float(n - 1));
}

void sum_scaled(const int16_t* src, int16_t* result, int n, int s) { plain_sum_scaled(src, result, n, s, 32767); }
void sum_scaled(const int32_t* src, int32_t* result, int n, int s) { plain_sum_scaled(src, result, n, s, 2147483647); }

void std_dev_scaled(const int16_t* src, int16_t* result, int n, int s) {
  int64_t total = 0, squares = 0;
  for (int i = 0; i < n; ++i) total += src[i], squares += src[i] * src[i];
  const double variance = (double(squares) * n - double(total) * double(total)) / (double(n) * (n - 1));
  *result               = rounded<int16_t>(ldexp(sqrt(variance), -s), 32767);
}

}  // namespace plain
