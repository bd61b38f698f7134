// Size query, set-up and release of float records, in memory of the caller's or allocated.
#pragma once
#include "filter/fir/checks.h"
#include "filter/fir/taps.h"

namespace tav::TAV_VARIANT::fir {

// How a state is set up: what its taps are on the interface, and the layout of its record in either kind of memory.
template <class State> struct usual_set_up {
  using state = State;
  using taps  = tap_of<State>;
  using data  = data_of<State>;
  static layout in_memory(int n) { return layout_of<tap_of<State>>(uint64_t(n), transform<tap_of<State>>::taps_from); }
  static layout allocated(int n) { return in_memory(n); }
};

template <class State> struct set_up_of : usual_set_up<State> {};

// Allocated, these have a transform at half the taps.
template <> struct set_up_of<FIRState64f_32s> : usual_set_up<FIRState64f_32s> {
  static layout allocated(int n) { return layout_of<Tav64f>(uint64_t(n), transform<Tav64f>::taps_from / 2); }
};

// In memory of the caller's, the one with integers for taps has none.
struct set_up_32s : set_up_of<FIRState64f_32s> {
  using taps = Tav32s;
  static layout in_memory(int n) { return with_integer_taps(uint64_t(n)); }
};

template <class T> inline constexpr int boundary = sizeof(part<T>) == 8 ? 32 : 16;

template <class T> Tav8u* to_boundary(Tav8u* block) {
  if constexpr (boundary<T> == 32)
    return static_cast<Tav8u*>(tavAlignPtr(block, 32));
  else
    return align_up<boundary<T>>(block);
}

// Hands out the parts of a record, one behind the other.
class carving {
 public:
  explicit carving(Tav8u* from) : next_(from) {}
  template <class P> void take(P*& part, uint64_t bytes) {
    part = bytes == 0 ? nullptr : reinterpret_cast<P*>(next_);
    next_ += bytes;
  }

 private:
  Tav8u* next_;
};

// A failure leaves a record without a transform, which works.
template <class T> TavStatus start_transform(float_record<T>& r, const layout& l, carving& parts_of_block) {
  if (l.fft_points == 0) return tavStatusOk;
  Tav8u *context, *init;
  parts_of_block.take(context, uint64_t(l.fft_context));
  parts_of_block.take(init, uint64_t(l.fft_init));
  parts_of_block.take(r.fft_work, uint64_t(l.fft_work));
  typename transform<T>::context* made = nullptr;
  TavStatus status = transform<T>::init(&made, l.fft_order, fftScaleInverse, no_hint, context, init);
  if (status < 0) return status;
  r.fft        = made;
  r.fft_points = int32_t(l.fft_points);
  status       = fill_spectrum(r);
  if (status < 0) r.fft_points = 0;
  return status;
}

// Everything but the id. The status is that of the transform.
template <class T, class S, class D>
TavStatus build(float_record<T>* r, const layout& l, const S* taps, int tapsLen, const D* dly) {
  constexpr uint64_t fixed = up_to<16>(sizeof *r);
  static_assert(fixed + boundary<T> - 1 <= least_room);
  carving parts_of_block(reinterpret_cast<Tav8u*>(r) + fixed);
  *r          = {};
  r->taps_len = r->delay.len = tapsLen;
  parts_of_block.take(r->delay.ring, l.delay);
  parts_of_block.take(r->reversed, l.reversed);
  parts_of_block.take(r->repeated, l.repeated);
  parts_of_block.take(r->staggered, l.staggered);
  parts_of_block.take(r->scratch, l.scratch);
  parts_of_block.take(r->spectrum, l.samples);
  parts_of_block.take(r->block, l.samples);
  fill_tables(*r, taps);
  r->delay.set(dly);
  return start_transform(*r, l, parts_of_block);
}

template <class SetUp> TavStatus get_size(int tapsLen, int* size) {
  if (const TavStatus bad = check_set_up<tavStatusBadFirLength>(tapsLen, size)) return bad;
  *size = int(SetUp::in_memory(tapsLen).total());
  return tavStatusOk;
}

template <class SetUp, class State = typename SetUp::state>
TavStatus init(State** state, const typename SetUp::taps* taps, int tapsLen, const typename SetUp::data* dly,
               Tav8u* buf) {
  if (const TavStatus bad = check_set_up<tavStatusBadFirLength>(tapsLen, state, taps, buf)) return bad;
  using record  = typename traits<State>::record;
  auto* const r = reinterpret_cast<record*>(to_boundary<tap_of<State>>(buf));
  build(r, SetUp::in_memory(tapsLen), taps, tapsLen, dly);
  r->id  = traits<State>::single;
  *state = reinterpret_cast<State*>(r);
  return tavStatusOk;
}

// A block from the allocator starts on a boundary.
template <class SetUp, class State = typename SetUp::state>
TavStatus init_alloc(State** state, const typename SetUp::taps* taps, int tapsLen, const typename SetUp::data* dly) {
  if (const TavStatus bad = check_set_up<tavStatusBadFirLength>(tapsLen, state, taps)) return bad;
  const layout l = SetUp::allocated(tapsLen);
  if (l.total() > INT32_MAX) return tavStatusNoMemory;
  return allocate_record(state, size_t(l.total()), [&](void* block) {
    auto* const     r      = static_cast<typename traits<State>::record*>(block);
    const TavStatus status = build(r, l, taps, tapsLen, dly);
    r->id                  = traits<State>::single;
    r->from                = origin::allocated;
    return status;
  });
}

}  // namespace tav::TAV_VARIANT::fir
