#include "plain_norms.h"

#include <math.h>
#include <stdlib.h>

namespace plain {

float norm_inf(const float* a, int n) {
  float largest = 0;
  for (int i = 0; i < n; ++i) largest = fabsf(a[i]) > largest ? fabsf(a[i]) : largest;
  return largest;
}

float norm_inf(const Tav32fc* a, int n) {
  double largest = 0;
  for (int i = 0; i < n; ++i) {
    const double re = a[i].re, im = a[i].im, square = re * re + im * im;
    largest = square > largest ? square : largest;
  }
  return float(sqrt(largest));
}

float norm_l1(const float* a, int n) {
  float sum = 0;
  for (int i = 0; i < n; ++i) sum += fabsf(a[i]);
  return sum;
}

float norm_l2(const float* a, int n) {
  float sum = 0;
  for (int i = 0; i < n; ++i) sum += a[i] * a[i];
  return sqrtf(sum);
}

double norm_l2(const double* a, int n) {
  double sum = 0;
  for (int i = 0; i < n; ++i) sum += a[i] * a[i];
  return sqrt(sum);
}

float norm_l2(const int16_t* a, int n) {
  int64_t sum = 0;
  for (int i = 0; i < n; ++i) sum += a[i] * a[i];
  return float(sqrt(double(sum)));
}

float norm_l2(const float* a, const float* b, int n) {
  float sum = 0;
  for (int i = 0; i < n; ++i) sum += (a[i] - b[i]) * (a[i] - b[i]);
  return sqrtf(sum);
}

float norm_l1(const int16_t* a, const int16_t* b, int n) {
  int64_t sum = 0;
  for (int i = 0; i < n; ++i) sum += abs(a[i] - b[i]);
  return float(sum);
}

}  // namespace plain
