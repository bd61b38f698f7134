// Floats by a constant are products with its rounded reciprocal, and follow the rules of tavsMulC_*: by an infinity,
// for one, everything becomes 0.
#pragma once
#include "frame/bind.h"
#include "frame/checks.h"
#include "frame/rounding.h"

namespace tav::TAV_VARIANT {

// val becomes its reciprocal, unless it counts as zero: then the status is not 0.
template <class T> TavStatus invert(T& val) {
  const round_to_nearest_masked scope;
  if (val == 0) return tavStatusDivideByZero;
  val = held(T(1) / held(val));
  return tavStatusOk;
}

// conj(val) / |val|^2. A square sum too small for the type is zero, one too large is infinite: no care is taken.
template <class C> TavStatus invert_complex(C& val) {
  const round_to_nearest_masked scope;
  const auto                    re = held(val.re), im = held(val.im);
  const auto                    square = held(re * re + im * im);
  if (square == 0) return tavStatusDivideByZero;
  val = {held(re / square), held(-im / square)};
  return tavStatusOk;
}
inline TavStatus invert(Tav32fc& val) { return invert_complex(val); }
inline TavStatus invert(Tav64fc& val) { return invert_complex(val); }

template <class T, auto* Multiply> TavStatus by_reciprocal(const T* src, T val, T* dst, int len) {
  if (const TavStatus bad = check_vector(len, src, dst)) return bad;
  if (const TavStatus bad = invert(val)) return bad;
  return forward<Multiply>(src, val, dst, len);
}

template <class T, auto* Multiply> TavStatus by_reciprocal_in_place(T val, T* srcDst, int len) {
  if (const TavStatus bad = check_vector(len, srcDst)) return bad;
  if (const TavStatus bad = invert(val)) return bad;
  return forward<Multiply>(val, srcDst, len);
}

}  // namespace tav::TAV_VARIANT
