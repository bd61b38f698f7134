// Samples and taps by type: their parts, and conversions of single ones.
#pragma once
#include "frame/registers.h"

namespace tav::TAV_VARIANT::fir {

template <class T> using part = part_of<T>;

template <class D, class S> TAV_INLINE D converted(S v) {
  if constexpr (is_complex<S>)
    return {part<D>(v.re), part<D>(v.im)};
  else
    return D(v);
}

}  // namespace tav::TAV_VARIANT::fir
