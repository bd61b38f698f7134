// Plain loops over two arrays that make one sum of products.
#pragma once
#include <stdint.h>
#include <tavs/types.h>

namespace plain {

void dot(const float* a, const float* b, int n, float* sum);
void dot(const double* a, const double* b, int n, double* sum);
void dot(const float* a, const float* b, int n, double* sum);
void dot(const Tav32fc* a, const Tav32fc* b, int n, Tav32fc* sum);
void dot(const int16_t* a, const int16_t* b, int n, int64_t* sum);
void dot(const Tav16sc* a, const Tav16sc* b, int n, Tav64sc* sum);

// Times 2^-s, s > 0, to nearest with ties to even, saturated; the sum fits 64 bits.
void dot_scaled(const int16_t* a, const int16_t* b, int n, int16_t* sum, int s);
void dot_scaled(const int32_t* a, const int32_t* b, int n, int32_t* sum, int s);

}  // namespace plain
