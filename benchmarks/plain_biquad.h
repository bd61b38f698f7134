// The loops that anyone would write for a cascade of biquads, as the compiler makes them at -O3 -mssse3.
#pragma once
#include <stdint.h>
#include <tavs/types.h>

namespace plain {

// Transposed direct form 2 from rest. Five taps a section: b0, b1, b2, a1, a2.
template <int Sections, class T> void biquads(const T* src, T* dst, int n, const T* taps);

// Integers, rounded to nearest and saturated.
template <int Sections> void biquads(const int16_t* src, int16_t* dst, int n, const float* taps);

}  // namespace plain
