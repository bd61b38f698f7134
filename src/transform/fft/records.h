// Size query, set-up and release of the records in floats, as templates over the record.
#pragma once
#include "frame/bind.h"
#include "frame/work_buffer.h"
#include "transform/fft/setup.h"

namespace tav::TAV_VARIANT::fft {

template <class Part, record_id Id, bool Real> struct float_record {
  using part                 = Part;
  static constexpr auto id   = Id;
  static constexpr bool real = Real;
};
template <class Record> struct record_traits;
template <> struct record_traits<FftContext_C_32fc> : float_record<Tav32f, record_id::fft_c_32fc, false> {};
template <> struct record_traits<FftContext_C_32f> : float_record<Tav32f, record_id::fft_c_32f, false> {};
template <> struct record_traits<FftContext_R_32f> : float_record<Tav32f, record_id::fft_r_32f, true> {};
template <> struct record_traits<FftContext_C_64fc> : float_record<Tav64f, record_id::fft_c_64fc, false> {};
template <> struct record_traits<FftContext_C_64f> : float_record<Tav64f, record_id::fft_c_64f, false> {};
template <> struct record_traits<FftContext_R_64f> : float_record<Tav64f, record_id::fft_r_64f, true> {};

template <class Record> using precision_of                 = typename record_traits<Record>::part;
template <class Record> inline constexpr record_id id_of   = record_traits<Record>::id;
template <class Record> inline constexpr bool      is_real = record_traits<Record>::real;
template <class Record> inline constexpr int max_order     = plan_of<precision_of<Record>>.max_order + is_real<Record>;

template <class Record> const fft_record<precision_of<Record>>& opened(const Record* ctx) {
  return *reinterpret_cast<const fft_record<precision_of<Record>>*>(ctx);
}
template <class Record> fft_record<precision_of<Record>>& opened(Record* ctx) {
  return *reinterpret_cast<fft_record<precision_of<Record>>*>(ctx);
}

template <class Record> fft_sizes sizes_of(int order) {
  using T = precision_of<Record>;
  return is_real<Record> ? real_sizes<T>(order) : complex_sizes<T>(order);
}

template <class Record> TavStatus get_size(int order, int flag, int, int* spec, int* init, int* work) {
  if (const TavStatus bad = check_sizes(order, flag, max_order<Record>, spec, init, work)) return bad;
  report(sizes_of<Record>(order), spec, init, work);
  return tavStatusOk;
}

// The id is stored last: whatever fails before leaves a dead record.
template <class Record> TavStatus init(Record** ctx, int order, int flag, int hint, Tav8u* mem, Tav8u* initBuf) {
  using T = precision_of<Record>;
  if (!ctx) return tavStatusNullPointer;
  if (unsigned(order) > unsigned(max_order<Record>)) return tavStatusBadOrder;
  if (!mem) return tavStatusNullPointer;
  auto* const r = reinterpret_cast<fft_record<T>*>(align_up(mem));

  const round_to_nearest scope;
  if (const TavStatus bad = start_record(r, order, flag, hint)) return bad;
  if (const TavStatus bad = is_real<Record> ? fill_real(r, initBuf) : fill_complex(r, initBuf)) return bad;
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

}  // namespace tav::TAV_VARIANT::fft
