// The complex transform as its callers inside the library see it: one description, two layouts.
#pragma once
#include "transform/fft/plan.h"
#include "transform/fft/record.h"
#include "transform/fft/tables.h"

namespace tav::TAV_VARIANT::fft {

enum class direction { forward, inverse };

// A transform of 2^order points. `work` has the bytes that complex_sizes() says (less the slack), on a 64-byte
// boundary; it is not looked at where that is 0.
template <class T> struct transform {
  int           order;
  fft_tables<T> tables;
  direction     towards;
  const T*      scale;  // null, or a register of the factor on a 16-byte boundary
  T*            work;
};

// The factor of a direction, or null.
template <class T> const T* scale_towards(const fft_record<T>& r, direction towards) {
  return (towards == direction::forward ? r.scale_forward : r.scale_inverse) != 0 ? r.scale : nullptr;
}

// The transform that a record describes; real records have a complex one of half their length.
template <class T> transform<T> transform_of(const fft_record<T>& r, direction towards, int complex_order, void* work) {
  return {complex_order,
          {r.stages, r.columns, plan_of<T>.columns_from},
          towards,
          scale_towards(r, towards),
          static_cast<T*>(work)};
}

// src may be dst. The results do not depend on that, nor on where the arrays lie.
template <class T> void run_pairs(const transform<T>& t, const T* src, T* dst);
template <class T> void run_split(const transform<T>& t, const T* src_re, const T* src_im, T* dst_re, T* dst_im);

// Short transforms, orders up to pairs_kernels_to and split_kernels_to, need no more than this.
template <class T> void run_short_pairs(int order, direction towards, const T* scale, const T* src, T* dst);
template <class T>
void run_short_split(int order, direction towards, const T* scale, const T* src_re, const T* src_im, T* dst_re,
                     T* dst_im);

#define TAV_FFT_ENGINE(declare, T)                                    \
  declare template void run_pairs(const transform<T>&, const T*, T*); \
  declare template void run_split(const transform<T>&, const T*, const T*, T*, T*);
#define TAV_FFT_SHORT(declare, T)                                                \
  declare template void run_short_pairs(int, direction, const T*, const T*, T*); \
  declare template void run_short_split(int, direction, const T*, const T*, const T*, T*, T*);
TAV_FFT_ENGINE(extern, Tav32f)
TAV_FFT_ENGINE(extern, Tav64f)
TAV_FFT_SHORT(extern, Tav32f)
TAV_FFT_SHORT(extern, Tav64f)

}  // namespace tav::TAV_VARIANT::fft
