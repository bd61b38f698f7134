// Size query, set-up and release of the records of integers. The sizes are a promise to callers who bring their own
// memory.
#pragma once
#include "frame/work_buffer.h"
#include "transform/fft/integer_traits.h"
#include "transform/fft/setup.h"

namespace tav::TAV_VARIANT::fft {

inline constexpr int integer_room = 128;  // for the record ahead of the nested one, and the way to a 64-byte boundary

template <class Record> fft_sizes fixed_point_sizes(int order) {
  if (order == 0) return {int(single_point_spec), 0, 0};
  const size_t n = size_t(1) << order, widest = whole_lines(8 * n + 63);
  const size_t tables =
      real_points<Record> ? widest + whole_lines(4 * n + 63) + index_bytes(n / 2) : widest + index_bytes(n);
  return {int(tables) + integer_room, int(whole_lines(2 * (n / 4) + 65) + slack),
          int(fixed_point_bytes<Record>(n) + slack)};
}

// The longest work areas take more than 31 bits; their sizes wrap.
inline int wrapped_sum(int a, size_t b) { return int(unsigned(a) + unsigned(b)); }

template <class Record> fft_sizes sizes_around(const fft_sizes& nested, int order) {
  const bool set_up = integer_traits<Record>::has_fixed_point || nested.init != 0;
  return {nested.spec + integer_room, nested.init + (set_up ? int(slack) : 0),
          wrapped_sum(nested.work, float_bytes<Record>(size_t(1) << order) + slack)};
}

template <class Record> TavStatus integer_get_size(int order, int flag, int hint, int* spec, int* init, int* work) {
  if (const TavStatus bad = check_sizes(order, flag, highest_order, spec, init, work)) return bad;
  if (in_fixed_point<Record>(order, hint)) {
    report(fixed_point_sizes<Record>(order), spec, init, work);
    return tavStatusOk;
  }
  fft_sizes s;
  if (const TavStatus bad = forward<nested_of<Record>::get_size>(order, flag, 0, &s.spec, &s.init, &s.work)) return bad;
  report(sizes_around<Record>(s, order), spec, init, work);
  return tavStatusOk;
}

// The factor of a flag in fixed point; sqrt(N) is a power of two, or that times sqrt(2).
inline TavStatus store_shifts(integer_record* r, int flag) {
  if (!legal(flag)) return tavStatusBadFlag;
  if (flag == fftScaleForward) r->shift_forward = r->order;
  if (flag == fftScaleInverse) r->shift_inverse = r->order;
  if (flag == fftScaleBoth) {
    r->shift_forward = r->shift_inverse = r->order / 2;
    r->root_half                        = r->order & 1;
  }
  return tavStatusOk;
}

template <class Record> TavStatus set_up_nested(integer_record* r, int flag, Tav8u* initBuf) {
  using nested                = nested_of<Record>;
  typename nested::record* in = nullptr;
  Tav8u* const             at = reinterpret_cast<Tav8u*>(r + 1);
  if (const TavStatus bad = forward<nested::init>(&in, int(r->order), flag, 0, at, initBuf)) return bad;
  int buf_size = 0;
  forward<nested::get_buf_size>(static_cast<const typename nested::record*>(in), &buf_size);
  r->buf_size = wrapped_sum(buf_size, float_bytes<Record>(size_t(1) << r->order));
  r->nested   = in;
  return tavStatusOk;
}

// The id is stored last: whatever fails before leaves a dead record.
template <class Record> TavStatus set_up(integer_record* r, int order, int flag, int hint, Tav8u* initBuf) {
  *r       = {};
  r->order = order;
  r->hint  = hint;
  if constexpr (integer_traits<Record>::has_fixed_point) {
    if (const TavStatus bad = store_shifts(r, flag)) return bad;
    if (order != 0 && !initBuf) return tavStatusNullPointer;
  }
  if (!in_fixed_point<Record>(order, hint)) {
    if (const TavStatus bad = set_up_nested<Record>(r, flag, initBuf)) return bad;
  } else if (order != 0) {
    r->buf_size = int(fixed_point_bytes<Record>(size_t(1) << order));
  }
  r->id = integer_traits<Record>::id;
  return tavStatusOk;
}

template <class Record>
TavStatus integer_init(Record** ctx, int order, int flag, int hint, Tav8u* mem, Tav8u* initBuf) {
  if (!ctx) return tavStatusNullPointer;
  if (unsigned(order) > unsigned(highest_order)) return tavStatusBadOrder;
  if (!mem) return tavStatusNullPointer;
  auto* const r = reinterpret_cast<integer_record*>(align_up(mem));
  if (const TavStatus bad = set_up<Record>(r, order, flag, hint, initBuf)) return bad;
  *ctx = reinterpret_cast<Record*>(r);
  return tavStatusOk;
}

template <class Record> TavStatus integer_init_alloc(Record** ctx, int order, int flag, int hint) {
  if (!ctx) return tavStatusNullPointer;
  int spec, init, work;
  if (const TavStatus bad = integer_get_size<Record>(order, flag, hint, &spec, &init, &work)) return bad;
  return allocate_record(ctx, size_t(spec), [=](void* block) {
    const work_buffer area(nullptr, init);
    if (area.failed()) return TavStatus(tavStatusNoMemory);
    auto* const     r      = static_cast<integer_record*>(block);
    const TavStatus status = set_up<Record>(r, order, flag, hint, area.data());
    r->from                = origin::allocated;
    return status;
  });
}

template <class Record> TavStatus integer_free(Record* ctx) {
  if (const TavStatus bad = check_record<integer_traits<Record>::id>(ctx)) return bad;
  return free_marked(ctx, opened_integer(ctx).from);
}

}  // namespace tav::TAV_VARIANT::fft
