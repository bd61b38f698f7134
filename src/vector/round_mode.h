// The rounding-mode argument of the conversions: 0 cuts off toward zero, 1 rounds to nearest with ties to even, and any
// other value rounds to nearest with ties away from zero.
//
// The processor has no mode for the last one. A kernel raises magnitudes by a half and cuts: in the cutting mode the
// sum of a number just below a half, and that of an odd number without room for a fraction, stay below the next
// integer.
#pragma once
#include "frame/registers.h"
#include "frame/rounding.h"

namespace tav::TAV_VARIANT {

enum class rounding { toward_zero, ties_to_even, ties_away };

TAV_INLINE rounding rounding_of(int mode) {
  return mode == 0 ? rounding::toward_zero : mode == 1 ? rounding::ties_to_even : rounding::ties_away;
}

// Runs a float kernel in the processor's mode for `how`.
template <class Run> TAV_INLINE TavStatus in_mode_for(rounding how, const Run& run) {
  if (how == rounding::ties_to_even) {
    const round_to_nearest scope;
    return run();
  }
  const round_toward_zero scope;
  return run();
}

}  // namespace tav::TAV_VARIANT
