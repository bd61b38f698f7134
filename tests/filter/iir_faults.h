// The orders of checks of the IIR filters, to be named in rows. What is no record is refused last, so that it needs no
// change of the arguments: they show to random bytes.
#pragma once
#include "harness/faults.h"

namespace test::iir_faults {

inline faults& add_no_record(faults& bad) { return bad.add("no record", tavStatusBadContext); }

// Pointers that may be null are not in the list.
template <size_t... Null> faults nulls(const tested& f) {
  faults bad(f);
  (bad.null(Null), ...);
  return bad;
}

inline void size_query(const tested& f) { nulls<1>(f).below_one(0, tavStatusBadIirOrder).expect(); }
inline void init(const tested& f) { nulls<0, 1, 4>(f).below_one(2, tavStatusBadIirOrder).expect(); }
inline void init_alloc(const tested& f) { nulls<0, 1>(f).below_one(2, tavStatusBadIirOrder).expect(); }
inline void init_scaled_taps(const tested& f) { nulls<0, 1, 5>(f).below_one(2, tavStatusBadIirOrder).expect(); }

template <size_t... Null> void pointers_then_record(const tested& f) {
  faults bad = nulls<Null...>(f);
  add_no_record(bad).expect();
}

inline constexpr auto free_state = pointers_then_record<0>;
inline constexpr auto set_delay  = free_state;  // without an array the delay line is cleared
inline constexpr auto get_delay  = pointers_then_record<0, 1>;
inline constexpr auto set_taps   = get_delay;
inline constexpr auto one        = pointers_then_record<1, 2>;

template <size_t Len> void pointers_length_record(const tested& f) {
  add_no_record(faults(f).null_pointers().below_one(Len)).expect();
}

inline constexpr auto block    = pointers_length_record<2>;
inline constexpr auto in_place = pointers_length_record<1>;

// Taps without a state, of the order 2 or less that the arguments tell.
inline constexpr Tav16s good_taps[] = {1, 2, 3, 4, 5, 6}, bad_scales[] = {1, 2, -1, -1, 5, 6};

template <size_t Order, size_t Taps, size_t... Len> void direct_order(const tested& f) {
  faults bad(f);
  bad.below_one(Order, tavStatusBadIirOrder).null_pointers();
  bad.add("negative exponent", tavStatusBadTapScale, [](arguments& a) { a.set(Taps, bad_scales); });
  (bad.add("length 0", tavStatusBadSize, [](arguments& a) { a.set(Taps, good_taps), a.set(Len, 0); }), ...);
  bad.expect();
}

inline constexpr auto direct              = direct_order<4, 3, 2>;
inline constexpr auto direct_in_place     = direct_order<3, 2, 1>;
inline constexpr auto one_direct          = direct_order<3, 2>;
inline constexpr auto one_direct_in_place = direct_order<2, 1>;

}  // namespace test::iir_faults
