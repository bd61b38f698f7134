// Size query and set-up of the states, as templates over the structure and the state type. `n` is the order, or the
// number of sections.
#pragma once
#include "filter/iir/structures.h"
#include "filter/iir/taps_input.h"
#include "vector/byte_engine.h"

namespace tav::TAV_VARIANT::iir {

template <class Structure, class State> uint64_t bytes_of_state(int n) {
  using A = arithmetic_of<State>;
  iir_record<A> sizes;
  iir_block     block(nullptr);
  Structure::lay_out(sizes, block, unsigned(n), is_mixed<State>);
  return block.end() + Structure::template slack<A>;
}

// A size that 32 bits cannot hold wraps.
template <class Structure, class State> TavStatus state_size(int n, int* size) {
  if (const TavStatus bad = check_set_up<tavStatusBadIirOrder>(n, size)) return bad;
  *size = int(uint32_t(bytes_of_state<Structure, State>(n)));
  return tavStatusOk;
}

// The delay line goes in and out as it stands; without an array it is cleared.
template <class State> void store_delay(iir_record<arithmetic_of<State>>& r, const tap_of<State>* dly) {
  static_assert(sizeof(*dly) == sizeof(*r.delay));
  const size_t bytes = size_t(r.delay_len) * sizeof(*dly);
  if (dly)
    shared::copy_bytes(dly, r.delay, bytes);
  else
    shared::zero_bytes(r.delay, bytes);
}

// Arguments have been tested. The out pointer is written on success only.
template <class Structure, class State>
TavStatus build_state(State** state, const arithmetic_of<State>* taps, int n, const tap_of<State>* dly, void* mem,
                      origin from) {
  using A         = arithmetic_of<State>;
  Tav8u* const at = align_up<iir_alignment>(mem);
  auto&        r  = *reinterpret_cast<iir_record<A>*>(at);
  iir_block    block(at);
  r = {};
  Structure::lay_out(r, block, unsigned(n), is_mixed<State>);
  r.id   = Structure::template id<State>;
  r.from = from;
  store_delay<State>(r, dly);
  if (const TavStatus bad = Structure::set_taps(r, taps)) return bad;
  *state = reinterpret_cast<State*>(at);
  return tavStatusOk;
}

template <class Structure, class State> bool allocatable(int n) {
  return bytes_of_state<Structure, State>(n) <= uint64_t(INT32_MAX);
}

template <class Structure, class State>
TavStatus build_allocated(State** state, const arithmetic_of<State>* taps, int n, const tap_of<State>* dly) {
  if (!allocatable<Structure, State>(n)) return tavStatusNoMemory;
  return allocate_record(state, size_t(bytes_of_state<Structure, State>(n)), [&](void* block) {
    State* built;
    return build_state<Structure, State>(&built, taps, n, dly, block, origin::allocated);
  });
}

template <class Structure, class State>
TavStatus init(State** state, const arithmetic_of<State>* taps, int n, const tap_of<State>* dly, Tav8u* buf) {
  if (const TavStatus bad = check_set_up<tavStatusBadIirOrder>(n, state, taps, buf)) return bad;
  return build_state<Structure, State>(state, taps, n, dly, buf, origin::caller);
}

template <class Structure, class State>
TavStatus init_alloc(State** state, const arithmetic_of<State>* taps, int n, const tap_of<State>* dly) {
  if (const TavStatus bad = check_set_up<tavStatusBadIirOrder>(n, state, taps)) return bad;
  return build_allocated<Structure, State>(state, taps, n, dly);
}

// With integer taps.
template <class Structure, class State>
TavStatus init_converted(State** state, const tap_of<State>* taps, int n, int tapsFactor, const tap_of<State>* dly,
                         Tav8u* buf) {
  if (const TavStatus bad = check_set_up<tavStatusBadIirOrder>(n, state, taps, buf)) return bad;
  const converted_taps<arithmetic_of<State>> converted(taps, Structure::tap_count(unsigned(n)), tapsFactor);
  if (!converted.data()) return tavStatusNoMemory;
  return build_state<Structure, State>(state, converted.data(), n, dly, buf, origin::caller);
}

template <class Structure, class State>
TavStatus init_alloc_converted(State** state, const tap_of<State>* taps, int n, int tapsFactor,
                               const tap_of<State>* dly) {
  if (const TavStatus bad = check_set_up<tavStatusBadIirOrder>(n, state, taps)) return bad;
  if (!allocatable<Structure, State>(n)) return tavStatusNoMemory;  // before that many taps are read
  const converted_taps<arithmetic_of<State>> converted(taps, Structure::tap_count(unsigned(n)), tapsFactor);
  if (!converted.data()) return tavStatusNoMemory;
  return build_allocated<Structure, State>(state, converted.data(), n, dly);
}

}  // namespace tav::TAV_VARIANT::iir
