// The loops of angles that anyone would write, with the C library's atan2, as the compiler makes them at -O3 -mssse3.
#pragma once
#include <tavs/types.h>

namespace plain {

void phase(const float* re, const float* im, float* dst, int n);
void phase(const Tav32fc* src, float* dst, int n);
void phase(const Tav64fc* src, double* dst, int n);
void phase_scaled(const Tav16sc* src, Tav16s* dst, int n, int s);  // to nearest, saturated

}  // namespace plain
