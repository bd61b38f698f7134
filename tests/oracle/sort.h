// What sorting must give: the order of a stable sort by value, and every element, bit by bit, as often as before.
#pragma once
#include <stdint.h>
#include <string.h>

#include <algorithm>
#include <vector>

namespace oracle {

enum class sort_way { up, down };

template <class T> std::vector<T> sorted(std::vector<T> v, sort_way way) {
  std::stable_sort(v.begin(), v.end(), [&](T a, T b) { return way == sort_way::up ? a < b : b < a; });
  return v;
}

template <class T> uint64_t bits_of(T value) {
  uint64_t bits = 0;
  memcpy(&bits, &value, sizeof value);
  return bits;
}

// Sums over all elements that tell one collection of bit patterns from another, whatever their order.
struct collection {
  uint64_t sum = 0, mixed = 0;

  template <class T> static collection of(const std::vector<T>& v) {
    collection c;
    for (T x : v) {
      uint64_t h = (bits_of(x) + 1) * 0x9E3779B97F4A7C15u;
      h          = (h ^ h >> 29) * 0xBF58476D1CE4E5B9u;
      c.sum += bits_of(x), c.mixed += h ^ h >> 32;
    }
    return c;
  }
  bool operator==(const collection&) const = default;
};

template <class T> bool any_nan(const std::vector<T>& v) {
  return std::any_of(v.begin(), v.end(), [](T x) { return x != x; });
}

// Index of the first element out of place, or -1. Zeros of both signs are one value; NaNs have no place.
template <class T> long first_out_of_order(const std::vector<T>& before, const std::vector<T>& after, sort_way way) {
  if (any_nan(before)) return -1;
  const auto want = sorted(before, way);
  for (size_t i = 0; i < want.size(); ++i)
    if (want[i] != after[i]) return long(i);
  return -1;
}

// Whether each place occurs once and names the element that stood there.
template <class T>
bool tells_places(const std::vector<int>& index, const std::vector<T>& before, const std::vector<T>& after) {
  std::vector<bool> met(index.size());
  for (size_t i = 0; i < index.size(); ++i) {
    if (index[i] < 0 || size_t(index[i]) >= index.size() || met[size_t(index[i])]) return false;
    met[size_t(index[i])] = true;
    if (bits_of(before[size_t(index[i])]) != bits_of(after[i])) return false;
  }
  return true;
}

}  // namespace oracle
