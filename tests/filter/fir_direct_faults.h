// The order of checks of the Direct FIR calls, to be named in TAV_FAULTS rows: data, the length, the taps, their
// number, the delay line and its index.
#pragma once
#include "filter/fir_faults.h"

namespace test {

// Data pointers from argument First to the one before Behind, then the length if there is one, the taps, their number,
// an exponent if there is one, and the two of the delay line. Ranged: the index is tested last; random bytes are none.
template <size_t First, size_t Behind, bool Length, bool Exponent, bool Ranged = false>
constexpr auto fir_direct = []<class... P>(TavStatus (*function)(P...), const auto& each) {
  constexpr size_t         taps = Behind + Length, number = taps + 1, line = number + 1 + Exponent;
  std::vector<fault<P...>> faults;
  add_null<First>(faults);
  if constexpr (Behind - First == 2) add_null<First + 1>(faults);
  if constexpr (Length) add_below_one<Behind>(faults);
  add_null<taps>(faults);
  add_bad_taps_length<number>(faults);
  add_null<line>(faults);
  add_null<line + 1>(faults);
  if constexpr (Ranged) faults.push_back({"any index", tavStatusBadDlyIndex, [](arguments<P...>&) {}});
  each([&] { expect_faults(function, faults); });
};

}  // namespace test
