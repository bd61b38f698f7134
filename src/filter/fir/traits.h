// What tells one type of FIR state from another: its types, and the ids of the records that its functions take.
#pragma once
#include "filter/fir/samples.h"
#include "frame/checks.h"

namespace tav::TAV_VARIANT::fir {

// Accessors and Free take single-rate and multi-rate records, one-sample calls single-rate ones. Blocks and Free also
// take those of streams, which have no calls of their own for that.
template <class Tap, class Data, record_id Single, record_id Multi, record_id... Streams> struct state_traits {
  using tap                         = Tap;   // taps, sums and delay line
  using data                        = Data;  // what the functions filter
  static constexpr record_id single = Single;

  static bool is_single(const void* r) { return has_id<Single>(r); }
  static bool is_filter(const void* r) { return has_id<Single, Multi>(r); }
  static bool runs(const void* r) { return has_id<Single, Multi, Streams...>(r); }
};

template <class State> struct traits;

template <class State> using tap_of  = typename traits<State>::tap;
template <class State> using data_of = typename traits<State>::data;

}  // namespace tav::TAV_VARIANT::fir
