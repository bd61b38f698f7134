// The argument patterns of the conversions with a scale factor.
#pragma once
#include "vector/forms.h"

namespace tav::TAV_VARIANT {

// The operation brings its own run(scaleFactor, dst, len, src), which picks a kernel.
template <class Op>
TavStatus one_source_scaled(const typename Op::src1* src, typename Op::dst* dst, int len, int scaleFactor) {
  if (const TavStatus bad = check_vector(len, src, dst)) return bad;
  return Op::run(scaleFactor, dst, size_t(len), src);
}

// The same with a rounding mode: run(roundMode, scaleFactor, dst, len, src).
template <class Op>
TavStatus one_source_rounded(const typename Op::src1* src, typename Op::dst* dst, int len, int roundMode,
                             int scaleFactor) {
  if (const TavStatus bad = check_vector(len, src, dst)) return bad;
  return Op::run(roundMode, scaleFactor, dst, size_t(len), src);
}

}  // namespace tav::TAV_VARIANT
