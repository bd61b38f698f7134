// The scale factor s of the integer functions: an exact result r becomes r * 2^-s, rounded to nearest with ties to
// even, saturated to the destination's type.
//
// Three kernels serve all factors: none (s = 0), down (s > 0) and up (s < 0). Beyond the bounds of a family nothing new
// happens: above the one every result rounds to zero, and from the other on every result but zero saturates, so that a
// larger shift makes no difference.
#pragma once
#include "frame/kernel_shape.h"
#include "vector/byte_engine.h"

namespace tav::TAV_VARIANT {

struct scale_range {
  int zero_above;  // factors above it give zeros
  int sign_from;   // factors at or below it give limits and zeros
};

// Calls run.none(), run.down(s) with 1 <= s <= zero_above or run.up(k) with 1 <= k <= -sign_from; or clears dst.
template <scale_range Range, class D, class Run>
TAV_INLINE TavStatus with_scale(int s, D* dst, size_t len, const Run& run) {
  if (s == 0) return run.none();
  if (s > Range.zero_above) return shared::zero_bytes(dst, len * sizeof(D));
  if (s > 0) return run.down(s);
  return run.up(s > Range.sign_from ? -s : -Range.sign_from);
}

}  // namespace tav::TAV_VARIANT
