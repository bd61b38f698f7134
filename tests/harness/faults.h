// The status rows: for each export, bad arguments alone and in pairs, the status each call must give, and the promise
// that it writes nothing. One TAV_FAULTS row an export; a test demands that every export of the list has one.
//
//   TAV_FAULTS(Copy_8u, pointers_then_length)
#pragma once
#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <string>
#include <tuple>

#include "harness/builds.h"
#include "harness/data.h"

namespace test {

struct fault_row {
  const char* name;
  void (*run)();
};

std::vector<fault_row>& fault_rows();

struct fault_registration {
  fault_registration(const char* name, void (*run)()) { fault_rows().push_back({name, run}); }
};

#define TAV_FAULTS(name, ...)                             \
  static const test::fault_registration faults_of_##name( \
      "tavs" #name, [] { __VA_ARGS__(&::tavs##name, [](auto check) { test::each_build<&::tavs##name>(check); }); });

// The arguments of a call: pointers show to blocks of random bytes, which must survive; scalars are `scalar`.
template <class... P> class arguments {
 public:
  static constexpr size_t count = sizeof...(P);

  arguments(source_of_data& data, int scalar) {
    for (auto& b : blocks_) b = data.values<uint8_t>(b.size()), kept_ = blocks_;
    [&]<size_t... I>(std::index_sequence<I...>) { (reset<I>(scalar), ...); }
    (std::index_sequence_for<P...>{});
  }

  template <size_t I> static constexpr bool is_pointer = std::is_pointer_v<std::tuple_element_t<I, std::tuple<P...>>>;

  template <size_t I> void          spoil() { std::get<I>(values_) = {}; }
  template <size_t I, class V> void set(V v) { std::get<I>(values_) = std::tuple_element_t<I, std::tuple<P...>>(v); }

  template <class R> R call(R (*function)(P...)) const {
    return std::apply([&](P... p) { return checked_call(function, p...); }, values_);
  }
  bool untouched() const { return blocks_ == kept_; }

 private:
  template <size_t I> void reset(int scalar) {
    using T = std::tuple_element_t<I, std::tuple<P...>>;
    if constexpr (std::is_pointer_v<T>)
      std::get<I>(values_) = reinterpret_cast<T>(blocks_[I].data());
    else if constexpr (std::is_arithmetic_v<T>)
      std::get<I>(values_) = T(scalar);
    else
      std::get<I>(values_) = T{};
  }

  using block                      = std::vector<uint8_t>;
  std::array<block, count> blocks_ = filled(), kept_;
  std::tuple<P...>         values_;

  static std::array<block, count> filled() {
    std::array<block, count> all;
    for (auto& b : all) b.resize(256);
    return all;
  }
};

// A change of the arguments that is a fault, and what it must give.
template <class... P> struct fault {
  std::string what;
  TavStatus   status;
  void (*apply)(arguments<P...>&);
};

template <class... P> void expect_faults(TavStatus (*function)(P...), const std::vector<fault<P...>>& faults) {
  source_of_data data(7);
  const auto     expect = [&](const std::string& what, TavStatus status, auto... applied) {
    arguments<P...> a(data, 2);
    (applied(a), ...);
    EXPECT_EQ(a.call(function), status) << what;
    EXPECT_TRUE(a.untouched()) << what << ": something was written";
  };
  for (size_t i = 0; i < faults.size(); ++i) {
    expect(faults[i].what, faults[i].status, faults[i].apply);
    for (size_t j = i + 1; j < faults.size(); ++j)  // of two faults the earlier row wins
      expect(faults[i].what + " and " + faults[j].what, faults[i].status, faults[j].apply, faults[i].apply);
  }
}

template <class... P> void add_null_pointers(std::vector<fault<P...>>& faults) {
  [&]<size_t... I>(std::index_sequence<I...>) {
    const auto add = [&]<size_t K>() {
      if constexpr (arguments<P...>::template is_pointer<K>)
        faults.push_back({"argument " + std::to_string(K) + " null", tavStatusNullPointer,
                          [](arguments<P...>& a) { a.template spoil<K>(); }});
    };
    (add.template operator()<I>(), ...);
  }
  (std::index_sequence_for<P...>{});
}

template <size_t I, class... P> void add_below_one(std::vector<fault<P...>>& faults) {
  faults.push_back({"length 0", tavStatusBadSize, [](arguments<P...>& a) { a.template set<I>(0); }});
  faults.push_back({"length -1", tavStatusBadSize, [](arguments<P...>& a) { a.template set<I>(-1); }});
  faults.push_back({"lowest length", tavStatusBadSize,
                    [](arguments<P...>& a) { a.template set<I>(std::numeric_limits<int>::min()); }});
}

template <size_t I, class... P> void add_negative(std::vector<fault<P...>>& faults) {
  faults.push_back({"argument " + std::to_string(I) + " is -1", tavStatusBadSize,
                    [](arguments<P...>& a) { a.template set<I>(-1); }});
}

// The orders, to be named in rows. The length is the argument at From_end places from the last one.
template <size_t From_end, class Build, class... P>
void pointers_then_length_at(TavStatus (*function)(P...), const Build& each) {
  std::vector<fault<P...>> faults;
  add_null_pointers(faults);
  add_below_one<sizeof...(P) - 1 - From_end>(faults);
  each([&] { expect_faults(function, faults); });
}

template <size_t From_end, class Build, class... P>
void length_then_pointers_at(TavStatus (*function)(P...), const Build& each) {
  std::vector<fault<P...>> faults;
  add_below_one<sizeof...(P) - 1 - From_end>(faults);
  add_null_pointers(faults);
  each([&] { expect_faults(function, faults); });
}

// Of a length without a sign only 0 is bad.
template <size_t From_end, class Build, class... P>
void pointers_then_unsigned_length_at(TavStatus (*function)(P...), const Build& each) {
  std::vector<fault<P...>> faults;
  add_null_pointers(faults);
  faults.push_back(
      {"length 0", tavStatusBadSize, [](arguments<P...>& a) { a.template set<sizeof...(P) - 1 - From_end>(0); }});
  each([&] { expect_faults(function, faults); });
}

inline constexpr auto pointers_then_length = [](auto function, auto each) {
  pointers_then_length_at<0>(function, each);
};
inline constexpr auto length_then_pointers = [](auto function, auto each) {
  length_then_pointers_at<0>(function, each);
};
// With a scale factor behind the length.
inline constexpr auto pointers_then_length_scaled = [](auto function, auto each) {
  pointers_then_length_at<1>(function, each);
};
inline constexpr auto length_then_pointers_scaled = [](auto function, auto each) {
  length_then_pointers_at<1>(function, each);
};

// For exports that report no status: their rows stand so that the list is complete.
inline constexpr auto no_status = [](auto, auto) {};

}  // namespace test
