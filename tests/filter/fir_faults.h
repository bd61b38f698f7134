// The orders of checks of the FIR filters, to be named in TAV_FAULTS rows. A record among the arguments holds random
// bytes unless a fault says otherwise: its id is wrong in every row, which shows that it is tested last.
#pragma once
#include "harness/faults.h"

namespace test {

inline faults& add_wrong_id(faults& bad) { return bad.add("wrong id", tavStatusBadContext); }

// Size query: the size, the number of taps.
inline void fir_size_in_order(const tested& f) { faults(f).null(1).below_one(0, tavStatusBadFirLength).expect(); }

// Set-up: the pointers in `Nulls`, the number of taps. The delay line may be null.
template <size_t... Nulls> void fir_set_up(const tested& f) {
  faults bad(f);
  (bad.null(Nulls), ...);
  bad.below_one(2, tavStatusBadFirLength).expect();
}

// Blocks: pointers, the length at From_end places from the last argument, the id.
template <size_t From_end> void fir_block(const tested& f) {
  add_wrong_id(faults(f).null_pointers().below_one(f.count - 1 - From_end)).expect();
}

// Everything else: pointers, the id.
inline void fir_pointers_then_id(const tested& f) { add_wrong_id(faults(f).null_pointers()).expect(); }

// The same, but the second pointer may be null.
inline void fir_state_then_id(const tested& f) { add_wrong_id(faults(f).null(0)).expect(); }

}  // namespace test
