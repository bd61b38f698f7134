// Arrays to sort, and the check of a sort over them.
#pragma once
#include <functional>
#include <numeric>

#include "harness/arena.h"
#include "harness/builds.h"
#include "harness/data.h"
#include "harness/faults.h"
#include "oracle/sort.h"

namespace test {

// Input made against the median of three: each of its partitions takes two elements off.
template <class T> std::vector<T> median_of_three_killer(size_t n) {
  std::vector<T> v(n);
  const size_t   half = n / 2;
  for (size_t i = 0; i < half; ++i) {
    v[i]        = T(i % 2 == 0 ? i + 1 : half + i + (half % 2));
    v[half + i] = T(2 * (i + 1));
  }
  if (n % 2) v[n - 1] = T(n);
  return v;
}

template <class T> std::vector<T> floats_without_order(source_of_data& data, size_t n) {
  auto v = data.values<T>(n);  // NaNs of all payloads among them
  for (T& x : v) {
    uint64_t raw = oracle::bits_of(x);
    if (data.below(3) == 0) raw |= sizeof(T) == 4 ? 0x7F800001u : 0x7FF0000000000001u;
    if (data.below(3) == 0) raw = uint64_t(data.below(2)) << (sizeof(T) * 8 - 1);  // a zero of either sign
    memcpy(&x, &raw, sizeof x);
  }
  return v;
}

template <class T> struct kind_of_array {
  const char*                                            name;
  std::function<std::vector<T>(source_of_data&, size_t)> make;
};

template <class T> std::vector<T> by_place(size_t n, auto value) {
  std::vector<T> v(n);
  for (size_t i = 0; i < n; ++i) v[i] = T(value(i));
  return v;
}

template <class T> const std::vector<kind_of_array<T>>& kinds_of_arrays() {
  using limits = std::numeric_limits<T>;
  static const std::vector<kind_of_array<T>> all{
      {"random", [](auto& data, size_t n) { return by_place<T>(n, [&](size_t) { return data.bits(); }); }},
      {"biased",
       [](auto& data, size_t n) {
         auto v = data.template values<T>(n);
         for (T& x : v)
           if (x != x) x = limits::infinity();
         return v;
       }},
      {"sorted", [](auto&, size_t n) { return by_place<T>(n, [](size_t i) { return i; }); }},
      {"reversed", [](auto&, size_t n) { return by_place<T>(n, [&](size_t i) { return n - i; }); }},
      {"nearly sorted",
       [](auto& data, size_t n) {
         auto v = by_place<T>(n, [](size_t i) { return i; });
         std::swap(v[size_t(data.below(int(n)))], v[size_t(data.below(int(n)))]);
         return v;
       }},
      {"equal", [](auto& data, size_t n) { return std::vector<T>(n, T(data.bits())); }},
      {"greatest",
       [](auto& data, size_t n) {
         return by_place<T>(n, [&](size_t) { return data.below(8) ? limits::max() : T(limits::max() - 1); });
       }},
      {"extremes",
       [](auto& data, size_t n) {
         return by_place<T>(n, [&](size_t) {
           const T low  = limits::has_infinity ? T(-limits::infinity()) : limits::min();
           const T high = limits::has_infinity ? limits::infinity() : limits::max();
           return data.below(2) ? low : high;
         });
       }},
      {"few values", [](auto& data, size_t n) { return by_place<T>(n, [&](size_t) { return data.below(5); }); }},
      {"organ pipe", [](auto&, size_t n) { return by_place<T>(n, [&](size_t i) { return std::min(i, n - i); }); }},
      {"sawtooth", [](auto&, size_t n) { return by_place<T>(n, [](size_t i) { return i % 17; }); }},
      {"killer", [](auto&, size_t n) { return median_of_three_killer<T>(n); }},
  };
  static const std::vector<kind_of_array<T>> with_nans = [] {
    auto more = all;
    if constexpr (std::is_floating_point_v<T>)
      more.push_back({"NaNs and zeros", [](auto& data, size_t n) { return floats_without_order<T>(data, n); }});
    return more;
  }();
  return with_nans;
}

// The two forms as one: sort(values, index) calls Export on arrays that end up in `values` and `index`.
template <auto* Export> struct sort_call;
template <class T, TavStatus (*Export)(T*, int)> struct sort_call<Export> {
  using element                      = T;
  static constexpr bool with_indices = false;
  static TavStatus      run(T* values, int*, int len) { return call<Export>(values, len); }
};
template <class T, TavStatus (*Export)(T*, int*, int)> struct sort_call<Export> {
  using element                      = T;
  static constexpr bool with_indices = true;
  static TavStatus      run(T* values, int* index, int len) { return call<Export>(values, index, len); }
};

inline placement place_of(unsigned k) {
  k %= 18;
  if (k < 16) return {placement::inside, k};
  return {k == 16 ? placement::begins_at_page : placement::ends_at_page};
}

// One call on arrays at those places. Of one element nothing is written, its index included.
template <auto* Export, class T>
void check_sort(arena& values_home, arena& index_home, const std::vector<T>& before, oracle::sort_way way,
                unsigned place = 0) {
  using call_of  = sort_call<Export>;
  const size_t n = before.size();
  array<T>     values(values_home, n, place_of(place));
  array<int>   index(index_home, n, place_of(place * 7 + 5));
  values.assign(before);
  index.assign(std::vector<int>(n, -7));
  ASSERT_EQ(call_of::run(values.data(), index.data(), int(n)), tavStatusOk);
  const auto after = values.values();
  ASSERT_TRUE(oracle::collection::of(before) == oracle::collection::of(after)) << "elements lost";
  ASSERT_EQ(oracle::first_out_of_order(before, after, way), -1) << "first element out of order";
  if (call_of::with_indices && n > 1) {
    ASSERT_TRUE(oracle::tells_places(index.values(), before, after)) << "wrong indices";
  } else {
    ASSERT_EQ(index.values(), std::vector<int>(n, -7)) << "an index was written";
  }
  ASSERT_TRUE(values.guards_intact() && index.guards_intact()) << "written outside";
}

// Over lengths and kinds, each at another place.
template <auto* Export> void check_sorts(const std::vector<int>& lengths, oracle::sort_way way) {
  using T              = typename sort_call<Export>::element;
  const size_t longest = size_t(*std::max_element(lengths.begin(), lengths.end()));
  arena        values(longest * sizeof(T)), index(longest * sizeof(int));
  each_build<Export>([&] {
    source_of_data data(5);
    unsigned       place = 0;
    for (int len : lengths)
      for (const auto& kind : kinds_of_arrays<T>()) {
        check_sort<Export>(values, index, kind.make(data, size_t(len)), way, ++place);
        ASSERT_FALSE(testing::Test::HasFatalFailure()) << kind.name << ", length " << len << ", place " << place % 18;
      }
  });
}

// Every order of up to 8 different elements; every array of two values, of lengths on both sides of where ranges are
// divided by the text-book.
template <auto* Export> void check_small_sorts(oracle::sort_way way) {
  using T = typename sort_call<Export>::element;
  arena      values(64 * sizeof(T)), index(64 * sizeof(int));
  const auto check = [&](const std::vector<T>& v) { check_sort<Export>(values, index, v, way, unsigned(v.size())); };
  each_build<Export>([&] {
    for (size_t n = 1; n <= 8; ++n) {
      std::vector<T> v(n);
      std::iota(v.begin(), v.end(), T(1));
      do {
        check(v);
        if (testing::Test::HasFatalFailure()) return;
      } while (std::next_permutation(v.begin(), v.end()));
    }
    for (size_t n = 9; n <= 11; ++n)
      for (unsigned bits = 0; bits < 1u << n; ++bits) {
        check(by_place<T>(n, [&](size_t i) { return bits >> i & 1; }));
        if (testing::Test::HasFatalFailure()) return;
      }
  });
}

// A million, where the definition would take too long: order between neighbours is enough.
template <auto* Export> void check_million(oracle::sort_way way) {
  using T        = typename sort_call<Export>::element;
  const size_t n = 1000000;
  each_build<Export>([&] {
    source_of_data   data(8);
    const auto       before = by_place<T>(n, [&](size_t) { return data.bits(); });
    auto             after  = before;
    std::vector<int> index(n);
    ASSERT_EQ(sort_call<Export>::run(after.data(), index.data(), int(n)), tavStatusOk);
    ASSERT_TRUE(oracle::collection::of(before) == oracle::collection::of(after));
    if (way == oracle::sort_way::down) std::reverse(after.begin(), after.end());
    ASSERT_TRUE(std::is_sorted(after.begin(), after.end()));
    if (way == oracle::sort_way::down) std::reverse(after.begin(), after.end());
    ASSERT_TRUE(!sort_call<Export>::with_indices || oracle::tells_places(index, before, after));
  });
}

inline std::vector<int> sort_lengths() {
  std::vector<int> all(300);
  std::iota(all.begin(), all.end(), 1);
  return all;
}

inline const std::vector<int> long_sorts{511, 512, 513, 1000, 2047, 4099, 20011};

}  // namespace test

