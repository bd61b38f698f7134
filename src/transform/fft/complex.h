// The calls of the complex transforms in floats, as templates over the sample type and the record. In place is out of
// place with dst for src.
#pragma once
#include "transform/fft/records.h"

namespace tav::TAV_VARIANT::fft {

// Apart, so that the short transforms do not pay for its frame.
template <direction Towards, class C, class Record>
__attribute__((noinline)) TavStatus interleaved_with_area(const C* src, C* dst, const Record* ctx, Tav8u* buf) {
  const auto&       r = opened(ctx);
  const work_buffer work(buf, r.buf_size);
  if (work.failed()) return tavStatusNoMemory;
  run_pairs(transform_of(r, Towards, r.order, work.data()), parts_of(src), parts_of(dst));
  return tavStatusOk;
}

template <direction Towards, class C, class Record>
TavStatus interleaved(const C* src, C* dst, const Record* ctx, Tav8u* buf) {
  if (const TavStatus bad = check_transform<id_of<Record>>(ctx, src, dst)) return bad;
  const auto& r = opened(ctx);
  if (r.order > direct_to) return interleaved_with_area<Towards>(src, dst, ctx, buf);
  run_short_pairs(r.order, Towards, scale_towards(r, Towards), parts_of(src), parts_of(dst));
  return tavStatusOk;
}

template <direction Towards, class C, class Record>
TavStatus interleaved_in_place(C* srcDst, const Record* ctx, Tav8u* buf) {
  return interleaved<Towards>(static_cast<const C*>(srcDst), srcDst, ctx, buf);
}

template <direction Towards, class T, class Record>
TavStatus in_parts(const T* srcRe, const T* srcIm, T* dstRe, T* dstIm, const Record* ctx, Tav8u* buf) {
  if (const TavStatus bad = check_transform<id_of<Record>>(ctx, srcRe, srcIm, dstRe, dstIm)) return bad;
  const auto& r = opened(ctx);
  if (r.order <= direct_to) {
    run_short_split(r.order, Towards, scale_towards(r, Towards), srcRe, srcIm, dstRe, dstIm);
    return tavStatusOk;
  }
  const work_buffer work(buf, r.buf_size);
  if (work.failed()) return tavStatusNoMemory;
  run_split(transform_of(r, Towards, r.order, work.data()), srcRe, srcIm, dstRe, dstIm);
  return tavStatusOk;
}

template <direction Towards, class T, class Record>
TavStatus in_parts_in_place(T* srcDstRe, T* srcDstIm, const Record* ctx, Tav8u* buf) {
  return in_parts<Towards, T>(srcDstRe, srcDstIm, srcDstRe, srcDstIm, ctx, buf);
}

}  // namespace tav::TAV_VARIANT::fft
