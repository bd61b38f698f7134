// The complex transform: which way a call takes.
//
//   short ....................... kernels of one order each (direct.h, pair_passes.h)
//   up to 12, pairs of singles .. code for that very length (fixed.h), which goes the next way
//   a work area for all points .. the first pass gathers into it (or straight into an aligned dst), the last stage
//                                 writes the caller's layout to dst
//   otherwise ................... all passes on dst itself; from elsewhere the first pass gathers, in place the points
//                                 are brought into bit-reversed order before it
//
// Each way does the same arithmetic on the same values, so the results agree bit for bit.
#pragma once
#include "transform/fft/bit_reversal.h"
#include "transform/fft/fixed.h"

namespace tav::TAV_VARIANT::fft {

// What a layout is in the stages, if they work on the caller's memory.
template <class T> groups<T> planar_view(pairs<T> view) { return {view.p}; }
template <class T> split<T>  planar_view(split<T> view) { return view; }

template <class T> void reordered(pairs<T> src, pairs<T> dst, int order) {
  struct point {
    T parts[2];
  };
  bit_reversed(reinterpret_cast<const point*>(src.p), reinterpret_cast<point*>(dst.p), order);
}
template <class T> void reordered(split<T> src, split<T> dst, int order) {
  bit_reversed(src.re, dst.re, order);
  bit_reversed(src.im, dst.im, order);
}

// Neighbouring lines that one visit of the first pass takes from each row.
inline size_t lines_of(int order) { return order < 13 ? 1 : order < 18 ? 2 : order < 20 ? 4 : 8; }

template <bool Inverse, class View, class Out, class T>
void through_area(View src, Out out, T* area, const transform<T>& t) {
  const groups<T> mid{area};
  first_pass_gathering<Inverse>(src, mid, t.order, lines_of(t.order));
  combine(mid, out, t.order, t.tables);
}

template <bool Inverse, class View, class Out, class T>
void on_destination(View src, View dst, Out out, const transform<T>& t) {
  const auto mid = planar_view(dst);
  if (same_place(src, dst)) {
    reordered(src, dst, t.order);
    first_pass_in_order<Inverse>(dst, mid, t.order);
  } else {
    first_pass_gathering<Inverse>(src, mid, t.order, lines_of(t.order));
  }
  combine(mid, out, t.order, t.tables);
}

template <bool Inverse, bool Exchanged, bool Scaled, class View, class T>
void run(View src, View dst, const transform<T>& t) {
  const result<View, Exchanged, Scaled> out{dst, t.scale};
  if (plan_of<T>.in_place || t.order >= plan_of<T>.cut_from) return on_destination<Inverse>(src, dst, out, t);
  through_area<Inverse>(src, out, stage_area(src, dst, t.work), t);
}

template <bool Inverse, class View, class T> void run_scaled(View src, View dst, const transform<T>& t) {
  constexpr bool exchanged = Inverse;
  if (t.scale)
    run<Inverse, exchanged, true>(src, dst, t);
  else
    run<Inverse, exchanged, false>(src, dst, t);
}

template <class T> __attribute__((noinline)) void run_long_pairs(const transform<T>& t, const T* src, T* dst) {
  const pairs<T> from{const_cast<T*>(src)}, to{dst};
  if (t.towards == direction::inverse)
    run_scaled<true>(from, to, t);
  else
    run_scaled<false>(from, to, t);
}

template <class T> void run_pairs(const transform<T>& t, const T* src, T* dst) {
  if (t.order <= pairs_kernels_to<T>) return run_short_pairs(t.order, t.towards, t.scale, src, dst);
  if constexpr (has_fixed<T>)
    if (t.order <= fixed_to) return run_fixed(t, src, dst);
  run_long_pairs(t, src, dst);
}

// The inverse is the forward transform of points with their parts exchanged.
template <class T> void run_split(const transform<T>& t, const T* src_re, const T* src_im, T* dst_re, T* dst_im) {
  if (t.order <= split_kernels_to<T>)
    return run_short_split(t.order, t.towards, t.scale, src_re, src_im, dst_re, dst_im);
  T *const re = const_cast<T*>(src_re), *const im = const_cast<T*>(src_im);
  if (t.towards == direction::inverse)
    run_scaled<false>(split<T>{im, re}, split<T>{dst_im, dst_re}, t);
  else
    run_scaled<false>(split<T>{re, im}, split<T>{dst_re, dst_im}, t);
}

}  // namespace tav::TAV_VARIANT::fft
