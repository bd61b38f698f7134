// Plain loops of FIR filters over words, and of one whose delay line is a ring.
#pragma once
#include <stdint.h>
#include <tavs/types.h>

namespace plain {

// The n - 1 samples before src belong to it. Sums wrap; halves go to the even neighbour.
void filter(const int16_t* src, const int16_t* taps, int n, int shift, int16_t* dst, int count);
void filter(const Tav16sc* src, const Tav16sc* taps, int n, int shift, Tav16sc* dst, int count);

// 2 n places, written twice.
void filter_by_ring(const float* src, const float* taps, int n, float* ring, int* index, float* dst, int count);

}  // namespace plain
