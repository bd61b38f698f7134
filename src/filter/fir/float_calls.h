// The calls on float states: taps, blocks and single samples.
#pragma once
#include "filter/fir/filter.h"
#include "filter/fir/set_up.h"
#include "filter/fir/state_calls.h"

namespace tav::TAV_VARIANT::fir {

template <class State> TavStatus get_taps(const State* state, tap_of<State>* taps) {
  if (const TavStatus bad = check_accessor(state, taps)) return bad;
  const auto& r = opened(state);
  for (int k = 0; k < r.taps_len; ++k) poke(taps + k, r.reversed[r.taps_len - 1 - k]);
  return tavStatusOk;
}

// As integers: those which are none are cut off.
template <class State> TavStatus get_integer_taps(const State* state, Tav32s* taps) {
  constexpr int toward_zero = 0;
  if (const TavStatus bad = check_accessor(state, taps)) return bad;
  const auto& r = opened(state);
  for (int k = 0; k < r.taps_len; ++k)
    forward<&::tavsConvert_64f32s_Sfs>(r.reversed + (r.taps_len - 1 - k), taps + k, 1, toward_zero, 0);
  return tavStatusOk;
}

template <class State, class Taps = tap_of<State>> TavStatus set_taps_of(const Taps* taps, State* state) {
  if (const TavStatus bad = check_accessor(state, taps)) return bad;
  return set_taps(opened(state), taps);
}

template <class State> TavStatus block(const data_of<State>* src, data_of<State>* dst, int len, State* state) {
  if (const TavStatus bad = check_block(state, len, src, dst)) return bad;
  return filter(opened(state), src, dst, size_t(len), unscaled{});
}
template <class State> TavStatus block_in_place(data_of<State>* srcDst, int len, State* state) {
  return block<State>(srcDst, srcDst, len, state);
}

template <class State>
TavStatus block_scaled(const data_of<State>* src, data_of<State>* dst, int len, State* state, int scaleFactor) {
  if (const TavStatus bad = check_block(state, len, src, dst)) return bad;
  return filter(opened(state), src, dst, size_t(len), scaled_by{scaleFactor});
}
template <class State> TavStatus block_in_place_scaled(data_of<State>* srcDst, int len, State* state, int scaleFactor) {
  return block_scaled<State>(srcDst, srcDst, len, state, scaleFactor);
}

template <class State, class Output>
TavStatus one_through(data_of<State> val, data_of<State>* dst, State* state, const Output& output) {
  if (const TavStatus bad = check_one(state, dst)) return bad;
  auto& r = opened(state);
  r.delay.push(converted<tap_of<State>>(val));
  const tap_of<State> result = newest_output(r);
  output(&result, dst, 1);
  return tavStatusOk;
}
template <class State> TavStatus one(data_of<State> val, data_of<State>* dst, State* state) {
  return one_through(val, dst, state, unscaled{});
}
template <class State> TavStatus one_scaled(data_of<State> val, data_of<State>* dst, State* state, int scaleFactor) {
  return one_through(val, dst, state, scaled_by{scaleFactor});
}

}  // namespace tav::TAV_VARIANT::fir
