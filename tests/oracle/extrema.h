// The extreme of an array, element by element: the first that none beats. NaNs are passed over; if there is nothing
// else, it is the first of them.
#pragma once
#include <stddef.h>
#include <stdint.h>

#include <limits>
#include <type_traits>

#include "tavs.h"

namespace oracle {

struct extreme {
  bool largest, of_magnitudes;

  // Integers of 64 bits hold those of every type here and the magnitude of each.
  template <class T> auto size(T x) const {
    const std::conditional_t<std::is_integral_v<T>, int64_t, T> v = x;
    return of_magnitudes && v < 0 ? -v : v;
  }

  template <class T> size_t place(const T* v, size_t n) const {
    size_t best  = 0;
    bool   found = false;
    for (size_t i = 0; i < n; ++i) {
      if (v[i] != v[i]) continue;
      const bool beats = largest ? size(v[i]) > size(v[best]) : size(v[i]) < size(v[best]);
      if (!found || beats) best = i, found = true;
    }
    return best;
  }

  // As it is reported.
  template <class T> T value(T x) const {
    if (!of_magnitudes) return x;
    constexpr T highest = std::numeric_limits<T>::max();
    return size(x) > highest ? highest : T(size(x));
  }
};

inline constexpr extreme largest{true, false}, smallest{false, false}, largest_magnitude{true, true},
    smallest_magnitude{false, true};

}  // namespace oracle
