// The scale factor of filters that compute in floats and deliver integers.
#pragma once
#include <type_traits>

#include "frame/registers.h"

namespace tav::TAV_VARIANT {

// 2^-s, by the exponent field. Only the low 7 bits of the magnitude of s count: the factors 128 and -128 act as 0, and
// in single precision 127 makes a multiplier of 0.
template <class F> F output_scale(int s) {
  using word                = std::conditional_t<sizeof(F) == 4, Tav32u, Tav64u>;
  constexpr unsigned counts = 127, bias = sizeof(F) == 4 ? 127 : 1023, fraction = sizeof(F) == 4 ? 23 : 52;
  const unsigned     field = s >= 0 ? bias - (unsigned(s) & counts) : bias + (-unsigned(s) & counts);
  return __builtin_bit_cast(F, word(field) << fraction);
}

}  // namespace tav::TAV_VARIANT
