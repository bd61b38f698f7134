// The calls on integer states.
#pragma once
#include "filter/fir/state_calls.h"
#include "filter/fir/word_filter.h"
#include "filter/fir/word_taps.h"

namespace tav::TAV_VARIANT::fir {

template <class State> using float_taps = std::conditional_t<is_complex<tap_of<State>>, Tav32fc, Tav32f>;

template <class State> TavStatus get_words_size(int tapsLen, int* size) {
  if (const TavStatus bad = check_set_up<tavStatusBadFirLength>(tapsLen, size)) return bad;
  *size = int(words_layout<tap_of<State>, data_of<State>>(uint64_t(tapsLen)).total());
  return tavStatusOk;
}

// set_taps(record) fills the taps in.
template <class State, class SetTaps>
State* build_words(void* block, int tapsLen, const data_of<State>* dly, origin from, const SetTaps& set_taps) {
  auto* const r = static_cast<typename traits<State>::record*>(block);
  lay_out(r, tapsLen, from);
  set_taps(*r);
  r->delay.set(dly);
  r->id = traits<State>::single;
  return reinterpret_cast<State*>(r);
}

inline constexpr uintptr_t words_boundary = 16;

// A block from the allocator starts on a boundary.
template <class State, class SetTaps>
TavStatus allocate_words(State** state, int tapsLen, const data_of<State>* dly, const SetTaps& set_taps) {
  const uint64_t total = words_layout<tap_of<State>, data_of<State>>(uint64_t(tapsLen)).total();
  if (total > INT32_MAX) return tavStatusNoMemory;
  return allocate_record(state, size_t(total), [&](void* block) {
    build_words<State>(block, tapsLen, dly, origin::allocated, set_taps);
    return tavStatusOk;
  });
}

template <class State>
TavStatus init_words(State** state, const tap_of<State>* taps, int tapsLen, int tapsFactor, const data_of<State>* dly,
                     Tav8u* buf) {
  if (const TavStatus bad = check_set_up<tavStatusBadFirLength>(tapsLen, state, taps, buf)) return bad;
  *state = build_words<State>(align_up<words_boundary>(buf), tapsLen, dly, origin::caller,
                              [&](auto& r) { set_integer_taps(r, taps, tapsFactor); });
  return tavStatusOk;
}
template <class State>
TavStatus init_alloc_words(State** state, const tap_of<State>* taps, int tapsLen, int tapsFactor,
                           const data_of<State>* dly) {
  if (const TavStatus bad = check_set_up<tavStatusBadFirLength>(tapsLen, state, taps)) return bad;
  return allocate_words(state, tapsLen, dly, [&](auto& r) { set_integer_taps(r, taps, tapsFactor); });
}

template <class State>
TavStatus init_words_of_floats(State** state, const float_taps<State>* taps, int tapsLen, const data_of<State>* dly,
                               Tav8u* buf) {
  if (const TavStatus bad = check_set_up<tavStatusBadFirLength>(tapsLen, state, taps, buf)) return bad;
  *state = build_words<State>(align_up<words_boundary>(buf), tapsLen, dly, origin::caller,
                              [&](auto& r) { set_float_taps(r, taps); });
  return tavStatusOk;
}
template <class State>
TavStatus init_alloc_words_of_floats(State** state, const float_taps<State>* taps, int tapsLen,
                                     const data_of<State>* dly) {
  if (const TavStatus bad = check_set_up<tavStatusBadFirLength>(tapsLen, state, taps)) return bad;
  return allocate_words(state, tapsLen, dly, [&](auto& r) { set_float_taps(r, taps); });
}

template <class State> TavStatus get_word_taps(const State* state, tap_of<State>* taps, int* tapsFactor) {
  if (const TavStatus bad = check_accessor(state, taps, tapsFactor)) return bad;
  const auto& r = opened(state);
  shared::copy_bytes(r.taps, taps, size_t(r.taps_len) * sizeof(tap_of<State>));
  poke(tapsFactor, r.scale);
  return tavStatusOk;
}
template <class State> TavStatus set_word_taps(const tap_of<State>* taps, State* state, int tapsFactor) {
  if (const TavStatus bad = check_accessor(state, taps)) return bad;
  set_integer_taps(opened(state), taps, tapsFactor);
  return tavStatusOk;
}

template <class State> TavStatus get_word_taps_as_floats(const State* state, float_taps<State>* taps) {
  if (const TavStatus bad = check_accessor(state, taps)) return bad;
  const auto&  r     = opened(state);
  const Tav64f scale = power_of_two(r.scale);
  for (size_t i = 0; i < size_t(r.taps_len) * parts<tap_of<State>>; ++i)
    poke(parts_of(taps) + i, Tav32f(Tav64f(parts_of(r.taps)[i]) * scale));
  return tavStatusOk;
}
template <class State> TavStatus set_word_taps_from_floats(const float_taps<State>* taps, State* state) {
  if (const TavStatus bad = check_accessor(state, taps)) return bad;
  set_float_taps(opened(state), taps);
  return tavStatusOk;
}

template <class State>
TavStatus words_block(const data_of<State>* src, data_of<State>* dst, int len, State* state, int scaleFactor) {
  if (const TavStatus bad = check_block(state, len, src, dst)) return bad;
  auto&            r = opened(state);
  const word_stage stage(r.scale, scaleFactor);
  if (src == dst)
    filter_words_in_place(r, dst, size_t(len), stage);
  else
    filter_words(r, src, dst, size_t(len), stage);
  return tavStatusOk;
}
template <class State> TavStatus words_in_place(data_of<State>* srcDst, int len, State* state, int scaleFactor) {
  return words_block<State>(srcDst, srcDst, len, state, scaleFactor);
}
template <class State> TavStatus words_one(data_of<State> val, data_of<State>* dst, State* state, int scaleFactor) {
  if (const TavStatus bad = check_one(state, dst)) return bad;
  auto& r = opened(state);
  filter_word(r, val, dst, word_stage(r.scale, scaleFactor));
  return tavStatusOk;
}

}  // namespace tav::TAV_VARIANT::fir
