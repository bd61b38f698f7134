// Stretches of samples on their way into the type that a filter computes in, and out of it: the library's own
// conversions, which round to nearest, ties to even, and saturate where they scale.
#pragma once
#include "filter/fir/samples.h"
#include "frame/bind.h"
#include "vector/byte_engine.h"

namespace tav::TAV_VARIANT::fir {

TAV_INLINE void widen_parts(const Tav32f* src, Tav64f* dst, int n) { forward<&::tavsConvert_32f64f>(src, dst, n); }
TAV_INLINE void widen_parts(const Tav32s* src, Tav64f* dst, int n) { forward<&::tavsConvert_32s64f>(src, dst, n); }
TAV_INLINE void widen_parts(const Tav16s* src, Tav32f* dst, int n) { forward<&::tavsConvert_16s32f>(src, dst, n); }
TAV_INLINE void widen_parts(const Tav16s* src, Tav64f* dst, int n) {
  forward<&::tavsConvert_16s64f_Sfs>(src, dst, n, 0);
}

// At least one sample.
template <class S, class T> TAV_INLINE void widen(const S* src, T* dst, size_t n) {
  if constexpr (std::is_same_v<S, T>)
    shared::copy_bytes(src, dst, n * sizeof(T));
  else
    widen_parts(parts_of(src), parts_of(dst), int(n * parts<S>));
}

// How results leave a filter: as they are, or narrowed. Integers are scaled.
struct unscaled {
  template <class T> void operator()(const T* src, T* dst, size_t n) const {
    shared::copy_bytes(src, dst, n * sizeof(T));
  }
  template <class T, class D> void operator()(const T* src, D* dst, size_t n) const {
    forward<&::tavsConvert_64f32f>(parts_of(src), parts_of(dst), int(n * parts<T>));
  }
};

struct scaled_by {
  static constexpr int ties_to_even = 1;  // as a rounding mode of the conversions
  int                  factor;

  template <class T, class D> void operator()(const T* src, D* dst, size_t n) const {
    const int count = int(n * parts<T>);
    if constexpr (sizeof(part<T>) == 4)
      forward<&::tavsConvert_32f16s_Sfs>(parts_of(src), parts_of(dst), count, ties_to_even, factor);
    else if constexpr (sizeof(part<D>) == 2)
      forward<&::tavsConvert_64f16s_Sfs>(parts_of(src), parts_of(dst), count, ties_to_even, factor);
    else
      forward<&::tavsConvert_64f32s_Sfs>(parts_of(src), parts_of(dst), count, ties_to_even, factor);
  }
};

}  // namespace tav::TAV_VARIANT::fir
