// The products of narrow_ops.h within the bounds of each element type.
#pragma once
#include "vector/narrow_ops.h"

namespace tav::TAV_VARIANT {

// clang-format off
template <class T> inline constexpr scale_range product_range{30, -16};
template <> inline constexpr scale_range        product_range<Tav8u>{16, -8};
template <> inline constexpr scale_range        product_range<Tav16u>{32, -16};
// clang-format on

template <class T> using scaled_product        = scaled<of_two<multiplied, T>, product_range<T>>;
template <class T> using scaled_times_constant = scaled<of_constant<multiplied, T>, product_range<T>>;

inline constexpr scale_range complex_product_range{31, -16};

}  // namespace tav::TAV_VARIANT
