// The loops of conversions that anyone would write, as the compiler makes them at -O3 -mssse3.
#pragma once
#include <tavs.h>

namespace plain {

void to_nearest(const float* src, float multiplier, Tav16s* dst, int n);
void to_nearest(const float* src, Tav32s* dst, int n);
void to_nearest(const double* src, double multiplier, Tav32s* dst, int n);
void toward_zero(const float* src, Tav16s* dst, int n);
void ties_away(const float* src, Tav16s* dst, int n);  // but for what lies right below a half

template <class S, class D> void convert(const S* src, D* dst, int n);  // to a type that holds every value
void                             saturate(const Tav32s* src, Tav16s* dst, int n);

}  // namespace plain
