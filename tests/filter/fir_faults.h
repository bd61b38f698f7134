// The orders of checks of the FIR filters, to be named in TAV_FAULTS rows. A record among the arguments holds random
// bytes unless a fault says otherwise: its id is wrong in every row, which shows that it is tested last.
#pragma once
#include "harness/faults.h"

namespace test {

template <class... P> void add_wrong_id(std::vector<fault<P...>>& faults) {
  faults.push_back({"wrong id", tavStatusBadContext, [](arguments<P...>&) {}});
}

template <size_t I, class... P> void add_bad_taps_length(std::vector<fault<P...>>& faults) {
  faults.push_back({"no taps", tavStatusBadFirLength, [](arguments<P...>& a) { a.template set<I>(0); }});
  faults.push_back({"-1 taps", tavStatusBadFirLength, [](arguments<P...>& a) { a.template set<I>(-1); }});
  faults.push_back({"lowest number of taps", tavStatusBadFirLength,
                    [](arguments<P...>& a) { a.template set<I>(std::numeric_limits<int>::min()); }});
}

template <size_t I, class... P> void add_null(std::vector<fault<P...>>& faults) {
  faults.push_back({"argument " + std::to_string(I) + " null", tavStatusNullPointer,
                    [](arguments<P...>& a) { a.template spoil<I>(); }});
}

// Size query: the size, the number of taps.
constexpr auto fir_size_in_order = []<class... P>(TavStatus (*function)(P...), const auto& each) {
  std::vector<fault<P...>> faults;
  add_null<1>(faults);
  add_bad_taps_length<0>(faults);
  each([&] { expect_faults(function, faults); });
};

// Set-up: the pointers in `Nulls`, the number of taps. The delay line may be null.
template <size_t... Nulls>
constexpr auto fir_set_up = []<class... P>(TavStatus (*function)(P...), const auto& each) {
  std::vector<fault<P...>> faults;
  (add_null<Nulls>(faults), ...);
  add_bad_taps_length<2>(faults);
  each([&] { expect_faults(function, faults); });
};

// Blocks: pointers, the length at From_end places from the last argument, the id.
template <size_t From_end>
constexpr auto fir_block = []<class... P>(TavStatus (*function)(P...), const auto& each) {
  std::vector<fault<P...>> faults;
  add_null_pointers(faults);
  add_below_one<sizeof...(P) - 1 - From_end>(faults);
  add_wrong_id(faults);
  each([&] { expect_faults(function, faults); });
};

// Everything else: pointers, the id.
constexpr auto fir_pointers_then_id = []<class... P>(TavStatus (*function)(P...), const auto& each) {
  std::vector<fault<P...>> faults;
  add_null_pointers(faults);
  add_wrong_id(faults);
  each([&] { expect_faults(function, faults); });
};

// The same, but the second pointer may be null.
constexpr auto fir_state_then_id = []<class... P>(TavStatus (*function)(P...), const auto& each) {
  std::vector<fault<P...>> faults;
  add_null<0>(faults);
  add_wrong_id(faults);
  each([&] { expect_faults(function, faults); });
};

}  // namespace test
