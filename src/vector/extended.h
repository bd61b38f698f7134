// Integers of 64 bits on the extended-precision unit, whose 64 bits of significand hold every one of them.
#pragma once
#include "frame/registers.h"

namespace tav::TAV_VARIANT {

using extended = long double;

TAV_INLINE extended extended_power_of_two(int n) {
  const struct {
    uint64_t significand;
    uint16_t exponent;
  } parts{uint64_t(1) << 63, uint16_t(16383 + n)};
  extended power = 0;
  __builtin_memcpy(&power, &parts, 10);
  return power;
}

// To the nearest integer. Of a NaN, and below the range, the unit makes the lowest one.
TAV_INLINE Tav64s saturated(extended v) {
  constexpr extended highest = extended(0x7FFFFFFFFFFFFFFF);
  if (v > highest) v = highest;
  Tav64s result;
  __asm__("fistpll %0" : "=m"(result) : "t"(v) : "st");
  return result;
}

}  // namespace tav::TAV_VARIANT