// The rows of the exports of one kind: their tests, which become tests of the same name, and their faults.
#define TAV_SORT_CASE(Kind, type)                                                                                    \
  TEST(Kind, SmallUp##type) { check_small_sorts<&::tavs##Kind##Ascend_##type##_I>(oracle::sort_way::up); }           \
  TEST(Kind, SmallDown##type) { check_small_sorts<&::tavs##Kind##Descend_##type##_I>(oracle::sort_way::down); }      \
  TEST(Kind, Up##type) { check_sorts<&::tavs##Kind##Ascend_##type##_I>(sort_lengths(), oracle::sort_way::up); }      \
  TEST(Kind, Down##type) { check_sorts<&::tavs##Kind##Descend_##type##_I>(sort_lengths(), oracle::sort_way::down); } \
  TEST(Kind, LongUp##type) { check_sorts<&::tavs##Kind##Ascend_##type##_I>(long_sorts, oracle::sort_way::up); }      \
  TEST(Kind, LongDown##type) { check_sorts<&::tavs##Kind##Descend_##type##_I>(long_sorts, oracle::sort_way::down); } \
  TAV_FAULTS(Kind##Ascend_##type##_I, pointers_then_length)                                                          \
  TAV_FAULTS(Kind##Descend_##type##_I, pointers_then_length)
#define TAV_SORT_CASES(Kind) \
  TAV_SORT_CASE(Kind, 8u)    \
  TAV_SORT_CASE(Kind, 16s)   \
  TAV_SORT_CASE(Kind, 16u)   \
  TAV_SORT_CASE(Kind, 32s)   \
  TAV_SORT_CASE(Kind, 32f)   \
  TAV_SORT_CASE(Kind, 64f)
