// Test data, biased to the values at which code goes wrong, and equality as the tests mean it.
#pragma once
#include <stdint.h>
#include <string.h>

#include <iterator>
#include <limits>
#include <random>
#include <type_traits>
#include <vector>

#include "tavs.h"

namespace test {

class source_of_data {
 public:
  explicit source_of_data(uint32_t seed) : engine_(seed) {}

  uint32_t bits() { return uint32_t(engine_()); }
  int      below(int n) { return int(bits() % uint32_t(n)); }

  template <class T> T value() {
    if constexpr (requires(T v) { v.re; })
      return {value<decltype(T::re)>(), value<decltype(T::im)>()};
    else if constexpr (std::is_floating_point_v<T>)
      return real<T>();
    else
      return integer<T>();
  }

  template <class T> std::vector<T> values(size_t n) {
    std::vector<T> v(n);
    for (T& x : v) x = value<T>();
    return v;
  }

 private:
  template <class T> T integer() {  // one in four is an extreme or next to one
    using limits = std::numeric_limits<T>;
    if (below(4) != 0) return T(uint64_t(bits()) << 32 | bits());
    const T edges[] = {limits::min(), T(limits::min() + 1), T(-1), 0, 1, T(limits::max() - 1), limits::max()};
    return edges[below(int(std::size(edges)))];
  }

  template <class T> T real() {  // half of ordinary size, a quarter of any exponent, a quarter special
    using limits    = std::numeric_limits<T>;
    const int  kind = below(4);
    const auto sign = below(2) ? T(1) : T(-1);
    if (kind < 2) return sign * T(bits()) / T(1u << 31);
    if (kind == 2) {
      std::conditional_t<sizeof(T) == 4, uint32_t, uint64_t> raw = bits();
      if constexpr (sizeof(T) == 8) raw = raw << 32 | bits();
      T v;
      memcpy(&v, &raw, sizeof v);
      return v;
    }
    const T edges[] = {0, limits::denorm_min(), limits::min(),      limits::max(),
                       1, limits::infinity(),   limits::quiet_NaN()};
    return sign * edges[below(int(std::size(edges)))];
  }

  std::mt19937 engine_;
};

// The same value bit for bit; any NaN equals any other.
template <class T> bool same(const T& a, const T& b) {
  if constexpr (requires { a.re; })
    return same(a.re, b.re) && same(a.im, b.im);
  else if constexpr (std::is_floating_point_v<T>)
    return (a != a && b != b) || memcmp(&a, &b, sizeof a) == 0;
  else
    return a == b;
}

// Index of the first difference, or -1.
template <class T> long first_difference(const std::vector<T>& a, const std::vector<T>& b) {
  for (size_t i = 0; i < a.size(); ++i)
    if (!same(a[i], b[i])) return long(i);
  return -1;
}

}  // namespace test
