// The loops of IIR filters that anyone would write, as the compiler makes them at -O3 -mssse3: transposed direct
// form 2.
#pragma once
#include <tavs/types.h>

namespace plain {

// b[0] ... b[N], a[1] ... a[N] with a[0] = 1, and N values of delay line.
template <class T> void filter(const T* src, T* dst, int n, const T* b, const T* a, int order, T* delay);
template <class T> void filter_second_order(const T* src, T* dst, int n, const T* b, const T* a, T* delay);
void filter(const Tav16s* src, Tav16s* dst, int n, const float* b, const float* a, int order, float* delay);

}  // namespace plain
