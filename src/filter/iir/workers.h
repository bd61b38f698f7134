// The calls that filter, for every structure and form: check, then run the structure that the state has. In place is
// out of place with dst for src.
//
// A mixed form works on blocks: the samples go into the history in the arithmetic type, are filtered there in place,
// and leave it through the output stage.
#pragma once
#include "filter/iir/accessors.h"
#include "filter/iir/input.h"
#include "filter/iir/output.h"
#include "frame/rounding.h"

namespace tav::TAV_VARIANT::iir {

template <class Structure, class State, class Stage>
void run_block(iir_record<arithmetic_of<State>>& r, const data_of<State>* src, data_of<State>* dst, size_t n,
               const Stage& stage) {
  widen(src, r.history, n);
  Structure::run(r, r.history, r.history, n);
  narrow(stage, r.history, dst, n);
  if constexpr (is_narrowed<State> && std::is_same_v<arithmetic_of<State>, Tav32f>) {
    const size_t cut = Structure::template cut_off<State>(r, n);
    for (size_t i = 0; i < cut; ++i) poke(dst + i, stage.cut_off(r.history[i]));
  }
}

template <class State, class Stage>
void run_mixed(State* state, const data_of<State>* src, data_of<State>* dst, size_t len, const Stage& stage) {
  with_structure(state, [&](auto structure) {
    for (size_t i = 0; i < len; i += block_samples) {
      const size_t left = len - i;
      run_block<decltype(structure), State>(opened(state), src + i, dst + i,
                                            left < block_samples ? left : block_samples, stage);
    }
  });
}

template <class State> TavStatus filter(const data_of<State>* src, data_of<State>* dst, int len, State* state) {
  if (const TavStatus bad = check_worker(state, len, src, dst)) return bad;
  if constexpr (is_mixed<State>)
    run_mixed(state, src, dst, size_t(len), output_stage<State>(0));
  else
    with_structure(state, [&](auto structure) { decltype(structure)::run(opened(state), src, dst, size_t(len)); });
  return tavStatusOk;
}

template <class State> TavStatus filter_in_place(data_of<State>* srcDst, int len, State* state) {
  return filter<State>(srcDst, srcDst, len, state);
}

template <class State>
TavStatus filter_scaled(const data_of<State>* src, data_of<State>* dst, int len, State* state, int scaleFactor) {
  static_assert(is_narrowed<State>);
  if (const TavStatus bad = check_worker(state, len, src, dst)) return bad;
  const round_to_nearest scope;
  run_mixed(state, src, dst, size_t(len), output_stage<State>(scaleFactor));
  return tavStatusOk;
}

template <class State>
TavStatus filter_scaled_in_place(data_of<State>* srcDst, int len, State* state, int scaleFactor) {
  return filter_scaled<State>(srcDst, srcDst, len, state, scaleFactor);
}

// One sample. Cascades in direct form 1 are refused.

template <class State> arithmetic_of<State> run_one(State* state, data_of<State> val) {
  using A = arithmetic_of<State>;
  return with_structure(state,
                        [&](auto structure) { return decltype(structure)::one(opened(state), widened<A>(val)); });
}

template <class State> TavStatus filter_one(data_of<State> val, data_of<State>* dst, State* state) {
  if (const TavStatus bad = check_state_but_df1(state, dst)) return bad;
  const auto y = run_one(state, val);
  if constexpr (is_mixed<State>)
    poke(dst, narrowed<data_of<State>>(output_stage<State>(0), y));
  else
    poke(dst, y);
  return tavStatusOk;
}

template <class State>
TavStatus filter_one_scaled(data_of<State> val, data_of<State>* dst, State* state, int scaleFactor) {
  static_assert(is_narrowed<State>);
  if (const TavStatus bad = check_state_but_df1(state, dst)) return bad;
  const round_to_nearest scope;
  poke(dst, narrowed<data_of<State>>(output_stage<State>(scaleFactor), run_one(state, val)));
  return tavStatusOk;
}

}  // namespace tav::TAV_VARIANT::iir
