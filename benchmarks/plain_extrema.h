// The loops of extrema that anyone would write, as the compiler makes them at -O3 -mssse3.
#pragma once
#include <tavs.h>

namespace plain {

template <class T> void largest(const T* src, int n, T* max);
template <class T> void smallest(const T* src, int n, T* min);
void                    largest_magnitude(const Tav16s* src, int n, Tav16s* max);
template <class T> void extremes(const T* src, int n, T* min, T* max);
template <class T> void largest_at(const T* src, int n, T* max, int* at);
template <class T> void extremes_at(const T* src, int n, T* min, int* min_at, T* max, int* max_at);

}  // namespace plain
