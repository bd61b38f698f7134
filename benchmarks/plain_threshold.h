// The loops of thresholds that anyone would write, as the compiler makes them at -O3 -mssse3.
#pragma once
#include <tavs.h>

namespace plain {

template <class T> void raise(const T* src, T level, T* dst, int n);
template <class T> void lower(const T* src, T level, T* dst, int n);
void replace_outside(const float* src, float low, float below, float high, float above, float* dst, int n);
void raise_magnitudes(const float* src, float level, float* dst, int n);
void lower_magnitudes(const Tav16s* src, Tav16s level, Tav16s* dst, int n);
void raise_magnitudes(const Tav32fc* src, float level, Tav32fc* dst, int n);
void limited_inverses(const float* src, float level, float* dst, int n);

}  // namespace plain
