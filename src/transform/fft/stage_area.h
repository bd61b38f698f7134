// Where the points of a transform can be, in the layout of the stages, until the last one writes them to dst.
#pragma once
#include "transform/fft/views.h"

namespace tav::TAV_VARIANT::fft {

template <class T> bool same_place(pairs<T> a, pairs<T> b) { return a.p == b.p; }
template <class T> bool same_place(split<T> a, split<T> b) {
  return a.re == b.re || a.im == b.im || a.re == b.im || a.im == b.re;
}

// The work area, or dst if that is aligned and free.
template <class T> T* stage_area(pairs<T> src, pairs<T> dst, T* work) {
  const bool aligned = reinterpret_cast<uintptr_t>(dst.p) % 16 == 0;
  return aligned && !same_place(src, dst) ? dst.p : work;
}
template <class T> T* stage_area(split<T>, split<T>, T* work) { return work; }

}  // namespace tav::TAV_VARIANT::fft
