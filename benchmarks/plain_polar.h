// The loops of polar coordinates and normalisation that anyone would write, as the compiler makes them at -O3 -mssse3.
#pragma once
#include <tavs.h>

namespace plain {

void polar_to_cart(const float* magn, const float* phase, Tav32fc* dst, int n);
void polar_to_cart(const double* magn, const double* phase, Tav64fc* dst, int n);
void polar_to_cart(const int16_t* magn, const int16_t* phase, int fraction, Tav16sc* dst, int n);
void normalize(const float* src, float* dst, int n, float sub, float div);

}  // namespace plain
