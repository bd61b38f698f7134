// The samples that a FIR filter remembers: the last `len`, as a ring that is written twice, so that they always lie in
// one piece, the oldest first. The oldest never reaches a product: a filter of N taps needs N - 1 samples of history.
#pragma once
#include "filter/fir/samples.h"

namespace tav::TAV_VARIANT::fir {

template <class T> struct delay_line {
  T*      ring;
  int32_t len;
  int32_t start;  // of the window, 0 ... len - 1

  T* window() const { return ring + start; }

  void push(T val) {
    ring[start] = ring[start + len] = val;
    if (++start == len) start = 0;
  }

  // The newest first, which is the order that callers see. The interface may have another type: samples that came
  // through it are found again.
  template <class D> void get(D* newest_first) const {
    const T* const oldest_first = window();
    for (int32_t k = 0; k < len; ++k) poke(newest_first + k, converted<D>(oldest_first[len - 1 - k]));
  }
  template <class D> void set(const D* newest_first) {
    start = 0;
    for (int32_t k = 0; k < len; ++k) ring[len - 1 - k] = newest_first ? converted<T>(peek(newest_first + k)) : T{};
  }
};

}  // namespace tav::TAV_VARIANT::fir
