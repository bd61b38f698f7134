// Radix sorts as anyone would write them: all digits counted in one pass, then a pass for each digit.
#pragma once

namespace plain {

template <class T> void radix_sort(T* data, T* tmp, int n);
void                    counting_sort(unsigned char* data, int n);
// The positions of the elements in their order.
template <class T> void radix_sort_index(const T* data, int* dst, int* tmp, int n);

}  // namespace plain
