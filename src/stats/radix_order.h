// How the bits of each type order its values. The sorts themselves know words only, and take the order as data.
#pragma once
#include "frame/registers.h"

namespace tav::TAV_VARIANT {

template <class T>
using word_of = std::conditional_t<
    sizeof(T) == 1, uint8_t,
    std::conditional_t<sizeof(T) == 2, uint16_t, std::conditional_t<sizeof(T) == 4, uint32_t, uint64_t>>>;

// The words come in two halves: `upper` are those whose top bit is set.
struct radix_order {
  bool upper_first;               // the upper half comes before the lower one
  bool lower_falls, upper_falls;  // within the half, the sorted words fall
};

inline constexpr radix_order order_without_sign{.upper_first = false, .lower_falls = false, .upper_falls = false};
inline constexpr radix_order order_with_sign{.upper_first = true, .lower_falls = false, .upper_falls = false};
inline constexpr radix_order order_of_floats{.upper_first = true, .lower_falls = false, .upper_falls = true};

template <class T, bool Descending> constexpr radix_order radix_order_of() {
  const radix_order up = std::is_floating_point_v<T> ? order_of_floats
                         : std::is_signed_v<T>       ? order_with_sign
                                                     : order_without_sign;
  return Descending ? radix_order{!up.upper_first, !up.lower_falls, !up.upper_falls} : up;
}

// Maps words to keys: numbers that rise in that order. Both stand at the upper end of 32 bits.
template <class Word> class radix_keys {
 public:
  static constexpr int unused = 32 - 8 * int(sizeof(Word));

  explicit radix_keys(const radix_order& order)
      : lower_((order.upper_first ? top : 0) | (order.lower_falls ? others : 0)),
        differs_(order.lower_falls != order.upper_falls ? others : 0) {}

  __m128i operator()(__m128i words) const {
    const __m128i in_upper = _mm_srai_epi32(words, 31);
    const __m128i differs  = _mm_and_si128(in_upper, _mm_set1_epi32(int(differs_)));
    return _mm_xor_si128(_mm_xor_si128(words, _mm_set1_epi32(int(lower_))), differs);
  }

 private:
  static constexpr uint32_t top    = uint32_t(1) << 31;
  static constexpr uint32_t others = (top - 1) >> unused << unused;

  uint32_t lower_;    // what turns words of the lower half into keys
  uint32_t differs_;  // which of these bits are otherwise in the upper half
};

}  // namespace tav::TAV_VARIANT
