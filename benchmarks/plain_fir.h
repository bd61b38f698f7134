// FIR filters as anyone would write them. `src` has taps - 1 samples of history in front.
#pragma once
#include <stdint.h>
#include <tavs/types.h>

namespace plain {

void fir(const float* src, float* dst, int n, const float* h, int taps);
void fir(const Tav32fc* src, Tav32fc* dst, int n, const Tav32fc* h, int taps);
// Scaled by 2^-s to nearest, ties to even, and saturated.
void fir(const int16_t* src, int16_t* dst, int n, const float* h, int taps, int s);
// Tap by tap over the whole signal, which compilers can make vectors of.
void fir_by_taps(const float* src, float* dst, int n, const float* h, int taps);

}  // namespace plain
