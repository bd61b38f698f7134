// The loops of divisions that anyone would write, as the compiler makes them at -O3 -mssse3.
#pragma once
#include <tavs.h>

namespace plain {

// a / b with ties to even, saturated; over 0 the limit of a's sign.
template <class T> void divide(const T* b, const T* a, T* dst, int n);
template <class T> void divide_by(const T* a, T b, T* dst, int n);
void                    divide(const float* b, const float* a, float* dst, int n);

}  // namespace plain
