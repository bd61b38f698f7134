// The structures of the filters, by the id of a record. Set-up, accessors and workers are written once over them.
//
// A structure is a type without data whose static members are
//
//   id<State>                  the id of its records
//   tap_count(n)               taps on the interface for an order, or a number of sections, of n
//   lay_out(r, block, n, m)    the tables of record r, taken from an iir_block; m: the form is mixed
//   slack<A>                   bytes of a state behind its tables, alignment included
//   taps_of(r)                 tap_count of a record that is set up
//   set_taps(r, taps)          divides, makes the tables; tavStatusDivideByZero
//   run(r, src, dst, n)        n samples; dst may be src. In mixed forms n is at most block_samples, and src is dst
//   one(r, x)                  one sample (no calls come to a cascade in direct form 1)
//   cut_off<State>(r, n)       how many outputs at the start of a block of n are cut off instead of rounded: 0 or 2 (in
//                              real singles; may be 0 without looking elsewhere)
//
// To add one, write it in a header of its own and give with_structure() its line.
#pragma once
#include "filter/iir/arbitrary_order.h"
#include "filter/iir/biquads.h"
#include "filter/iir/traits.h"

namespace tav::TAV_VARIANT::iir {

// run(structure) with the structure of a record whose id has been tested.
template <class State, class Run> auto with_structure(const State* state, const Run& run) {
  if (has_id<form<State>::biquads>(state)) return run(biquads{});
  if constexpr (has_df1<State>)
    if (has_id<form<State>::df1>(state)) return run(biquads_df1{});
  return run(arbitrary_order{});
}

}  // namespace tav::TAV_VARIANT::iir
