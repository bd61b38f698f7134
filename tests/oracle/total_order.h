// The order of the radix sorts, from its definition: integers by value, floats by sign and magnitude, so that -NaN
// comes first, -0.0 before +0.0, and +NaN last.
#pragma once
#include <stdint.h>
#include <string.h>

#include <algorithm>
#include <numeric>
#include <type_traits>
#include <vector>

namespace oracle {

template <class T> int64_t rank_of(T v) {
  if constexpr (std::is_floating_point_v<T>) {
    std::conditional_t<sizeof(T) == 4, int32_t, int64_t> bits;
    memcpy(&bits, &v, sizeof v);
    constexpr auto magnitude_bits = std::conditional_t<sizeof(T) == 4, uint32_t, uint64_t>(-1) >> 1;
    const auto     magnitude      = int64_t(bits & magnitude_bits);
    return bits < 0 ? -magnitude - 1 : magnitude;
  } else {
    return v;
  }
}

template <class T> bool comes_before(T a, T b, bool descending) {
  return descending ? rank_of(a) > rank_of(b) : rank_of(a) < rank_of(b);
}

template <class T> std::vector<T> sorted(std::vector<T> v, bool descending) {
  std::stable_sort(v.begin(), v.end(), [=](T a, T b) { return comes_before(a, b, descending); });
  return v;
}

template <class T> std::vector<int> sorted_positions(const std::vector<T>& v, bool descending) {
  std::vector<int> all(v.size());
  std::iota(all.begin(), all.end(), 0);
  std::stable_sort(all.begin(), all.end(),
                   [&](int a, int b) { return comes_before(v[size_t(a)], v[size_t(b)], descending); });
  return all;
}

}  // namespace oracle
