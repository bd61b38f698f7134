// The exports of the complex transforms of integers, as templates over the points and the record.
#pragma once
#include "transform/fft/complex.h"
#include "transform/fft/integer_calls.h"

namespace tav::TAV_VARIANT::fft {

// Interleaved points, as their parts.
template <class T> struct interleaved_points {
  const T* src;
  T*       dst;

  template <class F> void fetch(F* area, size_t n) const { to_floats(src, area, 2 * n); }
  template <class F> void deliver(const F* area, size_t n, int scaleFactor) const {
    to_integers(area, dst, 2 * n, scaleFactor);
  }
  template <auto* Nested, class F, class Record>
  TavStatus transform(F* area, size_t, const Record* ctx, Tav8u* buf) const {
    using C = std::conditional_t<sizeof(F) == 4, Tav32fc, Tav64fc>;
    return forward<Nested>(reinterpret_cast<C*>(area), ctx, buf);
  }
  void run_fixed(const shared::fixed_transform& t) const { shared::run_fixed_pairs(t, src, dst); }
};

// Points in two arrays. Their floats lie in two halves of the area.
template <class T> struct split_points {
  const T *src_re, *src_im;
  T *      dst_re, *dst_im;

  template <class F> void fetch(F* area, size_t n) const {
    to_floats(src_re, area, n);
    to_floats(src_im, area + n, n);
  }
  template <class F> void deliver(const F* area, size_t n, int scaleFactor) const {
    to_integers(area, dst_re, n, scaleFactor);
    to_integers(area + n, dst_im, n, scaleFactor);
  }
  template <auto* Nested, class F, class Record>
  TavStatus transform(F* area, size_t n, const Record* ctx, Tav8u* buf) const {
    return forward<Nested>(area, area + n, ctx, buf);
  }
  void run_fixed(const shared::fixed_transform& t) const {
    const int     n = 1 << t.order;
    Tav16sc       single;
    Tav16sc*      pairs = t.order == 0 ? &single : reinterpret_cast<Tav16sc*>(t.area + 2 * n);
    Tav16s* const parts = parts_of(pairs);
    forward<&::tavsRealToCplx_16s>(src_re, src_im, pairs, n);
    shared::run_fixed_pairs(t, parts, parts);
    forward<&::tavsCplxToReal_16sc>(static_cast<const Tav16sc*>(pairs), dst_re, dst_im, n);
  }
};

template <direction Towards, class C, class Record>
TavStatus integer_interleaved(const C* src, C* dst, const Record* ctx, int scaleFactor, Tav8u* buf) {
  if (const TavStatus bad = check_transform<integer_traits<Record>::id>(ctx, src, dst)) return bad;
  const interleaved_points<decltype(C::re)> data{parts_of(src), parts_of(dst)};
  return transform_integers<Towards>(ctx, data, scaleFactor, buf);
}

template <direction Towards, class C, class Record>
TavStatus integer_interleaved_in_place(C* srcDst, const Record* ctx, int scaleFactor, Tav8u* buf) {
  return integer_interleaved<Towards, C>(srcDst, srcDst, ctx, scaleFactor, buf);
}

template <direction Towards, class T, class Record>
TavStatus integer_split(const T* srcRe, const T* srcIm, T* dstRe, T* dstIm, const Record* ctx, int scaleFactor,
                        Tav8u* buf) {
  if (const TavStatus bad = check_transform<integer_traits<Record>::id>(ctx, srcRe, srcIm, dstRe, dstIm)) return bad;
  const split_points<T> data{srcRe, srcIm, dstRe, dstIm};
  return transform_integers<Towards>(ctx, data, scaleFactor, buf);
}

template <direction Towards, class T, class Record>
TavStatus integer_split_in_place(T* srcDstRe, T* srcDstIm, const Record* ctx, int scaleFactor, Tav8u* buf) {
  return integer_split<Towards, T>(srcDstRe, srcDstIm, srcDstRe, srcDstIm, ctx, scaleFactor, buf);
}

}  // namespace tav::TAV_VARIANT::fft
