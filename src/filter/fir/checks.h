// The orders of checks of the FIR families.
#pragma once
#include "filter/fir/traits.h"

namespace tav::TAV_VARIANT::fir {

// Blocks: every pointer, the length, and the id last.
template <class State, class... P> TAV_INLINE TavStatus check_block(const State* state, int len, const P*... data) {
  if (const TavStatus bad = check_vector(len, state, data...)) return bad;
  return traits<State>::runs(state) ? tavStatusOk : tavStatusBadContext;
}

template <class State> TAV_INLINE TavStatus check_one(const State* state, const void* dst) {
  if (any_null(state, dst)) return tavStatusNullPointer;
  return traits<State>::is_single(state) ? tavStatusOk : tavStatusBadContext;
}

// Taps and delay lines: every pointer that must not be null, then the id.
template <class State, class... P> TAV_INLINE TavStatus check_accessor(const State* state, const P*... p) {
  if (any_null(state, p...)) return tavStatusNullPointer;
  return traits<State>::is_filter(state) ? tavStatusOk : tavStatusBadContext;
}

template <class State> TAV_INLINE TavStatus check_free(const State* state) {
  if (!state) return tavStatusNullPointer;
  return traits<State>::runs(state) ? tavStatusOk : tavStatusBadContext;
}

}  // namespace tav::TAV_VARIANT::fir
