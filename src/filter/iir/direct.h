// What the filters without a state share: taps of 16 bits with a binary exponent.
#pragma once
#include "filter/iir/set_up.h"
#include "vector/to_integer.h"

namespace tav::TAV_VARIANT::iir {

// Integers as value * 2^-exponent and back.
class direct_exponent {
 public:
  // Past `enough` every tap is 0 in single precision, and every other value of a delay line is beyond 32 bits.
  explicit direct_exponent(int exponent) : exponent_(exponent < enough ? exponent : enough) {}

  Tav32f value(Tav32s v) const { return Tav32f(v * power_of_two_minus<Tav64f>(exponent_)); }  // rounded once

  // Half away from 0, saturated.
  Tav32s nearest_integer(Tav32f v) const {
    const double x = v * power_of_two_minus<Tav64f>(-exponent_);
    return saturated_32s(x < 0 ? x - 0.5 : x + 0.5);
  }
  Tav32s cut_off_integer(Tav32f v) const { return saturated_32s(v * power_of_two_minus<Tav64f>(-exponent_)); }

 private:
  static constexpr int enough = 1000;

  static Tav32s saturated_32s(double x) {  // and cut off; the limit for a NaN
    return x >= 2147483647.0 ? INT32_MAX : x > -2147483648.0 ? Tav32s(x) : INT32_MIN;
  }

  int exponent_;
};

inline Tav32u wrapped_product(Tav32s a, Tav32s b) { return Tav32u(a) * Tav32u(b); }

// (v + (v >> s & 1) + 2^(s-1) - 1) >> s, all but the shift modulo 2^32. Without a shift the power is 2^31, on purpose.
inline Tav32s direct_output(Tav32u v, unsigned s) {
  const Tav32u odd = Tav32u(Tav32s(v) >> s) & 1;
  return Tav32s(v + odd + (Tav32u(1) << ((s + 31) & 31)) - 1) >> s;
}

// run(state) with a state for the call: of one structure, for 16-bit samples and taps in singles, which
// store_taps(array) writes. Both lie in one allocation.
template <class Structure, class Store, class Run>
TavStatus with_direct_state(int n, const Store& store_taps, const Run& run) {
  using State             = IIRState32f_16s;
  const uint64_t tap_room = Structure::tap_count(unsigned(n)) * sizeof(Tav32f),
                 bytes    = bytes_of_state<Structure, State>(n) + tap_room;
  if (bytes > uint64_t(INT32_MAX)) return tavStatusNoMemory;
  Tav8u* const block = static_cast<Tav8u*>(allocate_bytes(size_t(bytes)));
  if (!block) return tavStatusNoMemory;

  Tav32f* const taps = reinterpret_cast<Tav32f*>(block);
  store_taps(taps);
  State*          state;
  const TavStatus status = build_state<Structure>(&state, taps, n, nullptr, block + tap_room, origin::caller);
  if (status == tavStatusOk) run(state);
  release(block);
  return status;
}

}  // namespace tav::TAV_VARIANT::iir
