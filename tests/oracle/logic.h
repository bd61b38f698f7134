// Logic by its truth table, a bit at a time; shifts as products and quotients in wide arithmetic.
#pragma once
#include <stdint.h>

#include <type_traits>

namespace oracle {

// Truth tables: bit 2 * a + b is the result for the bits a and b.
enum truth { is_and = 0b1000, is_or = 0b1110, is_xor = 0b0110, is_not_a = 0b0011 };

template <class T> T logic(truth table, T a, T b) {
  T result = 0;
  for (unsigned n = 0; n < 8 * sizeof(T); ++n)
    result = T(result | T(T(table >> (2 * (a >> n & 1) + (b >> n & 1)) & 1) << n));
  return result;
}

// Multiplied by 2 count times, each time in the unsigned type, which keeps the low bits.
template <class T> T shifted_left(T value, int count) {
  using U = std::make_unsigned_t<T>;
  for (int n = 0; n < count && value != 0; ++n) value = T(U(uint64_t(U(value)) * 2 & U(-1)));
  return value;
}

// Halved count times, each time rounded down; no element has more than 32 bits to lose.
template <class T> T shifted_right(T value, int count) {
  int64_t v = value;
  for (int n = 0; n < count && n < 40; ++n) v = (v - (v % 2 != 0)) / 2;
  return T(v);
}

}  // namespace oracle
