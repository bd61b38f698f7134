// Sums, means and deviations as anyone would write them, compiled at -O3 -mssse3: peers of the library's functions.
#pragma once
#include <stdint.h>

namespace plain {

void sum(const float* src, float* result, int n);
void sum(const double* src, double* result, int n);
void mean(const float* src, float* result, int n);
void std_dev(const float* src, float* result, int n);

// Integers, scaled by 2^-s to nearest and saturated.
void sum_scaled(const int16_t* src, int16_t* result, int n, int s);
void sum_scaled(const int32_t* src, int32_t* result, int n, int s);
void std_dev_scaled(const int16_t* src, int16_t* result, int n, int s);

}  // namespace plain
