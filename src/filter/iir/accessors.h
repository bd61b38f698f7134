// Free, the delay line and the taps of a state, whatever its structure. All pointers are tested before the id.
#pragma once
#include "filter/iir/set_up.h"

namespace tav::TAV_VARIANT::iir {

// The id stays; a state in the caller's memory is left as it is.
template <class State> TavStatus free_state(State* state) {
  if (const TavStatus bad = check_state(state)) return bad;
  return free_unmarked(state, opened(state).from);
}

template <class State> TavStatus take_delay(const State* state, tap_of<State>* dly) {
  const auto& r = opened(state);
  return shared::copy_bytes(r.delay, dly, size_t(r.delay_len) * sizeof(*dly));
}

template <class State> TavStatus get_delay(const State* state, tap_of<State>* dly) {
  if (const TavStatus bad = check_state(state, dly)) return bad;
  return take_delay(state, dly);
}

template <class State> TavStatus set_delay(State* state, const tap_of<State>* dly) {
  if (const TavStatus bad = check_state(state)) return bad;
  store_delay<State>(opened(state), dly);
  return tavStatusOk;
}

// Where cascades in direct form 1 have a pair of calls of their own.
template <class State> TavStatus get_delay_but_df1(const State* state, tap_of<State>* dly) {
  if (const TavStatus bad = check_state_but_df1(state, dly)) return bad;
  return take_delay(state, dly);
}

template <class State> TavStatus set_delay_but_df1(State* state, const tap_of<State>* dly) {
  if (const TavStatus bad = check_state_but_df1(state)) return bad;
  store_delay<State>(opened(state), dly);
  return tavStatusOk;
}

template <class State> TavStatus set_taps(const arithmetic_of<State>* taps, State* state) {
  if (const TavStatus bad = check_state(state, taps)) return bad;
  return with_structure(state, [&](auto structure) { return decltype(structure)::set_taps(opened(state), taps); });
}

// With integer taps.
template <class State> TavStatus set_taps_converted(const tap_of<State>* taps, State* state, int tapsFactor) {
  if (const TavStatus bad = check_state(state, taps)) return bad;
  return with_structure(state, [&](auto structure) {
    using S = decltype(structure);
    const converted_taps<arithmetic_of<State>> converted(taps, S::taps_of(opened(state)), tapsFactor);
    return converted.data() ? S::set_taps(opened(state), converted.data()) : tavStatusNoMemory;
  });
}

}  // namespace tav::TAV_VARIANT::iir
