// The calls on a state that do not filter: release, taps and delay lines.
#pragma once
#include "filter/fir/checks.h"
#include "filter/fir/record.h"

namespace tav::TAV_VARIANT::fir {

template <class State> auto&       opened(State* s) { return *reinterpret_cast<typename traits<State>::record*>(s); }
template <class State> const auto& opened(const State* s) {
  return *reinterpret_cast<const typename traits<State>::record*>(s);
}

template <class State> TavStatus free_state(State* state) {
  if (const TavStatus bad = check_free(state)) return bad;
  return free_unmarked(state, reinterpret_cast<const head*>(state)->from);
}

template <class State> TavStatus get_delay(const State* state, data_of<State>* dly) {
  if (const TavStatus bad = check_accessor(state, dly)) return bad;
  opened(state).delay.get(dly);
  return tavStatusOk;
}

// Null clears.
template <class State> TavStatus set_delay(State* state, const data_of<State>* dly) {
  if (const TavStatus bad = check_accessor(state)) return bad;
  opened(state).delay.set(dly);
  return tavStatusOk;
}

}  // namespace tav::TAV_VARIANT::fir
