// The order of checks of the Direct FIR calls, to be named in TAV_FAULTS rows: data, the length, the taps, their
// number, the delay line and its index.
#pragma once
#include "filter/fir_faults.h"

namespace test {

// Data pointers from argument First to the one before Behind, then the length if there is one, the taps, their number,
// an exponent if there is one, and the two of the delay line. Ranged: the index is tested last; random bytes are none.
template <size_t First, size_t Behind, bool Length, bool Exponent, bool Ranged = false>
void fir_direct(const tested& f) {
  constexpr size_t taps = Behind + Length, number = taps + 1, line = number + 1 + Exponent;
  faults           bad(f);
  for (size_t data = First; data < Behind; ++data) bad.null(data);
  if (Length) bad.below_one(Behind);
  bad.null(taps).below_one(number, tavStatusBadFirLength).null(line).null(line + 1);
  if (Ranged) bad.add("any index", tavStatusBadDlyIndex);
  bad.expect();
}

}  // namespace test
