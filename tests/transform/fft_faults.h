// The orders of checks of the Fourier transforms, as rows of faults.
#pragma once
#include "harness/faults.h"

namespace test {

// With one of the later faults the context is live: its first word says so, and nothing else of a
// record is read before the data is checked.
template <uint32_t Id> struct records {
  static inline uint32_t live[64] = {Id}, dead[64] = {}, other[64] = {Id == 4 ? 5u : 4u};
};

template <size_t I, class... P> using record_at = std::tuple_element_t<I, std::tuple<P...>>;

template <uint32_t Id, size_t Ctx, class... P> void add_bad_contexts(std::vector<fault<P...>>& faults) {
  faults.push_back({"no context", tavStatusNullPointer, [](arguments<P...>& a) { a.template spoil<Ctx>(); }});
  faults.push_back({"dead context", tavStatusBadContext, [](arguments<P...>& a) {
                      a.template set<Ctx>(reinterpret_cast<record_at<Ctx, P...>>(records<Id>::dead));
                    }});
  faults.push_back({"another context", tavStatusBadContext, [](arguments<P...>& a) {
                      a.template set<Ctx>(reinterpret_cast<record_at<Ctx, P...>>(records<Id>::other));
                    }});
}

// The first `Data` arguments but the context, none of which may be null.
template <uint32_t Id, size_t Ctx, size_t Data, class... P> void add_null_data(std::vector<fault<P...>>& faults) {
  [&]<size_t... I>(std::index_sequence<I...>) {
    const auto add = [&]<size_t K>() {
      if constexpr (K != Ctx)
        faults.push_back({"argument " + std::to_string(K) + " null", tavStatusNullPointer, [](arguments<P...>& a) {
                            a.template set<Ctx>(reinterpret_cast<record_at<Ctx, P...>>(records<Id>::live));
                            a.template spoil<K>();
                          }});
    };
    (add.template operator()<I>(), ...);
  }
  (std::make_index_sequence<Data>{});
}

template <uint32_t Id, size_t Ctx, size_t Data>
inline constexpr auto context_then_data = []<class... P>(TavStatus (*function)(P...), const auto& each) {
  std::vector<fault<P...>> faults;
  add_bad_contexts<Id, Ctx>(faults);
  add_null_data<Id, Ctx, Data>(faults);
  each([&] { expect_faults(function, faults); });
};

inline constexpr auto sizes_in_order = []<class... P>(TavStatus (*function)(P...), const auto& each) {
  using a = arguments<P...>;
  const std::vector<fault<P...>> faults{{"order -1", tavStatusBadOrder, [](a& x) { x.template set<0>(-1); }},
                                        {"order 31", tavStatusBadOrder, [](a& x) { x.template set<0>(31); }},
                                        {"no specSize", tavStatusNullPointer, [](a& x) { x.template spoil<3>(); }},
                                        {"no initSize", tavStatusNullPointer, [](a& x) { x.template spoil<4>(); }},
                                        {"no workSize", tavStatusNullPointer, [](a& x) { x.template spoil<5>(); }},
                                        {"flag 3", tavStatusBadFlag, [](a& x) { x.template set<1>(3); }},
                                        {"order 30", tavStatusBadOrder, [](a& x) { x.template set<0>(30); }}};
  each([&] { expect_faults(function, faults); });
};

// `Above` is an order that is too great at first sight. A bad flag is not a row: it leaves its mark in the memory.
template <int Above>
inline constexpr auto init_in_order = []<class... P>(TavStatus (*function)(P...), const auto& each) {
  using a = arguments<P...>;
  const std::vector<fault<P...>> faults{{"no ctx", tavStatusNullPointer, [](a& x) { x.template spoil<0>(); }},
                                        {"order -1", tavStatusBadOrder, [](a& x) { x.template set<1>(-1); }},
                                        {"order too great", tavStatusBadOrder, [](a& x) { x.template set<1>(Above); }},
                                        {"no mem", tavStatusNullPointer, [](a& x) { x.template spoil<4>(); }}};
  each([&] { expect_faults(function, faults); });
};

inline constexpr auto init_alloc_in_order = []<class... P>(TavStatus (*function)(P...), const auto& each) {
  using a = arguments<P...>;
  const std::vector<fault<P...>> faults{{"no ctx", tavStatusNullPointer, [](a& x) { x.template spoil<0>(); }},
                                        {"order 31", tavStatusBadOrder, [](a& x) { x.template set<1>(31); }},
                                        {"flag 3", tavStatusBadFlag, [](a& x) { x.template set<2>(3); }},
                                        {"order 30", tavStatusBadOrder, [](a& x) { x.template set<1>(30); }}};
  each([&] { expect_faults(function, faults); });
};

}  // namespace test
