// The start-up step: chooses the variant and reads the cache size, once, before the first call.
#pragma once
#include <stdint.h>

namespace tav {

// Variant 1 runs on processors of the low-power in-order line that have SSSE3: both bits, whatever else is set.
constexpr uint32_t choose_variant(uint32_t features) {
  constexpr uint32_t ssse3 = 0x10, low_power_in_order = 0x20;
  return (features & ssse3) != 0 && (features & low_power_in_order) != 0 ? 1 : 0;
}

}  // namespace tav
