#include "plain_extrema.h"

#include <stdlib.h>

namespace plain {

template <class T> void largest(const T* src, int n, T* max) {
  T m = src[0];
  for (int i = 1; i < n; ++i) m = src[i] > m ? src[i] : m;
  *max = m;
}

template <class T> void smallest(const T* src, int n, T* min) {
  T m = src[0];
  for (int i = 1; i < n; ++i) m = src[i] < m ? src[i] : m;
  *min = m;
}

void largest_magnitude(const Tav16s* src, int n, Tav16s* max) {
  int m = 0;
  for (int i = 0; i < n; ++i) m = abs(src[i]) > m ? abs(src[i]) : m;
  *max = Tav16s(m > 32767 ? 32767 : m);
}

template <class T> void extremes(const T* src, int n, T* min, T* max) {
  T low = src[0], high = src[0];
  for (int i = 1; i < n; ++i) {
    low  = src[i] < low ? src[i] : low;
    high = src[i] > high ? src[i] : high;
  }
  *min = low;
  *max = high;
}

template <class T> void largest_at(const T* src, int n, T* max, int* at) {
  int found = 0;
  for (int i = 1; i < n; ++i)
    if (src[i] > src[found]) found = i;
  *max = src[found];
  *at  = found;
}

template <class T> void extremes_at(const T* src, int n, T* min, int* min_at, T* max, int* max_at) {
  int low = 0, high = 0;
  for (int i = 1; i < n; ++i) {
    if (src[i] < src[low]) low = i;
    if (src[i] > src[high]) high = i;
  }
  *min = src[low], *min_at = low;
  *max = src[high], *max_at = high;
}

template void largest(const Tav32s*, int, Tav32s*);
template void largest(const Tav32f*, int, Tav32f*);
template void smallest(const Tav16s*, int, Tav16s*);
template void extremes(const Tav8u*, int, Tav8u*, Tav8u*);
template void extremes(const Tav32f*, int, Tav32f*, Tav32f*);
template void largest_at(const Tav16s*, int, Tav16s*, int*);
template void largest_at(const Tav32s*, int, Tav32s*, int*);
template void largest_at(const Tav32f*, int, Tav32f*, int*);
template void extremes_at(const Tav32f*, int, Tav32f*, int*, Tav32f*, int*);
template void extremes_at(const Tav64f*, int, Tav64f*, int*, Tav64f*, int*);

}  // namespace plain
