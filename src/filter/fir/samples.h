// Samples and taps by type: their parts, and conversions of single ones.
#pragma once
#include "frame/registers.h"

namespace tav::TAV_VARIANT::fir {

template <class T> using part                       = part_of<T>;
template <class T> inline constexpr int  parts      = sizeof(T) / sizeof(part<T>);
template <class T> inline constexpr bool is_complex = parts<T> == 2;

template <class T> const part<T>* parts_of(const T* p) { return reinterpret_cast<const part<T>*>(p); }
template <class T> part<T>*       parts_of(T* p) { return reinterpret_cast<part<T>*>(p); }

template <class D, class S> TAV_INLINE D converted(S v) {
  if constexpr (is_complex<S>)
    return {part<D>(v.re), part<D>(v.im)};
  else
    return D(v);
}

}  // namespace tav::TAV_VARIANT::fir
