// The loops of norms that anyone would write, as the compiler makes them at -O3 -mssse3.
#pragma once
#include <tavs.h>

namespace plain {

float  norm_inf(const float* a, int n);
float  norm_inf(const Tav32fc* a, int n);
float  norm_l1(const float* a, int n);
float  norm_l2(const float* a, int n);
double norm_l2(const double* a, int n);
float  norm_l2(const int16_t* a, int n);
float  norm_l2(const float* a, const float* b, int n);
float  norm_l1(const int16_t* a, const int16_t* b, int n);

}  // namespace plain
