// Plain loops: the larger and smaller of two elements, counts, and a running update.
#pragma once
#include <stdint.h>

namespace plain {

template <class T> void every_larger(const T* a, const T* b, T* dst, int n);
template <class T> void every_smaller(const T* a, T* data, int n);

template <class T> int order_of_integers(const T* src, int n);
int                    order_of_floats(const float* src, int n, bool* has_nan);

int count_between(const int32_t* src, int n, int32_t lower, int32_t upper);

template <class T> float zero_crossings(const T* src, int n);  // pairs whose product is negative

int32_t update(const int16_t* src, int n, int32_t s, int shift, int16_t alpha);

}  // namespace plain
