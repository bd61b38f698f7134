// The orders of checks of the IIR filters, to be named in rows. What is no record is refused last, so that it needs no
// change of the arguments: they show to random bytes.
#pragma once
#include "harness/faults.h"

namespace test::iir_faults {

template <size_t I, class... P> void add_order(std::vector<fault<P...>>& faults) {
  faults.push_back({"order 0", tavStatusBadIirOrder, [](arguments<P...>& a) { a.template set<I>(0); }});
  faults.push_back({"order -1", tavStatusBadIirOrder, [](arguments<P...>& a) { a.template set<I>(-1); }});
  faults.push_back({"lowest order", tavStatusBadIirOrder,
                    [](arguments<P...>& a) { a.template set<I>(std::numeric_limits<int>::min()); }});
}

template <size_t I, class... P> void add_null(std::vector<fault<P...>>& faults) {
  faults.push_back({"argument " + std::to_string(I) + " null", tavStatusNullPointer,
                    [](arguments<P...>& a) { a.template spoil<I>(); }});
}

template <class... P> void add_no_record(std::vector<fault<P...>>& faults) {
  faults.push_back({"no record", tavStatusBadContext, [](arguments<P...>&) {}});
}

template <size_t... Null> struct nulls {};

// Pointers that may be null are not in the list.
template <size_t Order, class Build, class... P, size_t... Null>
void pointers_then_order(TavStatus (*function)(P...), const Build& each, nulls<Null...>) {
  std::vector<fault<P...>> faults;
  (add_null<Null>(faults), ...);
  add_order<Order>(faults);
  each([&] { expect_faults(function, faults); });
}

inline constexpr auto size_query       = [](auto f, auto each) { pointers_then_order<0>(f, each, nulls<1>{}); };
inline constexpr auto init             = [](auto f, auto each) { pointers_then_order<2>(f, each, nulls<0, 1, 4>{}); };
inline constexpr auto init_alloc       = [](auto f, auto each) { pointers_then_order<2>(f, each, nulls<0, 1>{}); };
inline constexpr auto init_scaled_taps = [](auto f, auto each) { pointers_then_order<2>(f, each, nulls<0, 1, 5>{}); };

template <class Build, class... P, size_t... Null>
void pointers_then_record(TavStatus (*function)(P...), const Build& each, nulls<Null...>) {
  std::vector<fault<P...>> faults;
  (add_null<Null>(faults), ...);
  add_no_record(faults);
  each([&] { expect_faults(function, faults); });
}

inline constexpr auto free_state = [](auto f, auto each) { pointers_then_record(f, each, nulls<0>{}); };
inline constexpr auto set_delay  = free_state;  // without an array the delay line is cleared
inline constexpr auto get_delay  = [](auto f, auto each) { pointers_then_record(f, each, nulls<0, 1>{}); };
inline constexpr auto set_taps   = get_delay;
inline constexpr auto one        = [](auto f, auto each) { pointers_then_record(f, each, nulls<1, 2>{}); };

template <size_t Len, class Build, class... P>
void pointers_length_record(TavStatus (*function)(P...), const Build& each) {
  std::vector<fault<P...>> faults;
  add_null_pointers(faults);
  add_below_one<Len>(faults);
  add_no_record(faults);
  each([&] { expect_faults(function, faults); });
}

inline constexpr auto block    = [](auto f, auto each) { pointers_length_record<2>(f, each); };
inline constexpr auto in_place = [](auto f, auto each) { pointers_length_record<1>(f, each); };

// Taps without a state, of the order 2 or less that the arguments tell.
inline constexpr Tav16s good_taps[] = {1, 2, 3, 4, 5, 6}, bad_scales[] = {1, 2, -1, -1, 5, 6};

template <size_t Order, size_t Taps, int Len, class Build, class... P>
void direct_order(TavStatus (*function)(P...), const Build& each) {
  std::vector<fault<P...>> faults;
  add_order<Order>(faults);
  add_null_pointers(faults);
  faults.push_back(
      {"negative exponent", tavStatusBadTapScale, [](arguments<P...>& a) { a.template set<Taps>(bad_scales); }});
  if constexpr (Len >= 0) {
    faults.push_back({"length 0", tavStatusBadSize,
                      [](arguments<P...>& a) { a.template set<Taps>(good_taps), a.template set<size_t(Len)>(0); }});
  }
  each([&] { expect_faults(function, faults); });
}

inline constexpr auto direct              = [](auto f, auto each) { direct_order<4, 3, 2>(f, each); };
inline constexpr auto direct_in_place     = [](auto f, auto each) { direct_order<3, 2, 1>(f, each); };
inline constexpr auto one_direct          = [](auto f, auto each) { direct_order<3, 2, -1>(f, each); };
inline constexpr auto one_direct_in_place = [](auto f, auto each) { direct_order<2, 1, -1>(f, each); };

}  // namespace test::iir_faults
