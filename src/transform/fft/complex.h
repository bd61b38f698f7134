// The exports of the complex transforms in floats, as templates over the sample type and the record.
#pragma once
#include "frame/bind.h"
#include "frame/work_buffer.h"
#include "transform/fft/setup.h"

namespace tav::TAV_VARIANT::fft {

template <class Record> struct record_traits;
template <> struct record_traits<FftContext_C_32fc> {
  static constexpr auto id = record_id::fft_c_32fc;
  using part               = Tav32f;
};
template <> struct record_traits<FftContext_C_32f> {
  static constexpr auto id = record_id::fft_c_32f;
  using part               = Tav32f;
};
template <> struct record_traits<FftContext_C_64fc> {
  static constexpr auto id = record_id::fft_c_64fc;
  using part               = Tav64f;
};
template <> struct record_traits<FftContext_C_64f> {
  static constexpr auto id = record_id::fft_c_64f;
  using part               = Tav64f;
};

template <class Record> using part_of                    = typename record_traits<Record>::part;
template <class Record> inline constexpr record_id id_of = record_traits<Record>::id;

template <class Record> const fft_record<part_of<Record>>& opened(const Record* ctx) {
  return *reinterpret_cast<const fft_record<part_of<Record>>*>(ctx);
}
template <class Record> fft_record<part_of<Record>>& opened(Record* ctx) {
  return *reinterpret_cast<fft_record<part_of<Record>>*>(ctx);
}

template <class Record> TavStatus get_size(int order, int flag, int, int* spec, int* init, int* work) {
  using T = part_of<Record>;
  if (const TavStatus bad = check_sizes(order, flag, plan_of<T>.max_order, spec, init, work)) return bad;
  report(complex_sizes<T>(order), spec, init, work);
  return tavStatusOk;
}

// The id is stored last: whatever fails before leaves a dead record.
template <class Record> TavStatus init(Record** ctx, int order, int flag, int hint, Tav8u* mem, Tav8u* initBuf) {
  using T = part_of<Record>;
  if (!ctx) return tavStatusNullPointer;
  if (unsigned(order) > unsigned(plan_of<T>.max_order)) return tavStatusBadOrder;
  if (!mem) return tavStatusNullPointer;
  auto* const r = reinterpret_cast<fft_record<T>*>(align_up(mem));

  const round_to_nearest scope;
  if (const TavStatus bad = start_record(r, order, flag, hint)) return bad;
  if (order > direct_to) {
    quarter_wave<T> wave;
    if (const TavStatus bad = make_wave(order, initBuf, &wave)) return bad;
    r->buf_size = int(complex_share<T>(order).work);
    make_tables(r, order, wave, reinterpret_cast<Tav8u*>(r) + record_head);
  }
  r->id = id_of<Record>;
  *ctx  = reinterpret_cast<Record*>(r);
  return tavStatusOk;
}

template <class Record> TavStatus init_alloc(Record** ctx, int order, int flag, int hint) {
  if (!ctx) return tavStatusNullPointer;
  int spec, init_bytes, work;
  if (const TavStatus bad = get_size<Record>(order, flag, hint, &spec, &init_bytes, &work)) return bad;
  void* const block = allocate_bytes(size_t(spec));
  if (!block) return tavStatusNoMemory;
  const TavStatus status = [&] {
    const work_buffer area(nullptr, init_bytes);
    return area.failed() ? tavStatusNoMemory : init(ctx, order, flag, hint, static_cast<Tav8u*>(block), area.data());
  }();
  if (status < 0) {
    release(block);
    return status;
  }
  opened(*ctx).from       = origin::allocated;
  opened(*ctx).allocation = block;
  return tavStatusOk;
}

template <class Record> TavStatus free_record(Record* ctx) {
  if (const TavStatus bad = check_record<id_of<Record>>(ctx)) return bad;
  auto& r = opened(ctx);
  r.id    = record_id::none;
  if (r.from == origin::allocated) release(r.allocation);
  return tavStatusOk;
}

// The workers. In place is out of place with dst for src.

template <class C> auto* parts_of(C* p) {
  using part = decltype(C::re);
  return reinterpret_cast<std::conditional_t<std::is_const_v<C>, const part*, part*>>(p);
}

template <direction Towards, class C, class Record>
TavStatus interleaved(const C* src, C* dst, const Record* ctx, Tav8u* buf) {
  if (const TavStatus bad = check_transform<id_of<Record>>(ctx, src, dst)) return bad;
  const auto& r = opened(ctx);
  if (r.order <= direct_to) {
    run_short_pairs(r.order, Towards, scale_towards(r, Towards), parts_of(src), parts_of(dst));
    return tavStatusOk;
  }
  const work_buffer work(buf, r.buf_size);
  if (work.failed()) return tavStatusNoMemory;
  run_pairs(transform_of(r, Towards, r.order, work.data()), parts_of(src), parts_of(dst));
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
