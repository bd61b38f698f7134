// Exact integers of 128 bits, alike for every word size: room for any sum or product that the integer functions make.
#pragma once
#include <stdint.h>

#include <type_traits>

namespace oracle {

struct exact {
  int64_t  high = 0;
  uint64_t low  = 0;

  constexpr exact() = default;
  template <class T>
  requires std::is_integral_v<T>
  constexpr exact(T v) : high(v < 0 ? -1 : 0), low(uint64_t(v)) {}
  constexpr exact(int64_t h, uint64_t l) : high(h), low(l) {}

  constexpr bool operator==(const exact&) const = default;
  constexpr bool negative() const { return high < 0; }
  constexpr bool odd() const { return (low & 1) != 0; }
};

constexpr exact operator+(exact a, exact b) {
  const uint64_t low = a.low + b.low;
  return {int64_t(uint64_t(a.high) + uint64_t(b.high) + (low < a.low)), low};
}
constexpr exact operator-(exact a) { return exact(~a.high, ~a.low) + exact(1); }
constexpr exact operator-(exact a, exact b) { return a + -b; }
constexpr bool  operator<(exact a, exact b) { return a.high != b.high ? a.high < b.high : a.low < b.low; }

constexpr exact magnitude(exact a) { return a.negative() ? -a : a; }

// Half of it, rounded down.
constexpr exact halved(exact a) { return {a.high >> 1, a.low >> 1 | uint64_t(a.high) << 63}; }

// a * b, each of at most 64 bits with its sign apart: by long hand, in digits of 32 bits.
constexpr exact operator*(exact a, exact b) {
  const bool     minus = a.negative() != b.negative();
  const uint64_t u = magnitude(a).low, v = magnitude(b).low, digit = 0xFFFFFFFF;
  const auto     shifted = [](uint64_t x) { return exact(int64_t(x >> 32), x << 32); };
  const exact    product = exact((u & digit) * (v & digit)) + shifted((u >> 32) * (v & digit))
                        + shifted((u & digit) * (v >> 32)) + exact(int64_t((u >> 32) * (v >> 32)), 0);
  return minus ? -product : product;
}

}  // namespace oracle
