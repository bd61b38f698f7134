// The sums and differences of narrow_ops.h within the bounds of each element type.
#pragma once
#include "vector/narrow_ops.h"

namespace tav::TAV_VARIANT {

// clang-format off
template <class T> inline constexpr scale_range sum_range{16, -16};
template <> inline constexpr scale_range        sum_range<Tav8u>{9, -8};
template <> inline constexpr scale_range        sum_range<Tav16u>{17, -16};

template <class T> inline constexpr scale_range difference_range{16, -16};
template <> inline constexpr scale_range        difference_range<Tav8u>{8, -8};
// clang-format on

template <class T> using scaled_sum            = scaled<of_two<added, T>, sum_range<T>>;
template <class T> using scaled_difference     = scaled<of_two<subtracted, T, true>, difference_range<T>>;
template <class T> using scaled_plus_constant  = scaled<of_constant<added, T>, sum_range<T>>;
template <class T> using scaled_minus_constant = scaled<of_constant<subtracted, T>, difference_range<T>>;
template <class T> using scaled_constant_minus = scaled<of_constant<subtracted, T, true>, difference_range<T>>;

}  // namespace tav::TAV_VARIANT
